// Ends a test that waits for ever: a dialog which nobody answers stands there until somebody closes
// it, and no test does that for one that it did not expect.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

namespace kladez {

// Lives as long as the application. A modal dialog without a key or click for `patience`
// milliseconds fails the test and is closed; one that does not go ends the program.
class DialogWatch : public QObject {
 public:
  explicit DialogWatch(int patience = 5000) : patience_(patience) {
    QCoreApplication::instance()->installEventFilter(this);
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { Look(); });
    timer_.start(100);
    quiet_.start();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    const auto type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress) quiet_.restart();
    return false;
  }

 private:
  void Look() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != dialog_) {
      dialog_ = dialog;
      quiet_.restart();
    }
    if (dialog == nullptr || quiet_.elapsed() < patience_) return;
    quiet_.restart();
    std::string texts;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
      texts += label->text().toStdString() + '\n';
    }
    ADD_FAILURE() << "nobody answers the dialog \"" << dialog->windowTitle().toStdString() << "\" "
                  << dialog->objectName().toStdString() << '\n'
                  << texts;
    if (dialog == closed_) {
      std::fputs("it does not go away: the program ends here\n", stderr);
      std::_Exit(1);
    }
    closed_ = dialog;
    if (auto* box = qobject_cast<QDialog*>(dialog)) {
      box->done(QDialog::Rejected);
    } else {
      dialog->hide();
    }
  }

  const int patience_;
  QTimer timer_;
  QElapsedTimer quiet_;  // since the last key, click or change of dialog
  QPointer<QWidget> dialog_;
  QPointer<QWidget> closed_;
};

}  // namespace kladez
