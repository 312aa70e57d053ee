#include "ScreenDriver.h"
#include "ui/controls/DialogsFirst.h"

namespace kladez {
namespace {

TEST(DialogsFirst, WhatStandsBelowADialogClosesOnlyAfterIt) {
  QWidget main_window;
  main_window.setAttribute(Qt::WA_QuitOnClose, false);
  auto* screen = new QWidget(&main_window);
  screen->setAttribute(Qt::WA_DeleteOnClose);
  const QPointer<QWidget> screen_is_there(screen);
  QWidget other;
  other.setAttribute(Qt::WA_QuitOnClose, false);
  other.show();
  ShowActive(&main_window);
  const DialogsFirst dialogs_first;

  {
    QDialog dialog(screen);
    QTimer::singleShot(0, &dialog, [&] {
      EXPECT_FALSE(screen->close());
      EXPECT_FALSE(main_window.close());
      EXPECT_TRUE(other.close());
      QTest::qWait(1);
      EXPECT_TRUE(screen_is_there);
      EXPECT_TRUE(main_window.isVisible());
      EXPECT_TRUE(dialog.close());
    });
    dialog.exec();
  }

  EXPECT_TRUE(screen->close());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !screen_is_there; }));
  EXPECT_TRUE(main_window.close());
}

}  // namespace
}  // namespace kladez
