#include <QAccessible>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <set>

#include "ScreenDriver.h"
#include "ui/HintWindow.h"
#include "ui/Hints.h"
#include "ui/controls/Fields.h"

namespace kladez {
namespace {

std::vector<HintWindow*> ShownHints() {
  std::vector<HintWindow*> shown;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* hint = qobject_cast<HintWindow*>(widget);
    if (hint != nullptr && hint->isVisible()) shown.push_back(hint);
  }
  return shown;
}

class HintShown : public testing::Test {
 protected:
  void SetUp() override {
    HintPicture::SetOpener(&HintWindow::Show);
    screen_.resize(400, 300);
    field_.move(0, 100);
    frame_.setGeometry(0, 150, 200, 100);
    receipts_.move(0, 20);
    frame_hint_.move(0, 40);
    inner_hint_.move(0, 60);
    ShowActive(&screen_);
  }
  void TearDown() override { HintPicture::SetOpener({}); }

  // What the one hint that is shown is headed with; empty when none is, or several are.
  QString ShownHeading() {
    const auto shown = ShownHints();
    return shown.size() == 1 ? Find<QLabel>(shown.front(), "Label1")->text() : QString();
  }
  void AskIn(QWidget* widget) {
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_F1, Qt::ShiftModifier);
  }

  QWidget screen_;
  TextLineDecimal field_{&screen_};
  QGroupBox frame_{&screen_};
  QComboBox plain_{&frame_};
  QCheckBox inner_{&frame_};
  HintPicture stock_{HintFor(u"Main", u"Picture6"), {}, &screen_};
  HintPicture receipts_{HintFor(u"Main", u"Picture7"), {&field_}, &screen_};
  HintPicture frame_hint_{HintFor(u"Main", u"Picture8"), {&frame_}, &screen_};
  HintPicture inner_hint_{HintFor(u"Main", u"Picture9"), {&inner_}, &screen_};
};

TEST(Hints, NoPlaceOfTheTableIsLostOrDoubled) {
  std::set<std::pair<QString, QString>> different;
  int places = 0;
  for (const QString& screen : ScreensWithHints()) {
    const QStringList names = HintPlaces(screen);
    EXPECT_EQ(std::set<QString>(names.begin(), names.end()).size(), size_t(names.size()))
        << screen.toStdString();
    for (const QString& place : names) {
      const Hint& hint = HintFor(screen, place);
      EXPECT_FALSE(hint.heading.isEmpty() || hint.body.isEmpty())
          << QString(screen + place).toStdString();
      different.insert({hint.heading, hint.body});
      ++places;
    }
  }
  EXPECT_GE(ScreensWithHints().size(), 30);
  EXPECT_GE(different.size(), 90u);
  EXPECT_EQ(HintPlaces(u"Main").size(), 20);
  EXPECT_GE(places, 145);
}

TEST(Hints, LikePlacesKeepTheirOddHeadings) {
  EXPECT_EQ(HintFor(u"TovPrih", u"За год").heading, u"За месяц"_s);
  EXPECT_NE(HintFor(u"TovPrih", u"За год").body, HintFor(u"TovPrih", u"За месяц").body);
  EXPECT_EQ(HintFor(u"vnutrNew", u"Куда").heading, u"Откуда"_s);
  // Not what the options are called.
  EXPECT_EQ(HintPlaces(u"UhodSch").filter(u"Печат"_s),
            QStringList({u"Печатать в рублях"_s, u"Печатать в USD"_s}));
  EXPECT_TRUE(HintFor(u"Main", u"Picture13").body.endsWith(u"а какой нет. "_s));
  EXPECT_TRUE(HintFor(u"Main", u"Picture7").body.contains(u"число.  В окне"_s));
  EXPECT_NE(HintFor(u"PrihNakl", u"Курс доллара").body, HintFor(u"UhodSch", u"Курс доллара").body);
  EXPECT_THROW(HintFor(u"Main", u"Picture99"), std::out_of_range);
}

TEST_F(HintShown, SecondHintIsShownAlone) {
  stock_.click();
  ASSERT_EQ(ShownHints().size(), 1u);
  receipts_.click();
  ASSERT_EQ(ShownHints().size(), 1u);
  HintWindow* hint = ShownHints().front();
  EXPECT_EQ(hint->windowTitle(), u"Подсказка"_s);
  EXPECT_EQ(Find<QLabel>(hint, "Label1")->text(), u"Приход"_s);
  EXPECT_EQ(Find<QPlainTextEdit>(hint, "Text1")->toPlainText(), HintFor(u"Main", u"Picture7").body);
  EXPECT_TRUE(Find<QPlainTextEdit>(hint, "Text1")->isReadOnly());
}

TEST_F(HintShown, TheKeyboardReachesEveryHint) {
  AskIn(&field_);
  EXPECT_EQ(ShownHeading(), u"Приход"_s);
  AskIn(&plain_);
  EXPECT_EQ(ShownHeading(), u"Расход"_s);
  AskIn(&inner_);
  EXPECT_EQ(ShownHeading(), u"Внутреннее перемещение"_s);
  ShownHints().front()->close();
  inner_hint_.hide();  // as the home screen does with all of its question marks
  AskIn(&inner_);
  EXPECT_EQ(ShownHeading(), u"Расход"_s);
  // One that stands beside no field is a stop of its own.
  EXPECT_EQ(stock_.focusPolicy(), Qt::TabFocus);
  stock_.setFocus();
  QTest::keyClick(&stock_, Qt::Key_Space);
  EXPECT_EQ(ShownHeading(), u"Наличие товаров"_s);
}

TEST_F(HintShown, AssistiveToolsFindThePictureAndReadTheHint) {
  auto* picture = QAccessible::queryAccessibleInterface(&receipts_);
  EXPECT_EQ(picture->text(QAccessible::Name), u"Подсказка: Приход"_s);
  picture->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([this] { return ShownHeading() == u"Приход"_s; }));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&field_)->text(QAccessible::Description),
            HintFor(u"Main", u"Picture7").body);
}

TEST_F(HintShown, GoesAwayOnEscapeOnTheButtonAndWhenAnotherWindowIsActivated) {
  const std::vector<std::function<void(HintWindow*)>> ways = {
      [](HintWindow* hint) { Click(hint, "Command4"); },
      [](HintWindow* hint) { QTest::keyClick(hint, Qt::Key_Escape); },
      [this](HintWindow*) { screen_.activateWindow(); },
  };
  for (const auto& way : ways) {
    stock_.click();
    ASSERT_EQ(ShownHints().size(), 1u);
    ASSERT_TRUE(QTest::qWaitForWindowActive(ShownHints().front()));
    way(ShownHints().front());
    EXPECT_TRUE(QTest::qWaitFor([] { return ShownHints().empty(); }));
  }
}

}  // namespace
}  // namespace kladez
