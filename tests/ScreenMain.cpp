#include <gtest/gtest.h>

#include <QApplication>

// Screens are tested without a display, even where there is one: no window flashes up, and pictures
// come out alike everywhere.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
