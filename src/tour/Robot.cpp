#include "tour/Robot.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <exception>
#include <memory>
#include <thread>

#include "tour/Eyes.h"
#include "ui/controls/HintPicture.h"

namespace kladez {

using namespace eyes;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 20000;  // milliseconds until a step counts as failed

void TypeText(QWidget* into, const QString& text) {
  for (const QChar c : text) {
    QTest::sendKeyEvent(QTest::Click, into, Qt::Key_unknown, QString(c), Qt::NoModifier);
  }
}

// Waits for one window of a name to be shown.
class ShowWatch : public QObject {
 public:
  ShowWatch(const QString& name, std::function<void(QWidget*)> shown)
      : QObject(qApp), name_(name), shown_(std::move(shown)) {}

  bool eventFilter(QObject* object, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(object);
    if (event->type() != QEvent::Show || widget == nullptr || widget->objectName() != name_) {
      return false;
    }
    qApp->removeEventFilter(this);
    deleteLater();
    shown_(widget);
    return false;
  }

 private:
  QString name_;
  std::function<void(QWidget*)> shown_;
};

}  // namespace

Robot::Robot(const QString& picture_folder) : picture_folder_(picture_folder) {
  if (!picture_folder_.isEmpty()) QDir().mkpath(picture_folder_);
}

void Robot::Run(const std::function<void(Robot&)>& script) {
  QEventLoop loop;
  std::exception_ptr failure;
  std::thread player([&] {
    try {
      script(*this);
    } catch (...) {
      failure = std::current_exception();
    }
    QMetaObject::invokeMethod(
        &loop,
        [&] {
          // Dialogs that a failed script left open would keep their own loops running.
          while (QWidget* modal = QApplication::activeModalWidget()) {
            modal->close();
            if (QApplication::activeModalWidget() == modal) modal->hide();
          }
          loop.quit();
        },
        Qt::QueuedConnection);
  });
  loop.exec();
  player.join();
  if (failure) std::rethrow_exception(failure);
}

// The action is posted, not called: it may open a dialog and come back only when that has closed.
// A second post tells that the first one has ended or waits inside a dialog.
void Robot::InWindow(const std::function<void()>& action) {
  auto failure = std::make_shared<std::exception_ptr>();
  QMetaObject::invokeMethod(
      qApp,
      [action, failure] {
        try {
          action();
        } catch (...) {
          *failure = std::current_exception();
        }
      },
      Qt::QueuedConnection);
  QMetaObject::invokeMethod(
      qApp, [] {}, Qt::BlockingQueuedConnection);
  if (*failure) std::rethrow_exception(*failure);
}

template <typename Value>
Value Robot::Ask(const std::function<Value()>& question) {
  Value answer{};
  std::exception_ptr failure;
  QMetaObject::invokeMethod(
      qApp,
      [&] {
        try {
          answer = question();
        } catch (...) {
          failure = std::current_exception();
        }
      },
      Qt::BlockingQueuedConnection);
  if (failure) std::rethrow_exception(failure);
  return answer;
}

void Robot::WaitUntil(const QString& what, const std::function<bool()>& holds) {
  const QDeadlineTimer deadline(kPatience);
  while (!Ask<bool>(holds)) {
    if (deadline.hasExpired()) {
      const QString front = Ask<QString>([] {
        QWidget* window = Front();
        if (window == nullptr) return u"-"_s;
        const auto* box = qobject_cast<QMessageBox*>(window);
        return QString(window->objectName() + u' ' + window->windowTitle() +
                       (box != nullptr ? u": "_s + box->text() : QString()));
      });
      Fail(u"Не дождались: "_s + what + u"; впереди окно "_s + front);
    }
    QThread::msleep(5);
  }
}

void Robot::WaitFor(const QString& screen) {
  WaitUntil(screen, [screen] { return FindScreen(screen) != nullptr; });
}

void Robot::WaitUntilGone(const QString& screen) {
  WaitUntil(u"закрытие "_s + screen, [screen] { return FindScreen(screen) == nullptr; });
}

void Robot::WaitForMessage() {
  WaitUntil(u"сообщение"_s, [] { return qobject_cast<QMessageBox*>(Front()) != nullptr; });
}

void Robot::Settle() {
  // Steps that a step posts post none themselves.
  for (int i = 0; i < 3; ++i) InWindow([] {});
}

void Robot::Click(const QString& control) {
  WaitUntil(control, [control] {
    QWidget* widget = FindVisible(control);
    return widget != nullptr && widget->isEnabled();
  });
  InWindow([=] { QTest::mouseClick(Control(control), Qt::LeftButton); });
}

void Robot::ClickHint(const QString& heading) {
  InWindow([=] {
    for (HintPicture* picture : Front()->findChildren<HintPicture*>()) {
      if (picture->isVisible() && picture->Content().heading == heading) {
        return QTest::mouseClick(picture, Qt::LeftButton);
      }
    }
    Fail(u"Нет подсказки "_s + heading);
  });
}

