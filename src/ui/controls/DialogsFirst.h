// A window or screen does not close while a dialog or message stands on it: the dialog would go
// with it in the middle of its work. The toolkit keeps a person from that, but not a close that
// comes late, such as that of a button which was pressed by its letter a moment before.
#pragma once

#include <QObject>

namespace kladez {

// Holds for the whole application as long as the object lives.
class DialogsFirst : public QObject {
 public:
  DialogsFirst();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kladez
