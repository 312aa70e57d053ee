// The fixed parts around the child screen of the main window.
#pragma once

#include <QDate>
#include <QVBoxLayout>
#include <QWidget>

#include "books/store/Session.h"

class QLabel;
class QProgressBar;

namespace kladez {

// Where the child screen lives. One that could use more height than there is gets what there is:
// only one that can't do with it scrolls. What it can do with depends on the width, where its rows
// go on in a next line.
class HostLayout : public QVBoxLayout {
 public:
  using QVBoxLayout::QVBoxLayout;
  bool hasHeightForWidth() const override { return false; }
  QSize minimumSize() const override;
};

// The line at the foot: who works here, how far a long piece of work is, what day it is.
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
