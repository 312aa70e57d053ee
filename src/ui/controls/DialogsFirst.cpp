#include "ui/controls/DialogsFirst.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace kladez {

DialogsFirst::DialogsFirst() { qApp->installEventFilter(this); }

bool DialogsFirst::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Close) return false;
  const QWidget* above = QApplication::activeModalWidget();
  while (above != nullptr && above->parentWidget() != watched) above = above->parentWidget();
  if (above == nullptr) return false;
  event->ignore();
  return true;
}

}  // namespace kladez
