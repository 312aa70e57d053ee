#include <filesystem>
#include <random>

#include "SmallBooks.h"
#include "books/stock/OnHand.h"
#include "books/stock/PrefixIndex.h"

namespace kladez {
namespace {

// Name, unit, price of each item; a name that begins with a blank is a group.
QByteArray Goods(const QStringList& names) {
  QStringList lines;
  for (const QString& name : names) {
    lines.append(name);
    if (!name.startsWith(u' ')) lines += u"Россия|-|шт.|10.00"_lines;
  }
  return EncodeLines(lines);
}

QStringList Shown(const OnHandList& list) {
  QStringList shown;
  for (const OnHandRow& row : list.Rows()) {
    shown.append(row.IsGroup() ? row.name : row.name + u'=' + row.quantity);
  }
  return shown;
}

struct JoinCase {
  const char* name;
  QStringList goods;
  std::vector<QStringList> ledgers;
  GoodsView view;
  QStringList shown;
  QString status;
};

void PrintTo(const JoinCase& c, std::ostream* out) { *out << c.name; }

class Joining : public testing::TestWithParam<JoinCase> {};

TEST_P(Joining, ShowsTheseQuantities) {
  const JoinCase& c = GetParam();
  OnHandJoin join(Goods(c.goods), c.view);
  for (const QStringList& lines : c.ledgers) join.Add(EncodeLines(lines));
  const OnHandList list = join.Take();
  EXPECT_EQ(Shown(list), c.shown);
  EXPECT_EQ(list.StatusText(), c.status);
}

const JoinCase kJoinCases[] = {
    {"NoStock",
     {u" Чай"_s, u"Ассам"_s},
     {{}},
     GoodsView::kGroups,
     {u" Чай"_s, u"Ассам=0"_s},
     u"Итого наименований: 0     на сумму: 0.00"_s},
    {"RecordsOfOneNameAndOfAllWarehousesSum",
     {u"Ассам"_s, u"Кимун"_s},
     {u"Ассам|5|шт.| группа|Ассам|- 1.5|шт."_lines, u"Кимун|2,5|0"_lines, u"Ассам|1|шт."_lines},
     GoodsView::kGroups,
     {u"Ассам=4.5"_s, u"Кимун=2.5"_s},
     u"Итого наименований: 2     на сумму: 70.00"_s},
    {"AShorterNameAddsToTheFirstLongerRowThatItBegins",
     u"Чай зелёный|Чай|Чай чёрный"_lines,
     {u"Чай|3|шт.|Чай ч|4|шт."_lines},
     GoodsView::kGroups,
     u"Чай зелёный=3|Чай=0|Чай чёрный=4"_lines,
     u"Итого наименований: 2     на сумму: 70.00"_s},
    {"LetterCaseCountsAndLostNamesAreNotSeen",
     {u"Чай"_s},
     {u"чай|3|шт.|Чай чёрный|4|шт."_lines},
     GoodsView::kGroups,
     {u"Чай=0"_s},
     u"Итого наименований: 0     на сумму: 0.00"_s},
    {"TheFirstRowIsThatOfTheListAsItIsShown",
     u" Б|Чай чёрный| А|Чай белый"_lines,
     {u"Чай|3|шт."_lines},
     GoodsView::kGoodsOnly,
     {u"Чай белый=3"_s, u"Чай чёрный=0"_s},
     u"Итого наименований: 1     на сумму: 30.00"_s},
    {"NegativeStockCountsAndLowersTheSum",
     {u"Ассам"_s, u"Кимун"_s},
     {u"Ассам|-2|шт.|Кимун|много|шт."_lines},
     GoodsView::kGroups,
     {u"Ассам=-2"_s, u"Кимун=0"_s},
     u"Итого наименований: 1     на сумму: -20.00"_s},
    {"TenthsThatCancelLeaveNothing",
     {u"Ассам"_s},
     {u"Ассам|0.1|кг|Ассам|0.2|кг|Ассам|-0.3|кг"_lines},
     GoodsView::kGroups,
     {u"Ассам=0"_s},
     u"Итого наименований: 0     на сумму: 0.00"_s},
    {"ARecordWithoutANameGivesNoStockToAGroup",
     {u" Чай"_s, u"Ассам"_s},
     {u"|5|шт."_lines},
     GoodsView::kGroups,
     {u" Чай"_s, u"Ассам=0"_s},
     u"Итого наименований: 0     на сумму: 0.00"_s},
};
INSTANTIATE_TEST_SUITE_P(OnHand, Joining, testing::ValuesIn(kJoinCases),
                         [](const auto& test) { return test.param.name; });

// Against the plain walk over all names, on names that often begin each other.
TEST(OnHandIndex, FindsTheFirstRowThatBeginsSo) {
  std::mt19937 random(20261122);
  const auto text = [&](int longest) {
    QByteArray name;
    for (int n = static_cast<int>(random() % (longest + 1)); n > 0; --n) {
      name.append("aab \xFF"[random() % 5]);
    }
    return name;
  };
  for (int round = 0; round < 200; ++round) {
    std::vector<QByteArray> names(random() % 70);
    for (QByteArray& name : names) name = text(random() % 4 == 0 ? 14 : 5);
    PrefixIndex index(std::vector<QByteArrayView>(names.begin(), names.end()));
    std::vector<QByteArray> asked(100);
    for (QByteArray& one : asked) one = text(10);
    std::vector<QByteArrayView> together;
    std::vector<int> rows;
    // Asked in one order again and again, then in others.
    for (int i = 0; i < 1000; ++i) {
      together.push_back(asked[i < 500 ? i % asked.size() : random() % asked.size()]);
      if (random() % 9 != 0 && i < 999) continue;
      index.FirstBeginnings(together, rows);
      ASSERT_EQ(rows.size(), together.size());
      for (size_t at = 0; at < rows.size(); ++at) {
        const auto first = std::find_if(names.begin(), names.end(), [&](const QByteArray& name) {
          return name.startsWith(together[at]);
        });
        EXPECT_EQ(rows[at], first == names.end() ? -1 : static_cast<int>(first - names.begin()))
            << together[at].toByteArray().toStdString();
      }
      together.clear();
    }
  }
}

class OnHandFiles : public testing::Test {
 protected:
  OnHandFiles() {
    SmallBooks(temp_.Data(), session_)
        .Goods(DecodeLines(Goods(u" Чай|Ассам|Кимун|Пуэр"_lines)))
        .Ledger(u"Лавка"_s, u"Пуэр|7|кор.| группа|Ассам|5|шт.|Сенча|9|шт.|Кимун|0|шт."_lines);
  }
  OnHandList Load() const {
    return LoadOnHand(temp_.Data(), session_, {u"Лавка"_s}, GoodsView::kGroups);
  }
  QStringList Ledger() const { return temp_.Lines(u"0001\\Лавка\\товар.usl"_s); }

