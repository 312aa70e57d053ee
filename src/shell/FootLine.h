// The line at the foot of the main window: who works here, how far a long piece of work is, what
// day it is.
#pragma once

#include <QDate>
#include <QWidget>

#include "books/store/Session.h"

class QLabel;
class QProgressBar;

namespace kladez {

class FootLine : public QWidget {
 public:
  explicit FootLine(QWidget* parent);

  void Tell(UserRole role, QDate today);
  // From 0 to 1, where the bar goes away. Drawn at once: the work leaves no time for events.
  void ShowProgress(double part);

 private:
  QLabel* role_;
  QLabel* today_;
  QProgressBar* progress_bar_;
};

}  // namespace kladez
