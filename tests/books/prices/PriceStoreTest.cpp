#include <filesystem>

#include "SmallBooks.h"
#include "books/prices/PriceStore.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

const QString kShop = u"Лавка"_s;

class Prices : public testing::Test {
 protected:
  Prices() : store_(temp_.Data(), session_) {
    SmallBooks(temp_.Data(), session_).Goods(u" Чай|Чай|Индия|-|пач.|45.00"_lines);
    temp_.PutLines(u"0001\\marked"_s, {u"Чай"_s});
    temp_.PutLines(u"0001\\Лавка\\price.usd"_s, u"Розница|Опт|Опт"_lines);
    temp_.PutLines(u"0001\\Лавка\\PRICE\\0002.prc"_s, PriceLines(u"2.00"_s));
    temp_.PutLines(u"0001\\Лавка\\PRICE\\0001.PRC"_s, PriceLines(u"1.00"_s));
    temp_.PutLines(u"0001\\Лавка\\PRICE\\0000.txt"_s, {u"не прайс"_s});
  }

  static QStringList PriceLines(const QString& sale) {
    return {u" Чай"_s, u"Чай"_s, u"пач."_s, u"45.00"_s, sale};
  }
  QString SaleOf(int index) const {
    return store_.Load(kShop, index, GoodsView::kGroups).Rows().at(1).sale;
  }

  TempData temp_;
  Session session_;
  PriceStore store_;
};

TEST_F(Prices, AListIsTheFileInItsPlaceOfTheListing) {
  EXPECT_EQ(store_.Names(kShop), (u"Розница|Опт|Опт"_lines));
  EXPECT_EQ(SaleOf(0), u"1.00"_s);
  EXPECT_EQ(SaleOf(1), u"2.00"_s);
  EXPECT_EQ(SaleOf(2), u"45.00"_s) << "a name without a file shows the purchase price";
}

TEST_F(Prices, WithoutANameFileThereAreNoLists) {
  EXPECT_EQ(store_.Names(u"Подвал"_s), QStringList());
  EXPECT_THROW(store_.Load(u"Подвал"_s, 0, GoodsView::kGroups), std::filesystem::filesystem_error);
}

TEST_F(Prices, SavingWritesTicksAndTheListOfThatPlaceOnly) {
  auto expected = temp_.Tree();
  PriceList list = store_.Load(kShop, 1, GoodsView::kGroups);
  list.SetTick(1, false);
  list.SetSalePrice(1, u"77"_s);
  store_.Save(list, kShop, 1);
  expected["0001/marked"] = "";
  expected["0001/Лавка/PRICE/0002.prc"] = EncodeLines(PriceLines(u"77.00"_s)).toStdString();
  EXPECT_EQ(temp_.Tree(), expected);
}

TEST_F(Prices, SavingInGoodsOnlyDropsTheGroupRows) {
  PriceList list = store_.Load(kShop, 0, GoodsView::kGoodsOnly);
  store_.Save(list, kShop, 0);
  EXPECT_EQ(temp_.Lines(u"0001\\Лавка\\PRICE\\0001.prc"_s), (u"Чай|пач.|45.00|1.00"_lines));
}

TEST_F(Prices, AListWithoutAFileIsNotSavedNorAreItsTicks) {
  PriceList list = store_.Load(kShop, 2, GoodsView::kGroups);
  list.SetTick(1, false);
  const auto before = temp_.Tree();
  EXPECT_THROW(store_.Save(list, kShop, 2), std::filesystem::filesystem_error);
  EXPECT_EQ(temp_.Tree(), before);
}

TEST_F(Prices, PasteCarriesACopyToAnotherListAndWritesNothingElse) {
  store_.Copy(store_.Load(kShop, 0, GoodsView::kGroups));
  EXPECT_EQ(temp_.Lines(u"temp.prc"_s), PriceLines(u"1.00"_s));
  auto expected = temp_.Tree();
  PriceList list = store_.Load(kShop, 1, GoodsView::kGroups);
  list.SetTick(1, false);
  EXPECT_TRUE(store_.Paste(list, kShop, 1));
  expected["0001/Лавка/PRICE/0002.prc"] = EncodeLines(PriceLines(u"1.00"_s)).toStdString();
  EXPECT_EQ(temp_.Tree(), expected);
  EXPECT_EQ(list.Rows().at(1).sale, u"1.00"_s);
  EXPECT_FALSE(list.Rows().at(1).ticked);
}

TEST_F(Prices, PasteWithoutACopyDoesNothing) {
  PriceList list = store_.Load(kShop, 1, GoodsView::kGroups);
  const auto before = temp_.Tree();
  EXPECT_FALSE(store_.Paste(list, kShop, 1));
  EXPECT_EQ(list.Rows().at(1).sale, u"2.00"_s);
  EXPECT_EQ(temp_.Tree(), before);
}

TEST_F(Prices, APasteThatFailsLeavesListAndTreeAsTheyWere) {
  store_.Copy(store_.Load(kShop, 0, GoodsView::kGroups));
  PriceList list = store_.Load(kShop, 1, GoodsView::kGroups);
  const auto before = temp_.Tree();
  syscalls::SetFaultHook([](std::string_view, const QByteArray&) { return ENOSPC; });
  EXPECT_THROW(store_.Paste(list, kShop, 1), std::filesystem::filesystem_error);
  syscalls::SetFaultHook({});
  EXPECT_EQ(list.Rows().at(1).sale, u"2.00"_s);
  EXPECT_EQ(temp_.Tree(), before);
}

}  // namespace
}  // namespace kladez
