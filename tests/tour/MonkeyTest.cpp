// Somebody who clicks and types at random on the demonstration books: whatever comes of it, the
// program neither crashes nor hangs, and it starts again on what was left. The same seed gives the
// same walk. MONKEY_SEED and MONKEY_STEPS make another one; MONKEY_LOG is a file that tells each
// step as it is taken.

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <array>
#include <atomic>
#include <chrono>
#include <random>
#include <thread>

#include "TempData.h"
#include "demo/DemoBooks.h"
#include "tour/Eyes.h"
#include "tour/Stage.h"
#include "ui/Help.h"

// Of the leak checker: a walk that ends by "Выход" with a menu open leaves the toolkit's own
// objects behind.
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt6"; }

namespace kladez {
namespace {

const QDate kDay(2026, 3, 5);

constexpr std::array kKeys = {Qt::Key_Return, Qt::Key_Escape,  Qt::Key_Tab,  Qt::Key_Backtab,
                              Qt::Key_Space,  Qt::Key_Up,      Qt::Key_Down, Qt::Key_Left,
                              Qt::Key_Right,  Qt::Key_Home,    Qt::Key_End,  Qt::Key_PageUp,
                              Qt::Key_Insert, Qt::Key_Delete,  Qt::Key_F1,   Qt::Key_F4,
                              Qt::Key_F5,     Qt::Key_F10,     Qt::Key_Plus, Qt::Key_Backspace,
                              Qt::Key_Menu,   Qt::Key_PageDown};

const QStringList kTexts = {u"0"_s,
                            u"1"_s,
                            u"-3.125"_s,
                            u"1e300"_s,
                            u"99999999999999999999"_s,
                            u"1,5"_s,
                            u".5"_s,
                            u" "_s,
                            u"Чай «А&Б»"_s,
                            u"<b>"_s,
                            u"..\\.."_s,
                            u"a/b"_s,
                            u"31.02"_s,
                            u"01.01.2026"_s,
                            u"я"_s,
                            u"щ"_s.repeated(300),
                            u"\u4e2d\u0301"_s,
                            u"Склад 2"_s};

class Monkey {
 public:
  Monkey(unsigned seed, int steps) : random_(seed), steps_(steps) {
    log_.setFileName(qEnvironmentVariable("MONKEY_LOG"));
    if (!log_.fileName().isEmpty()) log_.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  }

  bool Tired() const { return steps_ <= 0; }
  const QByteArray& LastStep() const { return last_; }

  // One thing a person may do to the window in front.
  void Act(QWidget* main_window) {
    --steps_;
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      Tell("menu", menu);
      if (Chance(2)) return Key(menu);
      const QList<QAction*> actions = menu->actions();
      return Click(menu, menu->actionGeometry(actions[Pick(actions.size())]).center());
    }
    QWidget* front = FrontOf(main_window);
    // What lies outside the data directory is nobody's business here.
    if (auto* files = qobject_cast<QFileDialog*>(front)) return files->reject();
    QList<QWidget*> reachable = {front};
    for (QWidget* widget : front->findChildren<QWidget*>()) {
      if (widget->window() == front && widget->isVisible() && widget->isEnabled()) {
        reachable.append(widget);
      }
    }
    QWidget* target = reachable[Pick(reachable.size())];
    QWidget* keyboard = QApplication::focusWidget();
    if (keyboard == nullptr || keyboard->window() != front) keyboard = front;
    switch (Pick(8)) {
      case 0:
        return Key(keyboard);
      case 1:
        return Type(keyboard);
      case 2:
        Tell("double click", target);
        return QTest::mouseDClick(target, Qt::LeftButton, {}, Somewhere(target));
      case 3:
        return Letter(keyboard);
      default:
        return Click(target, Somewhere(target));
    }
  }

  // The same, on the way out: whatever is in front is closed.
  void Leave(QWidget* main_window) {
    QWidget* front = FrontOf(main_window);
    Tell("leave", front);
    if (auto* box = qobject_cast<QMessageBox*>(front); box != nullptr && Chance(2)) {
      return box->done(QMessageBox::No);
    }
    front->close();
  }

 private:
  static QWidget* FrontOf(QWidget* main_window) {
    QWidget* front = eyes::Front();
    return front != nullptr ? front : main_window;
  }
  int Pick(qsizetype count) {
    return static_cast<int>(random_() % static_cast<unsigned>(std::max<qsizetype>(count, 1)));
  }
  bool Chance(int one_in) { return Pick(one_in) == 0; }
  QPoint Somewhere(const QWidget* widget) {
    return {Pick(widget->width()), Pick(widget->height())};
  }