void Robot::SelectRow(const QString& list, const QString& first_column) {
  InWindow([=] {
    auto* view = ControlOf<QAbstractItemView>(list);
    const QModelIndex index = RowOf(view, first_column);
    view->scrollTo(index);
    view->setFocus();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
  });
}

void Robot::Type(const QString& control, const QString& text) {
  InWindow([=] {
    QWidget* widget = Control(control);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      if (combo->lineEdit() != nullptr) widget = combo->lineEdit();
    }
    auto* line = qobject_cast<QLineEdit*>(widget);
    if (line == nullptr) Fail(u"В элемент "_s + control + u" не печатают"_s);
    line->setFocus(Qt::TabFocusReason);
    line->selectAll();
    TypeText(line, text);
  });
}

void Robot::TypeHere(const QString& text) {
  InWindow([=] {
    // A list passes what is typed to its search field: the focus may move with the first letter.
    for (const QChar c : text) {
      QWidget* widget = KeyboardTarget();
      if (widget == nullptr) Fail(u"Печатать некуда: "_s + text);
      TypeText(widget, c);
    }
  });
}

void Robot::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  InWindow([=] {
    QWidget* widget = KeyboardTarget();
    if (widget == nullptr) Fail(u"Нажимать некуда"_s);
    QTest::keyClick(widget, key, modifiers);
  });
}

void Robot::PressLetter(QChar letter, Qt::KeyboardModifiers modifiers) {
  InWindow([=] {
    QWidget* widget = KeyboardTarget();
    if (widget == nullptr) Fail(u"Нажимать некуда"_s);
    QTest::sendKeyEvent(QTest::Click, widget, static_cast<Qt::Key>(letter.toUpper().unicode()),
                        QString(letter), modifiers);
  });
  // A button that is pressed by its letter stays down for a moment before it clicks.
  WaitUntil(u"нажатие кнопки"_s, [] {
    QWidget* front = Front();
    if (front == nullptr) return true;
    const auto buttons = front->findChildren<QAbstractButton*>();
    return std::none_of(buttons.begin(), buttons.end(),
                        [](auto* button) { return button->isDown(); });
  });
}

void Robot::TabTo(const QString& control) {
  constexpr int kMostControls = 60;
  for (int i = 0; i < kMostControls; ++i) {
    const bool there = Ask<bool>([control] {
      const QWidget* widget = KeyboardTarget();
      return widget != nullptr && widget->objectName() == control;
    });
    if (there) return;
    Press(Qt::Key_Tab);
  }
  Fail(u"Клавиша Tab не приводит к "_s + control);
}

void Robot::Choose(const QString& combo, const QString& entry) {
  InWindow([=] {
    auto* box = ControlOf<QComboBox>(combo);
    const int index = box->findText(entry);
    if (index < 0) Fail(u"В списке "_s + combo + u" нет "_s + entry);
    box->setFocus();
    while (box->currentIndex() != index) {
      QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
  });
}

void Robot::FocusOn(const QString& control) {
  InWindow([=] { Control(control)->setFocus(Qt::TabFocusReason); });
}

void Robot::OpenTab(const QString& tabs, const QString& title) {
  InWindow([=] {
    auto* pages = ControlOf<QTabWidget>(tabs);
    for (int i = 0; i < pages->count(); ++i) {
      if (pages->tabText(i).remove(u'&') == title) return pages->setCurrentIndex(i);
    }
    Fail(u"Нет вкладки "_s + title);
  });
}

void Robot::OpenMenu(const QString& action) {
  InWindow([=] {
    QWidget* front = Front();
    auto* command = front != nullptr ? front->findChild<QAction*>(action) : nullptr;
    if (command == nullptr || !command->isEnabled()) Fail(u"Нет команды "_s + action);
    command->trigger();
  });
}

void Robot::Check(const QString& control, bool on) {
  InWindow([=] {
    auto* box = ControlOf<QAbstractButton>(control);
    if (box->isChecked() != on) {
      box->setFocus();
      QTest::keyClick(box, Qt::Key_Space);
    }
    if (box->isChecked() != on) Fail(u"Не переключается "_s + control);
  });
}

QString Robot::TextOf(const QString& control) {
  return Ask<QString>([control] { return ShownText(Control(control)); });
}

void Robot::Picture(const QString& name) {
  InWindow([=, this] {
    if (QWidget* front = Front()) TakePicture(front, name);
  });
}

void Robot::PictureWhenShown(const QString& screen) {
  InWindow([=, this] {
    qApp->installEventFilter(new ShowWatch(screen, [=, this](QWidget* window) {
      window->ensurePolished();
      TakePicture(window, screen);
    }));
  });
}

void Robot::TakePicture(QWidget* window, const QString& name) {
  if (inspector_) inspector_(window, name);
  if (picture_folder_.isEmpty()) return;
  const QString file = picture_folder_ + u'/' +
                       QString::number(pictures_.size() + 1).rightJustified(2, u'0') + u'-' + name +
                       u".png"_s;
  if (!window->grab().save(file)) Fail(u"Не удалось сохранить снимок "_s + file);
  pictures_.append(file);
}

}  // namespace kladez
