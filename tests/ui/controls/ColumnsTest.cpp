#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QWidget>

#include "ui/controls/Columns.h"

namespace kladez {
namespace {

QWidget* Box(QWidget* parent, int width, int height) {
  auto* box = new QWidget(parent);
  box->setMinimumSize(width, height);
  return box;
}

TEST(Columns, AsManyStandSideBySideAsHaveRoom) {
  QWidget window;
  auto* columns = new Columns(10);
  columns->setContentsMargins(5, 1, 5, 2);
  window.setLayout(columns);
  QWidget* first = Box(&window, 100, 20);
  QWidget* second = Box(&window, 140, 30);
  QWidget* third = Box(&window, 100, 40);
  columns->Add(first);
  columns->Add(second, 2);
  columns->Add(third);
  EXPECT_EQ(columns->minimumSize().width(), 140 + 10);
  EXPECT_EQ(columns->heightForWidth(370), 40 + 3);
  EXPECT_EQ(columns->heightForWidth(369), 30 + 10 + 40 + 3);
  EXPECT_EQ(columns->heightForWidth(259), 20 + 10 + 30 + 10 + 40 + 3);

  // By weight where there is more than they need; all as high as the highest.
  columns->setGeometry(QRect(0, 0, 430, 43));
  EXPECT_EQ(first->geometry(), QRect(5, 1, 100, 40));
  EXPECT_EQ(second->geometry(), QRect(115, 1, 200, 40));
  EXPECT_EQ(third->geometry(), QRect(325, 1, 100, 40));
  // None below what it needs.
  columns->setGeometry(QRect(0, 0, 370, 43));
  EXPECT_EQ(second->width(), 140);
  EXPECT_EQ(third->geometry().right() + 1, 365);

  // The last line takes the height that is left.
  columns->setGeometry(QRect(0, 0, 310, 103));
  EXPECT_EQ(first->geometry(), QRect(5, 1, 100, 30));
  EXPECT_EQ(second->geometry(), QRect(115, 1, 190, 30));
  EXPECT_EQ(third->geometry(), QRect(5, 41, 300, 60));
}

TEST(Columns, ALayoutWithoutWeightGetsWhatItNeedsAndGoesWithItsColumns) {
  QWidget window;
  auto* columns = new Columns(10);
  window.setLayout(columns);
  QWidget* field = Box(&window, 50, 20);
  columns->Add(field);
  for (int i = 0; i < 3; ++i) {
    auto* commands = new QHBoxLayout;
    commands->setContentsMargins(0, 0, 0, 0);
    commands->addWidget(Box(&window, 60, 20));
    columns->Add(commands, 0);
  }
  columns->setGeometry(QRect(0, 0, 400, 20));
  EXPECT_EQ(field->width(), 400 - 3 * 70);
  columns->setGeometry(QRect(0, 0, 60, 110));
  EXPECT_EQ(columns->itemAt(3)->geometry(), QRect(0, 90, 60, 20));
}

}  // namespace
}  // namespace kladez
