// main of the walk through all screens: the display and the font come from the environment, so that
// the same walk is made on a small display, a large one, with large letters, and at double scale.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QStandardPaths>

#include "tour/OffscreenDisplay.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QSize display(1024, 768);
  if (qEnvironmentVariableIsSet("WALK_DISPLAY")) {
    const QStringList size = qEnvironmentVariable("WALK_DISPLAY").split(QLatin1Char('x'));
    display = QSize(size.at(0).toInt(), size.at(1).toInt());
  }
  const auto config = kladez::UseOffscreenDisplay(display);
  QApplication application(argc, argv);
  if (const int points = qEnvironmentVariableIntValue("WALK_FONT"); points > 0) {
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  QStandardPaths::setTestModeEnabled(true);
  return RUN_ALL_TESTS();
}
