#include "TempData.h"
#include "books/stock/OpeningBalances.h"

namespace kladez {
namespace {

class Opening : public testing::Test {
 protected:
  Opening() { session_.base_path = u"0001\\"_s; }

  static GoodsPick Pick(const QString& name, const QString& quantity, const QString& unit) {
    return {name, quantity, unit, u"1"_s, u"1.00"_s, name.startsWith(u' ')};
  }
  QStringList Book(const QStringList& ledger) {
    temp_.PutLines(u"0001\\Лавка\\товар.usl"_s, ledger);
    balances_.Book(temp_.Data(), session_, u"Лавка"_s);
    return temp_.Lines(u"0001\\Лавка\\товар.usl"_s);
  }

  TempData temp_;
  Session session_;
  OpeningBalances balances_;
};

TEST_F(Opening, AddsToWhatIsThereAndEntersWhatIsNot) {
  balances_.Add(Pick(u"Чай"_s, u"0.125"_s, u"пач."_s));
  balances_.Add(Pick(u"Мёд"_s, u"2.50"_s, u"кг"_s));
  balances_.Add(Pick(u"Чай"_s, u"4"_s, u"пач."_s));
  balances_.Add(Pick(u"Мёд"_s, u"1"_s, u"л"_s));
  EXPECT_EQ(Book(u" Группа|Чай|- 5|кор."_lines), (u" Группа|Чай|-0.875|кор.|Мёд|3.5|кг"_lines));
}

TEST_F(Opening, EveryLineOfTheLedgerIsComparedWithAName) {
  balances_.Add(Pick(u"шт."_s, u"3"_s, u"уп."_s));
  EXPECT_EQ(Book(u"Чай|1|шт.|2|7|кг"_lines), (u"Чай|1|шт.|5|7|кг"_lines));
}

TEST_F(Opening, APickedGroupIsNotBooked) {
  balances_.Add(Pick(u" Чай"_s, {}, {}));
  balances_.Add(Pick(u"Чай"_s, u"3"_s, u"пач."_s));
  EXPECT_FALSE(balances_.ChangeQuantity(0, u"5"_s));
  EXPECT_EQ(Book({}), (u"Чай|3|пач."_lines));
}

TEST_F(Opening, ChangedAndRemovedEntriesAreBookedAsTheyAreThen) {
  balances_.Add(Pick(u"Чай"_s, u"3"_s, u"пач."_s));
  balances_.Add(Pick(u"Мёд"_s, u"2"_s, u"кг"_s));
  EXPECT_FALSE(balances_.ChangeQuantity(1, u"2"_s));
  EXPECT_FALSE(balances_.ChangeQuantity(1, u"два"_s));
  EXPECT_TRUE(balances_.ChangeQuantity(1, u"2.0"_s));
  balances_.Remove(0);
  EXPECT_EQ(Book({}), (u"Мёд|2.0|кг"_lines));
}

}  // namespace
}  // namespace kladez
