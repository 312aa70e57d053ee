// main of every test binary that opens windows; the platform is offscreen unless told otherwise.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "DialogWatch.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QStandardPaths::setTestModeEnabled(true);
  const kladez::DialogWatch watch;
  return RUN_ALL_TESTS();
}
