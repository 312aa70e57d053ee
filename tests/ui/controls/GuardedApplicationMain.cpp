// The last guard needs an application of its own kind, so this is a program of its own.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "ui/controls/GuardedApplication.h"

// Of the leak checker: an error that goes through the toolkit leaves objects of its own behind.
extern "C" const char* __lsan_default_suppressions() { return "leak:libQt6"; }

namespace kladez {
namespace {

// Presses the only button of the message that comes up, and keeps its text.
QString MessageDuring(const std::function<void()>& action) {
  QString text;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    text = box->windowTitle() + QStringLiteral(": ") + box->text();
    box->buttons().first()->click();
  });
  timer.start(1);
  action();
  return text;
}

TEST(GuardedApplication, AnErrorThatACommandLetGoIsToldAndTheProgramGoesOn) {
  QPushButton button;
  int pressed = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] {
    ++pressed;
    throw std::runtime_error("disk on fire");
  });
  button.show();
  for (int i = 1; i <= 2; ++i) {
    EXPECT_EQ(MessageDuring([&] { QTest::mouseClick(&button, Qt::LeftButton); }),
              QStringLiteral("Внимание!: disk on fire"));
    EXPECT_EQ(pressed, i);
  }
  bool later = false;
  QTimer::singleShot(0, [&] { later = true; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return later; }));
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const kladez::GuardedApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
