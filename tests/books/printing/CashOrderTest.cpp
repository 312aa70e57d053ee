#include <gtest/gtest.h>

#include "books/printing/CashOrder.h"
#include "books/printing/InputError.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

PrintSource Source(const QString& total) {
  PrintSource source;
  source.number = u"7"_s;
  source.date = u"12.03.2026"_s;
  source.party = u"ООО <Ромашка> & Ко"_s;
  source.total = total;
  source.discount = u"10"_s;
  return source;
}

TEST(CashOrder, TakesTheTotalBeforeTheDiscountAndItsTaxes) {
  const PrintSource source = Source(u"1180.00"_s);
  PrintParameters parameters{u"50"_s, u"2"_s, DiscountOf(source, OrderDiscount::kNone), u"18"_s,
                             u"5"_s};
  CashOrder order;
  FillCashOrder(source, u"Фирма"_s, parameters, u"руб."_s, RoubleCurrency(), order);
  EXPECT_EQ(order.firm, u"Фирма"_s);
  EXPECT_EQ(order.number, u"7"_s);
  EXPECT_EQ(order.date, u"12.03.2026"_s);
  EXPECT_EQ(order.payer, u"ООО <Ромашка> & Ко"_s);
  EXPECT_EQ(order.grounds.toStdString(), "Накладная N7 от 12.03.2026");
  EXPECT_EQ(order.sum.toStdString(), "1180.00");
  EXPECT_EQ(order.words.toStdString(), "Одна тысяча сто восемьдесят рублей 00 копеек");
  EXPECT_EQ(order.included.toStdString(), "НДС: 180.00 руб. НСП: 59.00 руб.");
  parameters.discount = DiscountOf(source, OrderDiscount::kOfDocument);
  FillCashOrder(source, u"Фирма"_s, parameters, u"руб."_s, RoubleCurrency(), order);
  EXPECT_EQ(order.sum.toStdString(), "1062.00");
  EXPECT_EQ(order.words.toStdString(), "Одна тысяча шестьдесят два рубля 00 копеек");
  EXPECT_EQ(order.included.toStdString(), "НДС: 162.00 руб. НСП: 53.10 руб.");
}

TEST(CashOrder, AFailureKeepsWhatWasFilledAndNothingOfTheOrderBefore) {
  CashOrder order;
  order.included = u"НДС: 1.00 руб."_s;
  PrintParameters parameters;
  parameters.vat = u"?"_s;
  EXPECT_THROW(
      FillCashOrder(Source(u"10"_s), u"Фирма"_s, parameters, u"руб."_s, RoubleCurrency(), order),
      InputError);
  EXPECT_EQ(order.sum, u"10.00"_s);
  EXPECT_EQ(order.included, u""_s);
}

}  // namespace
}  // namespace kladez
