#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

#include "ScreenDriver.h"
#include "ui/controls/Fields.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class RecordListTest : public ::testing::Test {
 protected:
  RecordListTest() {
    list.SetRecords(&model);
    field.setParent(&window);
    list.setParent(&window);
    list.setGeometry(0, 40, 400, 200);
    ShowActive(&window);
  }

  std::vector<QString> rows = {u" Чай"_s, u"Ассам"_s, u"ассорти"_s, u"Ёлочный"_s};
  std::vector<bool> ticks = {false, false, false, false};
  RecordModel model{
      {{u"Наименование"_s, 3100, false, true}, {u"Кол-во"_s, 1050, true}, {u"Файл"_s, 0}},
      {.count = [this] { return static_cast<int>(rows.size()); },
       .text = [this](int row, int column) { return column == 0 ? rows[row] : u"1"_s; },
       .is_group = [this](int row) { return rows[row].startsWith(u' '); },
       .checked = [this](int row) { return ticks[row]; },
       .set_checked = [this](int row, bool on) { ticks[row] = on; }}};
  QWidget window;
  RecordList list;
  TextLine field;
};

TEST_F(RecordListTest, TheModelKeepsItsPromisesThroughChanges) {
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.Insert(1, [&] {
    rows.insert(rows.begin() + 1, u"Новый"_s);
    ticks.push_back(false);
  });
  model.Remove(0, [&] { rows.erase(rows.begin()); });
  rows.clear();
  model.Reset();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(RecordListTest, GroupsAreBoldAndPureBlue) {
  const QModelIndex group = model.index(0, 0);
  EXPECT_TRUE(group.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(group.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0, 0, 255));
  EXPECT_FALSE(model.index(1, 0).data(Qt::ForegroundRole).isValid());
}

TEST_F(RecordListTest, SearchFindsTheFirstRowThatBeginsSoWhateverTheCase) {
  ASSERT_TRUE(list.SelectFirstBeginning(u"АССО"_s));
  EXPECT_EQ(list.CurrentRow(), 2);
  ASSERT_TRUE(list.SelectFirstBeginning(u"ас"_s));
  EXPECT_EQ(list.CurrentRow(), 1);
  ASSERT_TRUE(list.SelectFirstBeginning(u" ч"_s));
  EXPECT_EQ(list.CurrentRow(), 0);
  EXPECT_FALSE(list.SelectFirstBeginning(u"чай"_s)) << "the blank of a group counts";
}

TEST_F(RecordListTest, TypingInTheListStartsANewSearchInTheField) {
  WireSearch(&field, &list);
  field.setText(u"старое"_s);
  list.setFocus();
  Type(&list, u"ё"_s);
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(field.text(), u"ё"_s);
  EXPECT_EQ(list.CurrentRow(), 3);
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_TRUE(list.hasFocus());
}

TEST_F(RecordListTest, KeysOfTheListAreCommandsAndNeverSearchText) {
  QSignalSpy typed(&list, &RecordList::CharacterTyped);
  QSignalSpy insert(&list, &RecordList::InsertPressed);
  QSignalSpy remove(&list, &RecordList::DeletePressed);
  QSignalSpy enter(&list, &RecordList::EnterPressed);
  QSignalSpy divide(&list, &RecordList::DividePressed);
  for (const int key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter})
    QTest::keyClick(&list, static_cast<Qt::Key>(key));
  QTest::keyClick(&list, Qt::Key_Slash, Qt::KeypadModifier);
  EXPECT_EQ(insert.count(), 1);
  EXPECT_EQ(remove.count(), 1);
  EXPECT_EQ(enter.count(), 2);
  EXPECT_EQ(divide.count(), 1);
  EXPECT_EQ(typed.count(), 0);
}

TEST_F(RecordListTest, ADivideKeyThatIsNoCommandIsSearchText) {
  QSignalSpy typed(&list, &RecordList::CharacterTyped);
  QTest::keyClick(&list, Qt::Key_Slash, Qt::KeypadModifier);
  ASSERT_EQ(typed.count(), 1);
  EXPECT_EQ(typed[0][0].toString(), u"/"_s);
}

TEST_F(RecordListTest, TheSpaceKeyTicksTheRowOfTheWorkingCopy) {
  list.SelectRow(1);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(ticks, (std::vector<bool>{false, true, false, false}));
}

TEST_F(RecordListTest, AColumnOfWidthZeroIsHidden) {
  EXPECT_TRUE(list.isColumnHidden(2));
  EXPECT_EQ(list.columnWidth(1), 70);
}

}  // namespace
}  // namespace kladez
