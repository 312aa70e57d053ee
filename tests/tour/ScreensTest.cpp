// A walk through every screen of the program on the demonstration books.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <set>

#include "Inspection.h"
#include "Screens.h"
#include "TempData.h"
#include "demo/DemoBooks.h"
#include "tour/Road.h"
#include "tour/Stage.h"
#include "tour/Visits.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(Screens, NoneIsCutNoneOverlapsAndEveryControlHasAName) {
  const TempData data;
  const QTemporaryDir settings;
  const Clock clock(QDateTime(QDate(2026, 11, 23), QTime(10, 0)));
  WriteDemonstrationBooks(data.Data(), clock.Today());
  Stage stage(data.Root(), settings.filePath(u"settings.ini"_s), clock);
  const QScreen& display = *QGuiApplication::primaryScreen();
  // The display is the one asked for: a walk elsewhere would prove nothing.
  EXPECT_TRUE(qEnvironmentVariable("WALK").startsWith(
      u"%1x%2-%3-"_s.arg(display.size().width() * display.devicePixelRatio())
          .arg(display.size().height() * display.devicePixelRatio())
          .arg(QGuiApplication::font().pointSize())));
  stage.Window().resize(display.availableSize());
  Robot robot(QStringLiteral(WALK_PICTURES) + u'/' + qEnvironmentVariable("WALK"));
  std::set<QString> unseen = kScreens;
  robot.SetInspector([&](QWidget* window, const QString& screen) {
    unseen.erase(screen);
    for (const QString& fault : FaultsOf(window)) {
      ADD_FAILURE() << screen.toStdString() << ": " << fault.toStdString();
    }
    for (const QString& control : UnnamedControls(window)) {
      ADD_FAILURE() << screen.toStdString() << ": без имени " << control.toStdString();
    }
  });

  stage.Play(robot, [](Robot& player) {
    OpenDatabaseByHand(player, u"Демонстрационная база"_s);
    PlayRoad(player);
    VisitScreens(player);
  });

  for (const QString& screen : unseen) ADD_FAILURE() << screen.toStdString() << " was not seen";
}

}  // namespace
}  // namespace kladez