  void Click(QWidget* target, QPoint place) {
    Tell("click", target);
    QTest::mouseClick(target, Chance(12) ? Qt::RightButton : Qt::LeftButton, {}, place);
  }
  void Key(QWidget* target) {
    const Qt::Key key = kKeys[Pick(kKeys.size())];
    Tell("key " + QByteArray::number(key, 16), target);
    QTest::keyClick(target, key, Chance(8) ? Qt::ShiftModifier : Qt::NoModifier);
  }
  void Letter(QWidget* target) {
    const QChar letter = static_cast<char16_t>(u'А' + Pick(32));
    Tell("Alt+" + QString(letter).toUtf8(), target);
    QTest::sendKeyEvent(QTest::Click, target, static_cast<Qt::Key>(letter.unicode()),
                        QString(letter), Qt::AltModifier);
  }
  void Type(QWidget* target) {
    const QString& text = kTexts[Pick(kTexts.size())];
    Tell("type " + text.left(20).toUtf8(), target);
    for (const QChar letter : text) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
      const QPointer<QWidget> still(target);
      QApplication::sendEvent(target, &press);
      if (!still) return;
    }
  }

  void Tell(const QByteArray& what, const QWidget* on) {
    last_ = what + " on " + on->metaObject()->className() + ' ' + on->objectName().toUtf8() +
            " of " + on->window()->objectName().toUtf8() + ' ' +
            on->window()->windowTitle().toUtf8();
    if (log_.isOpen()) log_.write(last_ + '\n');
  }

  std::mt19937 random_;
  int steps_;
  QByteArray last_;
  QFile log_;
};

// Ends the process, with the step at fault, when no step has come for a while.
class Watchdog {
 public:
  explicit Watchdog(const Monkey& monkey) : thread_([this, &monkey] { Watch(monkey); }) {}
  ~Watchdog() {
    over_ = true;
    thread_.join();
  }
  void Pat() { ++pats_; }

 private:
  void Watch(const Monkey& monkey) {
    using namespace std::chrono_literals;
    for (int seen = -1, still = 0; !over_; std::this_thread::sleep_for(100ms)) {
      const int now = pats_;
      still = now == seen ? still + 1 : 0;
      seen = now;
      if (still < 300) continue;
      fprintf(stderr, "No step for 30 seconds after: %s\n", monkey.LastStep().constData());
      std::abort();
    }
  }

  std::atomic<int> pats_ = 0;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

TEST(Monkey, NothingCrashesOrHangsAndTheProgramStartsAgain) {
  const TempData temp;
  const QTemporaryDir beside;
  ASSERT_TRUE(QDir(beside.path()).mkpath(u"a/b/c"_s));
  QDir::setCurrent(beside.filePath(u"a/b/c"_s));
  qputenv("HOME", beside.path().toUtf8());
  WriteDemonstrationBooks(temp.Data(), kDay);
  SetAddressOpener([](const QUrl&, const auto& /*otherwise*/) {});

  Monkey monkey(qEnvironmentVariableIntValue("MONKEY_SEED") + 1U,
                qEnvironmentVariableIsSet("MONKEY_STEPS")
                    ? qEnvironmentVariableIntValue("MONKEY_STEPS")
                    : 600);
  Watchdog watchdog(monkey);
  while (!monkey.Tired()) {
    Stage stage(temp.Root(), beside.filePath(u"settings.ini"_s),
                Clock(QDateTime(kDay, QTime(10, 0))));
    // A step that opens a dialog comes back late: the next one is ordered before it.
    const QObject alive;
    const std::function<void()> step = [&] {
      QTimer::singleShot(0, &alive, step);
      watchdog.Pat();
      if (!stage.Window().isVisible()) return;
      monkey.Tired() ? monkey.Leave(&stage.Window()) : monkey.Act(&stage.Window());
    };
    QTimer::singleShot(0, &alive, [&] {
      stage.Window().Start(1);
      stage.Window().show();
      stage.Window().activateWindow();
      step();
    });
    QApplication::exec();
  }

  Robot robot;
  Stage stage(temp.Root(), beside.filePath(u"other.ini"_s), Clock(QDateTime(kDay, QTime(10, 0))));
  stage.Play(robot, [](Robot& player) { player.WaitFor(u"main2"_s); });
}

}  // namespace
}  // namespace kladez
