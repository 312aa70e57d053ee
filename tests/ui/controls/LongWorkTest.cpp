#include "ScreenDriver.h"
#include "ui/controls/LongWork.h"

namespace kladez {
namespace {

// Works until it is told to end, and acts once when the bar has come up.
class LongWorkTest : public testing::Test {
 protected:
  LongWorkTest() {
    button_.setObjectName(u"behind"_s);
    QObject::connect(&button_, &QPushButton::clicked, [this] { ++clicks_; });
    screen_.setAttribute(Qt::WA_QuitOnClose, false);
    ShowActive(&screen_);
  }

  static QWidget* Bar() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == u"LongWork" && window->isVisible()) return window;
    }
    return nullptr;
  }

  // True when the work was ended early.
  bool Work(const std::function<void()>& act) {
    LongWork work(&screen_, u"Чтение <документов>"_s);
    const Progress progress = work.Told();
    const QDeadlineTimer limit(20000);
    bool acted = false;
    while (!limit.hasExpired()) {
      try {
        progress.Tell(0.5);
      } catch (const WorkCancelled&) {
        return true;
      }
      if (!acted && Bar() != nullptr) {
        acted = true;
        act();
      } else if (acted && !Bar()) {
        return false;
      }
    }
    return false;
  }

  QWidget screen_;
  QPushButton button_{&screen_};
  int clicks_ = 0;
};

TEST_F(LongWorkTest, ShortWorkShowsNothing) {
  LongWork work(&screen_, u"Чтение"_s);
  work.Told().Tell(0);
  work.Told().Tell(1);
  EXPECT_EQ(Bar(), nullptr);
}

TEST_F(LongWorkTest, TheButtonEscapeAndTheFrameOfTheBarEndIt) {
  const std::vector<std::function<void()>> ways = {
      [] { Click(Bar(), "stop"); },
      [] { QTest::keyClick(Bar(), Qt::Key_Escape); },
      [] { Bar()->close(); },
  };
  for (const auto& way : ways) {
    EXPECT_TRUE(Work(way));
    EXPECT_EQ(Bar(), nullptr);
    EXPECT_TRUE(screen_.isVisible());
  }
}

TEST_F(LongWorkTest, ClosingTheWindowBehindEndsItAndClosesTheWindowAfterwards) {
  bool closed_meanwhile = false;
  EXPECT_TRUE(Work([&] { closed_meanwhile = screen_.close(); }));
  EXPECT_FALSE(closed_meanwhile) << "what the work stands on must not go away under it";
  EXPECT_TRUE(QTest::qWaitFor([&] { return !screen_.isVisible(); }));
}

TEST_F(LongWorkTest, ClicksAndKeysDoNotReachTheWindowBehind) {
  EXPECT_TRUE(Work([&] {
    QTest::mouseClick(&button_, Qt::LeftButton);
    QTest::keyClick(&button_, Qt::Key_Space);
    Click(Bar(), "stop");
  }));
  EXPECT_EQ(clicks_, 0);
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(LongWorkTest, ACommandThatTakesTheScreenAwayEndsItAndComesAfterwards) {
  int commands = 0;
  EXPECT_TRUE(Work([&] {
    EXPECT_TRUE(LongWork::LeaveFor(&screen_, [&] { ++commands; }));
    EXPECT_EQ(commands, 0);
  }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return commands == 1; }));
  EXPECT_FALSE(LongWork::LeaveFor(&screen_, [] {})) << "nothing is running";
}

TEST_F(LongWorkTest, ClicksOnAWayOutPassTheBar) {
  LongWork::LetPass(&button_);
  EXPECT_TRUE(Work([&] {
    QTest::mouseClick(&button_, Qt::LeftButton);
    Click(Bar(), "stop");
  }));
  EXPECT_EQ(clicks_, 1);
}

}  // namespace
}  // namespace kladez
