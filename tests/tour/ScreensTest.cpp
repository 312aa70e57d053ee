// A walk through every screen of the program on the demonstration books.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <set>

#include "Inspection.h"
#include "TempData.h"
#include "demo/DemoBooks.h"
#include "tour/Road.h"
#include "tour/Stage.h"
#include "tour/Visits.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Every screen has a place here; the walk must come by.
const std::set<QString> kScreens = {
    u"Bases"_s,      u"BasesImport"_s, u"BasesNew"_s,    u"Import"_s,      u"Main"_s,
    u"Price"_s,      u"PrihNakl"_s,    u"PrihNew"_s,     u"PrihPrint"_s,   u"Sklad"_s,
    u"TovPrih"_s,    u"TovPrih_Ass"_s, u"TovUhod"_s,     u"TovUhod_Ass"_s, u"UhodNew"_s,
    u"UhodSch"_s,    u"about"_s,       u"chFactPrint"_s, u"change"_s,      u"colvo"_s,
    u"currenc"_s,    u"frmSplash"_s,   u"graphic"_s,     u"helper"_s,      u"main2"_s,
    u"ost"_s,        u"otgr"_s,        u"otppr"_s,       u"otpruh"_s,      u"otrpt"_s,
    u"otspeed"_s,    u"prChange"_s,    u"price2"_s,      u"pricePrint"_s,  u"prihnokl"_s,
    u"rescopy"_s,    u"resrep"_s,      u"sprFirm"_s,     u"sprFirmNew"_s,  u"sprPost"_s,
    u"sprSklad"_s,   u"sprTovNew"_s,   u"sprTovar"_s,    u"sprklient"_s,   u"sprklientnew"_s,
    u"sprpostnew"_s, u"sprtovar2"_s,   u"vnNakl"_s,      u"vnutr"_s,       u"vnutrNew"_s,
    u"vnutr_Ass"_s,  u"waitplease"_s};

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
