// A walk through every screen of the program on the demonstration books.

#include <QGuiApplication>
#include <QScreen>
#include <set>

#include "Contrast.h"
#include "Inspection.h"
#include "Screens.h"
#include "ShownTexts.h"
#include "TempData.h"
#include "demo/DemoBooks.h"
#include "tour/Road.h"
#include "tour/Stage.h"
#include "tour/Visits.h"

namespace kladez {
namespace {

// Compares what the walk saw with the list that was read and approved by eye. The list as it is now
// stays in the folder of the pictures: copied over the approved one, it becomes that.
void ExpectApproved(const std::set<QString>& seen) {
  const QString now = QStringLiteral(WALK_PICTURES) + u"/texts.txt"_s;
  QFile file(now);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  for (const QString& line : seen) file.write(line.toUtf8() + '\n');

  QFile approved_file(QStringLiteral(SHOWN_TEXTS));
  ASSERT_TRUE(approved_file.open(QIODevice::ReadOnly));
  std::set<QString> approved;
  for (const QString& line : QString::fromUtf8(approved_file.readAll()).split(u'\n')) {
    if (!line.isEmpty()) approved.insert(line);
  }
  for (const QString& line : approved) {
    if (!seen.contains(line)) ADD_FAILURE() << "no longer shown: " << line.toStdString();
  }
  for (const QString& line : seen) {
    if (!approved.contains(line)) ADD_FAILURE() << "not approved: " << line.toStdString();
  }
}

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
  const QString pictures = QStringLiteral(WALK_PICTURES) + u'/' + qEnvironmentVariable("WALK");
  Robot robot(pictures);
  std::set<QString> unseen = kScreens;
  std::set<QString> texts;
  robot.SetInspector([&](QWidget* window, const QString& screen) {
    unseen.erase(screen);
    for (const QString& text : ShownTexts(window)) texts.insert(text);
    for (const QString& fault : FaultsOf(window)) {
      ADD_FAILURE() << screen.toStdString() << ": " << fault.toStdString();
    }
    // Colours are the same on every display.
    if (qEnvironmentVariable("WALK").startsWith(u"1024x768-9-")) {
      for (const QString& fault : FaintOf(window, pictures + u'/' + screen + u"-dark.png"_s)) {
        ADD_FAILURE() << screen.toStdString() << ": " << fault.toStdString();
      }
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
  // Letters and sizes change no text, so one display is enough.
  if (qEnvironmentVariable("WALK") == u"1024x768-9-1") ExpectApproved(texts);
}

}  // namespace
}  // namespace kladez
