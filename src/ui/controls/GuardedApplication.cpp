#include "ui/controls/GuardedApplication.h"

#include "ui/controls/Guard.h"

namespace kladez {

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  bool handled = true;
  Guarded(activeWindow(), [&] { handled = QApplication::notify(receiver, event); });
  return handled;
}

}  // namespace kladez
