#include "DirectoryWorld.h"
#include "books/directories/GoodsDirectory.h"

namespace kladez {
namespace {

GoodsRecord Goods(const QString& name, const QString& price = u"1.00"_s) {
  return {.name = name,
          .country = u"Россия"_s,
          .declaration = u"-"_s,
          .unit = u"шт."_s,
          .price = price};
}

GoodsRecord Group(const QString& name) {
  GoodsRecord group;
  group.name = u' ' + name;
  return group;
}

QStringList Names(const GoodsRows& rows) {
  QStringList names;
  for (const GoodsRecord& row : rows) names.append(row.name);
  return names;
}

class GoodsDirectoryTest : public testing::Test {
 protected:
  void PutGoods(const std::vector<GoodsRecord>& rows) {
    world_.Temp().Put(u"0001\\spr\\товар.spr"_s, WriteGoods(rows));
  }
  // A row whose name begins with a blank is a group.
  void PutNames(const QStringList& names) {
    std::vector<GoodsRecord> rows;
    for (const QString& name : names) {
      rows.push_back(name.startsWith(u' ') ? Group(name.mid(1)) : Goods(name));
    }
    PutGoods(rows);
  }
  GoodsDirectory Open(GoodsView view = GoodsView::kGroups) {
    return GoodsDirectory(world_.Data(), world_.CurrentSession(), view);
  }
  std::vector<GoodsRecord> File() {
    return ReadGoods(world_.Temp().Bytes(u"0001\\spr\\товар.spr"_s));
  }

