#include <gtest/gtest.h>

#include <QLabel>
#include <QPlainTextEdit>
#include <set>

#include "ScreenDriver.h"
#include "shell/Hints.h"
#include "shell/helper.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::vector<helper*> ShownHints() {
  std::vector<helper*> shown;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* hint = qobject_cast<helper*>(widget);
    if (hint != nullptr && hint->isVisible()) shown.push_back(hint);
  }
  return shown;
}

class HintWindow : public testing::Test {
 protected:
  void SetUp() override {
    HintPicture::SetOpener(&helper::Show);
    screen_.resize(400, 300);
    ShowActive(&screen_);
  }
  void TearDown() override { HintPicture::SetOpener({}); }

  QWidget screen_;
  HintPicture stock_{HintFor(u"Main", u"Picture6"), &screen_};
  HintPicture receipts_{HintFor(u"Main", u"Picture7"), &screen_};
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
  EXPECT_EQ(ScreensWithHints().size(), 28);
  EXPECT_EQ(different.size(), 85u);
  EXPECT_EQ(HintPlaces(u"Main").size(), 20);
  EXPECT_GE(places, 145);
}

TEST(Hints, LikePlacesKeepTheirOddHeadings) {
  EXPECT_EQ(HintFor(u"TovPrih", u"За год").heading, u"За месяц"_s);
  EXPECT_NE(HintFor(u"TovPrih", u"За год").body, HintFor(u"TovPrih", u"За месяц").body);
  EXPECT_EQ(HintFor(u"vnutrNew", u"Куда").heading, u"Откуда"_s);
  EXPECT_TRUE(HintFor(u"Main", u"Picture13").body.endsWith(u"а какой нет. "_s));
  EXPECT_TRUE(HintFor(u"Main", u"Picture7").body.contains(u"число.  В окне"_s));
  EXPECT_NE(HintFor(u"PrihNakl", u"Курс доллара").body, HintFor(u"UhodSch", u"Курс доллара").body);
  EXPECT_THROW(HintFor(u"Main", u"Picture99"), std::out_of_range);
}

TEST_F(HintWindow, SecondHintIsShownAlone) {
  stock_.click();
  ASSERT_EQ(ShownHints().size(), 1u);
  receipts_.click();
  ASSERT_EQ(ShownHints().size(), 1u);
  helper* hint = ShownHints().front();
  EXPECT_EQ(hint->windowTitle(), u"Подсказка"_s);
  EXPECT_EQ(Find<QLabel>(hint, "Label1")->text(), u"Приход"_s);
  EXPECT_EQ(Find<QPlainTextEdit>(hint, "Text1")->toPlainText(), HintFor(u"Main", u"Picture7").body);
  EXPECT_TRUE(Find<QPlainTextEdit>(hint, "Text1")->isReadOnly());
}

TEST_F(HintWindow, GoesAwayOnEscapeOnTheButtonAndWhenAnotherWindowIsActivated) {
  const std::vector<std::function<void(helper*)>> ways = {
      [](helper* hint) { Click(hint, "Command4"); },
      [](helper* hint) { QTest::keyClick(hint, Qt::Key_Escape); },
      [this](helper*) { screen_.activateWindow(); },
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