  TempData temp_;
  Session session_;
};

TEST_F(OnHandFiles, ACorrectionRewritesTheLedgerFromTheList) {
  OnHandList list = Load();
  ASSERT_TRUE(list.ChangeQuantity(1, u"12"_s));
  SaveOnHand(list, temp_.Data(), session_, u"Лавка"_s);
  EXPECT_EQ(Ledger(), (u"Ассам|12|шт.|Пуэр|7|шт."_lines));
}

TEST_F(OnHandFiles, OnlyTheTextZeroDropsARow) {
  OnHandList list = Load();
  ASSERT_TRUE(list.ChangeQuantity(1, u"0.00"_s));
  ASSERT_TRUE(list.ChangeQuantity(3, u"0"_s));
  SaveOnHand(list, temp_.Data(), session_, u"Лавка"_s);
  EXPECT_EQ(Ledger(), (u"Ассам|0.00|шт."_lines));
}

TEST_F(OnHandFiles, ZeroingKeepsTheRowsThatHadStock) {
  OnHandList list = Load();
  ZeroOnHand(list, temp_.Data(), session_, u"Лавка"_s);
  EXPECT_EQ(Ledger(), (u"Ассам|0|0|Пуэр|0|0"_lines));
  EXPECT_EQ(Load().StatusText(), u"Итого наименований: 0     на сумму: 0.00"_s);
}

TEST_F(OnHandFiles, NothingToWriteForAGroupTheSameTextOrNoNumber) {
  OnHandList list = Load();
  EXPECT_FALSE(list.ChangeQuantity(0, u"5"_s));
  EXPECT_FALSE(list.ChangeQuantity(1, u"5"_s));
  EXPECT_FALSE(list.ChangeQuantity(1, u"пять"_s));
  EXPECT_TRUE(list.ChangeQuantity(1, u"5.0"_s)) << "texts are compared, not numbers";
}

TEST_F(OnHandFiles, AMissingLedgerIsTold) {
  EXPECT_THROW(LoadOnHand(temp_.Data(), session_, {u"Лавка"_s, u"Подвал"_s}, GoodsView::kGroups),
               std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
