// What is typed into a list without a search field, or into a closed or open list of choices: it
// goes to the name that formats/NameSearch.h finds, and shows what is looked for by the control.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

#include "formats/NameSearch.h"

class QKeyEvent;
class QWidget;

namespace kladez {

class TypeAhead : public QObject {
 public:
  struct Rows {
    std::function<const NameSearch&()> names;
    std::function<int()> current;
    std::function<void(int row)> select;
  };

  // The notes stand by the control, which owns this.
  TypeAhead(QWidget* control, Rows rows);

  // Takes letters, blanks between them, the backspace key, and F3, which goes on to the next name;
  // gives false for what is not for it. After a pause a letter begins anew.
  bool Takes(const QKeyEvent& event);

 private:
  void Go(int row);

  QWidget* control_;
  Rows rows_;
  QString typed_;
  QTimer pause_;
};

}  // namespace kladez
