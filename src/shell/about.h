// "О программе": name, version, where to ask.
#pragma once

#include <QDialog>

namespace kladez {

class about : public QDialog {
  Q_OBJECT

 public:
  explicit about(QWidget* parent);
};

}  // namespace kladez
