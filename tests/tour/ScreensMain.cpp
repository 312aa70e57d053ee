// main of the walk through all screens. WALK names the display ("1024x768-14-1": pixels of the
// device, points of the font, scale), so that the same walk is made on a small display, a large
// one, with large letters, and at double scale.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QStandardPaths>

#include "tour/OffscreenDisplay.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("WALK")) qputenv("WALK", "1024x768-9-1");
  const QStringList walk = qEnvironmentVariable("WALK").split(QLatin1Char('-'));
  const QStringList size = walk.value(0).split(QLatin1Char('x'));
  qputenv("QT_SCALE_FACTOR", walk.value(2).toLatin1());
  const auto display =
      kladez::UseOffscreenDisplay(QSize(size.value(0).toInt(), size.value(1).toInt()));
  QApplication application(argc, argv);
  QFont font = QApplication::font();
  font.setPointSize(walk.value(1).toInt());
  QApplication::setFont(font);
  QStandardPaths::setTestModeEnabled(true);
  return RUN_ALL_TESTS();
}
