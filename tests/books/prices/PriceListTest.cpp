#include <algorithm>

#include "TempData.h"
#include "books/prices/PriceList.h"

namespace kladez {
namespace {

const QStringList kGoods =
    u" Чай|Чай чёрный|Индия|-|пач.|45| Кофе|Кофе|Йемен|-|кг|1,5|Ёлка|Россия|-|"
    u"шт.|много"_lines;

// A list as a person sees it: tick, name, unit and both prices, parted by bars.
QStringList Shown(const PriceList& list) {
  QStringList shown;
  for (const PriceRow& row : list.Rows()) {
    QString text = row.ticked ? u"+"_s : QString();
    text += row.name;
    if (!row.IsGroup()) text += u'|' + row.unit + u'|' + row.purchase + u'|' + row.sale;
    shown.append(text);
  }
  return shown;
}

PriceList Load(const QStringList& goods, const QStringList& prices, const QStringList& marked,
               GoodsView view = GoodsView::kGroups) {
  return {EncodeLines(goods), EncodeLines(prices), EncodeLines(marked), view};
}

struct Case {
  const char* name;
  QStringList goods;
  QStringList prices;
  QStringList marked;
  GoodsView view;
  QStringList shown;
};

void PrintTo(const Case& c, std::ostream* out) { *out << c.name; }

class Loading : public testing::TestWithParam<Case> {};

TEST_P(Loading, ShowsTheseRows) {
  const Case& c = GetParam();
  EXPECT_EQ(Shown(Load(c.goods, c.prices, c.marked, c.view)), c.shown);
}

const QStringList kTwins = u"Мёд|||кг|1|Мёд|||л|2"_lines;

const Case kCases[] = {
    {"EmptyListShowsThePurchasePriceAsSalePrice",
     kGoods,
     {},
     {},
     GoodsView::kGroups,
     {u" Чай"_s, u"Чай чёрный|пач.|45.00|45.00"_s, u" Кофе"_s, u"Кофе|кг|1.50|1.50"_s,
      u"Ёлка|шт.|0.00|0.00"_s}},
    {"SalePriceOfTheListAndPurchasePriceOfTheDirectory",
     kGoods,
     u" Кофе|Кофе|г|999|7.125|Чай чёрный|пач.|1.00|дорого"_lines,
     {},
     GoodsView::kGroups,
     {u" Чай"_s, u"Чай чёрный|пач.|45.00|0.00"_s, u" Кофе"_s, u"Кофе|кг|1.50|7.13"_s,
      u"Ёлка|шт.|0.00|0.00"_s}},
    {"NamesAreJoinedExactlyAndLostOnesDropped",
     kGoods,
     u"Чай|||1|чай чёрный|||2|Чай чёрный |||3"_lines,
     {u"Чай"_s, u"кофе"_s},
     GoodsView::kGroups,
     {u" Чай"_s, u"Чай чёрный|пач.|45.00|45.00"_s, u" Кофе"_s, u"Кофе|кг|1.50|1.50"_s,
      u"Ёлка|шт.|0.00|0.00"_s}},
    {"FirstRowOfANameGetsPriceAndTick",
     kTwins,
     u"Мёд|кг|1.00|5.00"_lines,
     {u"Мёд"_s},
     GoodsView::kGroups,
     {u"+Мёд|кг|1.00|5.00"_s, u"Мёд|л|2.00|2.00"_s}},
    {"AMarkWithoutARowDoesNotStopTheOthers",
     kGoods,
     {},
     {u"Чай зелёный"_s, u"Ёлка"_s},
     GoodsView::kGroups,
     {u" Чай"_s, u"Чай чёрный|пач.|45.00|45.00"_s, u" Кофе"_s, u"Кофе|кг|1.50|1.50"_s,
      u"+Ёлка|шт.|0.00|0.00"_s}},
    {"GoodsAloneAreSortedAndGroupsLeftOut",
     kGoods,
     u" Чай|Кофе|кг|0.00|9.00"_lines,
     {u"Кофе"_s},
     GoodsView::kGoodsOnly,
     {u"Ёлка|шт.|0.00|0.00"_s, u"+Кофе|кг|1.50|9.00"_s, u"Чай чёрный|пач.|45.00|45.00"_s}},
    {"ACutListReadsItsLastPriceAsZero",
     kGoods,
     {u"Чай чёрный"_s, u"пач."_s},
     {},
     GoodsView::kGroups,
     {u" Чай"_s, u"Чай чёрный|пач.|45.00|0.00"_s, u" Кофе"_s, u"Кофе|кг|1.50|1.50"_s,
      u"Ёлка|шт.|0.00|0.00"_s}},
};
INSTANTIATE_TEST_SUITE_P(PriceList, Loading, testing::ValuesIn(kCases),
                         [](const auto& test) { return test.param.name; });

TEST(PriceListFiles, LoadingTellsHowMuchOfTheListIsRead) {
  QStringList prices;
  for (int i = 0; i < 1000; ++i) prices += u"Кофе|кг|1.50|2.00"_lines;
  std::vector<double> told;
  const PriceList list(EncodeLines(kGoods), EncodeLines(prices), {}, GoodsView::kGroups,
                       Progress([&](double part) {
                         told.push_back(part);
                         return true;
                       }));
  EXPECT_GE(told.size(), 90u);
  EXPECT_LE(told.size(), 101u);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_LT(told.back(), 1.0);
}

TEST(PriceListFiles, GroupsAreOneLineAndGoodsFour) {
  PriceList list = Load(kGoods, u"Кофе|кг|1.50|2.00"_lines, {});
  list.SetTick(1, true);
  list.SetTick(4, true);
  EXPECT_EQ(DecodeLines(list.PriceBytes()),
            (u" Чай|Чай чёрный|пач.|45.00|45.00| Кофе|Кофе|кг|1.50|2.00|Ёлка|шт.|0.00|"
             u"0.00"_lines));
  EXPECT_EQ(DecodeLines(list.MarkedBytes()), (QStringList{u"Чай чёрный"_s, u"Ёлка"_s}));
}

TEST(PriceListRows, APickGoesBelowTheCurrentRowWithTheQuantityInTheSalePriceColumn) {
  const GoodsPick item{u"Сахар"_s, u"12"_s, u"кг"_s, u"30"_s, u"30.00"_s, false};
  const GoodsPick group{u" Бакалея"_s, {}, {}, {}, {}, true};
  PriceList list = Load(kGoods, {}, {});
  EXPECT_EQ(list.InsertPick(0, item), 1);
  EXPECT_EQ(list.InsertPick(5, group), 6);
  EXPECT_EQ(list.InsertPick(-1, item), 7);
  EXPECT_EQ(Shown(list),
            (QStringList{u" Чай"_s, u"Сахар|кг|30.00|12"_s, u"Чай чёрный|пач.|45.00|45.00"_s,
                         u" Кофе"_s, u"Кофе|кг|1.50|1.50"_s, u"Ёлка|шт.|0.00|0.00"_s, u" Бакалея"_s,
                         u"Сахар|кг|30.00|12"_s}));
  EXPECT_TRUE(list.Rows()[1].picked);
  EXPECT_FALSE(list.Rows()[2].picked);

  PriceList empty;
  EXPECT_EQ(empty.InsertPick(0, item), 0);
}

TEST(PriceListRows, OnlyGoodsTakeANewPriceAndOnlyANumber) {
  PriceList list = Load(kGoods, {}, {});
  EXPECT_FALSE(list.SetSalePrice(0, u"5"_s));
  EXPECT_FALSE(list.SetSalePrice(1, u"дорого"_s));
  EXPECT_TRUE(list.SetSalePrice(1, u"5.005"_s));
  EXPECT_EQ(Shown(list)[0], u" Чай"_s);
  EXPECT_EQ(Shown(list)[1], u"Чай чёрный|пач.|45.00|5.01"_s);
}

TEST(PriceListRows, PasteTakesEveryRowAsItStandsAndKeepsTicksOfTheSameGoods) {
  PriceList list = Load(kGoods, {}, {u"Кофе"_s, u"Ёлка"_s}, GoodsView::kGoodsOnly);
  list.Paste(EncodeLines(u" Разное|Кофе|кг|1|3|Кофе|кг|1|4|Арбуз|шт.|2.00|нет"_lines));
  EXPECT_EQ(Shown(list), (QStringList{u" Разное"_s, u"+Кофе|кг|1|3"_s, u"Кофе|кг|1|4"_s,
                                      u"Арбуз|шт.|2.00|нет"_s}));
}

}  // namespace
}  // namespace kladez
