// Drives real windows from a test: finds controls by name, types and clicks, answers modal dialogs
// as they come up, and holds what every screen is given. It brings the headers of the controls too.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>

#include "TempData.h"
#include "ui/AppContext.h"
#include "ui/controls/RecordList.h"

namespace kladez {

// A data directory with one open Database and all that a screen is given.
class ScreenWorld {
 public:
  explicit ScreenWorld(QDate today = QDate(2026, 11, 22))
      : settings_(temp_.Root() + u"/../"_s + QFileInfo(temp_.Root()).fileName() + u".ini"_s),
        clock_(QDateTime(today, QTime(12, 0))),
        print_outs_(temp_.Data(), [this] { ++viewer_starts_; }),
        context_{temp_.Data(), session_, settings_, clock_, print_outs_} {}
  ~ScreenWorld() { QFile::remove(temp_.Root() + u".ini"_s); }

  AppContext& Context() { return context_; }
  TempData& Temp() { return temp_; }
  Session& CurrentSession() { return session_; }
  SettingsStore& Settings() { return settings_; }
  int ViewerStarts() const { return viewer_starts_; }

 private:
  TempData temp_;
  Session session_;
  SettingsStore settings_;
  Clock clock_;
  int viewer_starts_ = 0;
  PrintOutDesk print_outs_;
  AppContext context_;
};

template <typename Control>
Control* Find(QWidget* screen, const char* name) {
  auto* control = screen->findChild<Control*>(QString::fromUtf8(name));
  EXPECT_NE(control, nullptr) << "no control " << name << " on "
                              << screen->objectName().toStdString();
  return control;
}

// Shows a window and waits until it has the keyboard.
inline void ShowActive(QWidget* screen) {
  screen->show();
  screen->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(screen));
}

// Types a text key by key into a control; QTest::keyClicks knows ASCII only.
inline void Type(QWidget* control, const QString& text) {
  for (const QChar c : text) {
    QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString(c), Qt::NoModifier);
  }
}

inline void Click(QWidget* screen, const char* name) {
  QTest::mouseClick(Find<QAbstractButton>(screen, name), Qt::LeftButton);
}

inline RecordList* ListOf(QWidget* screen) { return Find<RecordList>(screen, "ListView1"); }

inline QStringList RowTexts(QWidget* screen, int row) {
  QStringList texts;
  const auto* model = ListOf(screen)->Records();
  for (int column = 0; column < model->columnCount(); ++column) {
    texts << model->index(row, column).data().toString();
  }
  return texts;
}

inline QString TextOf(QWidget* screen, const char* name) {
  return Find<QLineEdit>(screen, name)->text();
}

// Puts a text into a field by typing over what stands there.
inline void Enter(QWidget* screen, const char* name, const QString& text) {
  auto* field = Find<QLineEdit>(screen, name);
  field->setFocus();
  field->selectAll();
  Type(field, text);
}

// Answers the modal dialogs of one command in the order in which they come. Each step gets the
// dialog and must close it. Left over or missing steps fail the test.
class ModalAnswers {
 public:
  using Step = std::function<void(QWidget* dialog)>;

  explicit ModalAnswers(std::initializer_list<Step> steps) : steps_(steps) {
    timer_.setInterval(1);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Poll(); });
    timer_.start();
  }
  ~ModalAnswers() { EXPECT_TRUE(steps_.empty()) << steps_.size() << " dialogs did not come up"; }

 private:
  void Poll() {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || dialog == busy_ || !dialog->isVisible()) return;
    if (steps_.empty()) {
      if (dialog == outer_) return;
      ADD_FAILURE() << "unexpected dialog " << dialog->windowTitle().toStdString();
      if (++unexpected_ > 5) {
        std::fputs("it does not go away: the program ends here\n", stderr);
        std::_Exit(1);
      }
      dialog->close();
      return;
    }
    const Step step = steps_.front();
    steps_.pop_front();
    QWidget* before = busy_;
    busy_ = dialog;  // a nested dialog is another widget and has a step of its own
    // Not inside the timer's event: while that lasts the timer does not come again, and a dialog
    // that the step opens would wait for ever.
    QMetaObject::invokeMethod(
        &timer_,
        [this, step, dialog, before] {
          // Until then the keyboard is with the window below; qWaitForWindowActive would not wait,
          // as to it a dialog is active with its parent.
          EXPECT_TRUE(QTest::qWaitFor([=] { return QApplication::activeWindow() == dialog; }));
          step(dialog);
          busy_ = before;
        },
        Qt::QueuedConnection);
  }

  std::deque<Step> steps_;
  QTimer timer_;
  QWidget* busy_ = nullptr;
  int unexpected_ = 0;  // dialogs that no step awaited
  QWidget* outer_ = QApplication::activeModalWidget();
};

// Steps for ModalAnswers.
inline ModalAnswers::Step Press(QMessageBox::StandardButton button, const QString& text = {}) {
  return [=](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr) << dialog->objectName().toStdString() << " is no message";
    if (!text.isEmpty()) {
      EXPECT_EQ(box->text(), text);
    }
    ASSERT_NE(box->button(button), nullptr);
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  };
}
inline ModalAnswers::Step AnswerText(const QString& typed) {
  return [=](QWidget* dialog) {
    auto* field = dialog->findChild<QLineEdit*>(u"Text1"_s);
    ASSERT_NE(field, nullptr);
    field->selectAll();
    Type(field, typed);
    QTest::keyClick(field, Qt::Key_Return);
  };
}
inline ModalAnswers::Step Escape() {
  return [](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); };
}

}  // namespace kladez
