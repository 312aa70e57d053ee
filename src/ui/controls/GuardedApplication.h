// The program's application: the last guard. What a command should have told itself, and did not,
// is told here, and the program goes on: an error that left an event would end it.
#pragma once

#include <QApplication>

namespace kladez {

class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace kladez