  DirectoryWorld world_;
};

TEST_F(GoodsDirectoryTest, MovesKeepGoodsBelowTheFirstGroup) {
  struct Case {
    const char* fault;
    QStringList rows;
    int row;
    bool up;
    QStringList after;
    int selected;
  };
  const QStringList rows = u" Г|а|б| Д"_lines;
  const Case cases[] = {
      {"goods came before the first group", rows, 1, true, rows, 1},
      {"the first row moved up", rows, 0, true, rows, 0},
      {"the last row moved down", rows, 3, false, rows, 3},
      {"nothing selected", rows, -1, false, rows, -1},
      {"up", rows, 2, true, u" Г|б|а| Д"_lines, 1},
      {"down", rows, 1, false, u" Г|б|а| Д"_lines, 2},
      {"a group may take the first row", {u" Г"_s, u" Д"_s}, 1, true, {u" Д"_s, u" Г"_s}, 0},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.fault);
    PutNames(test.rows);
    GoodsDirectory directory = Open();
    EXPECT_EQ(test.up ? directory.MoveUp(test.row) : directory.MoveDown(test.row), test.selected);
    EXPECT_EQ(Names(directory.Rows()), test.after);
  }
}

TEST_F(GoodsDirectoryTest, GoodsAloneCannotBeMovedOutOfTheirOrder) {
  PutNames(u" Г|б|а"_lines);
  GoodsDirectory directory = Open(GoodsView::kGoodsOnly);
  EXPECT_EQ(directory.MoveDown(0), 0);
  EXPECT_EQ(directory.MoveUp(1), 1);
  EXPECT_EQ(Names(directory.Rows()), (QStringList{u"а"_s, u"б"_s}));
}

TEST_F(GoodsDirectoryTest, SortOrdersByGroupThenNameAndDropsEmptyGroups) {
  PutNames(u"ничьё| Яблоки|ёж|жёлудь|еловый| Пустая| авто|Шина|руль| Яблоки|Айва"_lines);
  GoodsDirectory directory = Open();
  directory.Sort();
  EXPECT_EQ(Names(directory.Rows()),
            (u"ничьё| авто|руль|Шина| Яблоки|Айва|еловый|ёж|жёлудь"_lines));
  EXPECT_EQ(Names(File()).size(), 11) << "sorting alone writes nothing";
}

TEST_F(GoodsDirectoryTest, LimitCountsTheRowsShown) {
  std::vector<GoodsRecord> rows = {Group(u"Г"_s)};
  while (rows.size() < 1001) rows.push_back(Goods(u"а"_s));
  PutGoods(rows);
  GoodsDirectory directory = Open();
  EXPECT_TRUE(directory.IsFull()) << "1001 rows, the group among them";
  directory.Reload(GoodsView::kGoodsOnly);
  EXPECT_FALSE(directory.IsFull()) << "1000 goods";
}

TEST_F(GoodsDirectoryTest, SwitchingSavesTheRowsButKeepsTheFormerFileAsTheCopy) {
  PutNames(u" Г|б|а"_lines);
  GoodsDirectory directory = Open();
  directory.MoveDown(1);
  directory.Insert(2, Goods(u"в"_s));
  directory.ShowGoodsOnly();
  EXPECT_EQ(Names(directory.Rows()), (u"а|б|в"_lines));
  EXPECT_EQ(Names(File()), (u" Г|а|б|в"_lines));
  directory.Save();
  EXPECT_EQ(Names(File()), (u" Г|б|а"_lines)) << "the copy undoes the move";
}

TEST_F(GoodsDirectoryTest, FailedSwitchKeepsGroupsAndUnsavedRows) {
  PutNames({u" Г"_s, u"б"_s});
  GoodsDirectory directory = Open();
  directory.Insert(1, Goods(u"а"_s));
  world_.Protect(u"spr\\товар.spr"_s);
  EXPECT_THROW(directory.ShowGoodsOnly(), std::filesystem::filesystem_error);
  EXPECT_EQ(directory.View(), GoodsView::kGroups);
  EXPECT_EQ(Names(directory.Rows()), (u" Г|б|а"_lines));
}

TEST_F(GoodsDirectoryTest, ChangeOfGoodsAloneGoesToTheFirstNameThatBeginsWithIt) {
  struct Case {
    const char* fault;
    int row;
    GoodsRecord changed;
    std::vector<GoodsRecord> file;
  };
  const std::vector<GoodsRecord> before = {Group(u"Г"_s), Goods(u"Чай чёрный"_s), Goods(u"Чай"_s),
                                           Goods(u"Кофе"_s)};
  const GoodsRecord coffee = Goods(u"Кофе"_s, u"9.00"_s);
  const GoodsRecord tea = Goods(u"Чай"_s, u"7.00"_s);
  const Case cases[] = {
      {"its own row", 0, coffee, {before[0], before[1], before[2], coffee}},
      {"a longer name above is the first", 1, tea, {before[0], tea, before[2], before[3]}},
      {"letter case counts", 0, Goods(u"КОФЕ"_s), before},
      {"a new name finds nothing", 0, Goods(u"Какао"_s), before},
      {"an empty name must not fall on the group", 0, Goods({}), before},
  };
  for (const Case& test : cases) {
    SCOPED_TRACE(test.fault);
    PutGoods(before);
    GoodsDirectory directory = Open(GoodsView::kGoodsOnly);
    const int row = directory.Change(test.row, test.changed);
    EXPECT_EQ(directory.Rows()[row], test.changed);
    directory.SaveChange(row);
    EXPECT_EQ(File(), test.file);
  }
}

TEST_F(GoodsDirectoryTest, ChangedNameTakesItsPlaceAmongGoodsAlone) {
  PutNames(u" Г|а|б|в"_lines);
  GoodsDirectory directory = Open(GoodsView::kGoodsOnly);
  EXPECT_EQ(directory.Change(0, Goods(u"бб"_s)), 1);
  EXPECT_EQ(Names(directory.Rows()), (u"б|бб|в"_lines));
}

TEST_F(GoodsDirectoryTest, PickSavesOnlyTheGroupView) {
  PutNames({u" Г"_s, u"б"_s});
  GoodsDirectory directory = Open(GoodsView::kGoodsOnly);
  directory.Remove(0);
  directory.SaveBeforePick();
  EXPECT_EQ(Names(File()), (QStringList{u" Г"_s, u"б"_s}));
  directory.Reload(GoodsView::kGroups);
  directory.Remove(1);
  directory.SaveBeforePick();
  EXPECT_EQ(Names(File()), (QStringList{u" Г"_s}));
}

TEST_F(GoodsDirectoryTest, OnHandIsAskedOfEveryRecordOfEveryWarehouse) {
  struct Case {
    const char* fault;
    QStringList first;
    QStringList second;
    bool on_hand;
  };
  const Case cases[] = {
      {"no record", {}, {}, false},
      {"zero", u"Чай|0.00|пач."_lines, {}, false},
      {"not a number", u"Чай|много|пач."_lines, {}, false},
      {"second warehouse", {}, u"Чай|1|пач."_lines, true},
      {"reversal", u"Чай|- 5|пач."_lines, {}, true},
      {"comma", u"Чай|0,5|пач."_lines, {}, true},
      {"second record", u"Чай|0|пач.| Г|Чай|2|пач."_lines, {}, true},
      {"a unit is no name", u"Кофе|5|Чай|3|3|3"_lines, {}, false},
      {"a longer name", u"Чай зелёный|5|пач."_lines, {}, false},
  };
  world_.CurrentSession().warehouses = {u"Главный склад"_s, u"Второй"_s};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.fault);
    world_.PutLines(u"Главный склад\\товар.usl"_s, test.first);
    world_.PutLines(u"Второй\\товар.usl"_s, test.second);
    EXPECT_EQ(IsOnHand(world_.Data(), world_.CurrentSession(), u"Чай"_s), test.on_hand);
  }
}

TEST_F(GoodsDirectoryTest, MissingLedgerIsNotTakenForAnEmptyOne) {
  world_.CurrentSession().warehouses = {u"Нет такого"_s};
  EXPECT_THROW(IsOnHand(world_.Data(), world_.CurrentSession(), u"Чай"_s),
               std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
