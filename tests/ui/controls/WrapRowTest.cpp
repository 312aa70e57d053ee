#include <gtest/gtest.h>

#include <QWidget>

#include "ui/controls/WrapRow.h"

namespace kladez {
namespace {

QWidget* Box(QWidget* parent, int width) {
  auto* box = new QWidget(parent);
  box->setFixedSize(width, 20);
  return box;
}

TEST(WrapRow, GoesOnInTheNextLineKeepsGroupsWholeAndItsMargins) {
  QWidget window;
  auto* row = new WrapRow(10, 5);
  row->setContentsMargins(8, 1, 8, 1);
  window.setLayout(row);
  QWidget* first = Box(&window, 100);
  QWidget* option = Box(&window, 60);
  QWidget* field = Box(&window, 60);
  QWidget* last = Box(&window, 50);
  row->addWidget(first);
  row->AddGroup({option, field}, 4);
  row->AddStretch();
  row->addWidget(last);

  EXPECT_EQ(row->heightForWidth(400), 22);
  EXPECT_EQ(row->heightForWidth(230), 47);  // 100 + 10 + 124 do not fit beside the margins
  EXPECT_EQ(row->minimumSize().width(), 124 + 16);

  row->setGeometry(QRect(0, 0, 400, 22));
  EXPECT_EQ(first->pos(), QPoint(8, 1));
  EXPECT_EQ(last->geometry().right() + 1, 400 - 8);

  row->setGeometry(QRect(0, 0, 230, 47));
  EXPECT_EQ(first->y(), 1);
  EXPECT_EQ(option->y(), 26);
  EXPECT_EQ(field->pos(), QPoint(8 + 60 + 4, 26));
  EXPECT_EQ(last->geometry().right() + 1, 230 - 8);

  // With more height than the lines take they stand in the middle.
  row->setGeometry(QRect(0, 0, 400, 42));
  EXPECT_EQ(first->y(), 11);
}

}  // namespace
}  // namespace kladez
