#include <gtest/gtest.h>

#include "books/printing/DocumentTotals.h"
#include "books/printing/InputError.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct TotalsCase {
  const char* what;
  QString total;
  PrintParameters parameters;
  TotalTexts totals;
};

TotalTexts TotalsOf(const QString& total, const PrintParameters& parameters,
                    const TaxStyle& style = {true, u" руб."_s}) {
  TotalTexts totals;
  totals.before = TotalBefore(total, parameters);
  FillTotals(parameters, style, RoubleCurrency(), totals);
  return totals;
}

PrintParameters Parameters(const QString& percent, const QString& rate, const QString& discount,
                           const QString& vat, const QString& sales_tax) {
  return {percent, rate, discount, vat, sales_tax};
}

TEST(DocumentTotals, EachStepTakesTheTextBeforeIt) {
  const TotalsCase cases[] = {
      {"plain",
       u"1180.00"_s,
       Parameters(u"100"_s, u"1"_s, u"0"_s, u"18"_s, u"0"_s),
       {u"1180.00"_s, u"180.00 руб."_s, u"0.00 руб."_s,
        u"Одна тысяча сто восемьдесят рублей 00 копеек"_s}},
      {"the tax is contained, taken after the discount; thousands are grouped",
       u"100000"_s,
       Parameters(u"100"_s, u"1"_s, u"10"_s, u"20"_s, u"5"_s),
       {u"100000.00"_s, u"15 000.00 руб."_s, u"4 500.00 руб."_s,
        u"Девяносто тысяч рублей 00 копеек"_s}},
      {"percentage and rate, with a decimal comma too",
       u"50.10"_s,
       Parameters(u"50,0"_s, u"31,5"_s, u"0"_s, u"0"_s, u"0"_s),
       {u"789.08"_s, u"0.00 руб."_s, u"0.00 руб."_s,
        u"Семьсот восемьдесят девять  рублей 08 копеек"_s}},
      {"half a kopeck goes up on the decimal digits",
       u"1.005"_s,
       Parameters(u"100"_s, u"1"_s, u"0"_s, u"18"_s, u"0"_s),
       {u"1.01"_s, u"0.15 руб."_s, u"0.00 руб."_s, u"Один рубль 01 копейка"_s}},
      // Half of 0.345 would be 0.17; the rounded 0.35 gives 0.18.
      {"the rounded total enters the discount",
       u"0.345"_s,
       Parameters(u"100"_s, u"1"_s, u"50"_s, u"100"_s, u"100"_s),
       {u"0.35"_s, u"0.09 руб."_s, u"0.18 руб."_s, u"18 копеек"_s}},
      {"all is given away",
       u"99.99"_s,
       Parameters(u"100"_s, u"1"_s, u"100"_s, u"18"_s, u"5"_s),
       {u"99.99"_s, u"0.00 руб."_s, u"0.00 руб."_s, u" 0 копеек"_s}},
  };
  for (const TotalsCase& c : cases) {
    SCOPED_TRACE(c.what);
    const TotalTexts got = TotalsOf(c.total, c.parameters);
    EXPECT_EQ(got.before.toStdString(), c.totals.before.toStdString());
    EXPECT_EQ(got.vat.toStdString(), c.totals.vat.toStdString());
    EXPECT_EQ(got.sales_tax.toStdString(), c.totals.sales_tax.toStdString());
    EXPECT_EQ(got.words.toStdString(), c.totals.words.toStdString());
  }
}

TEST(DocumentTotals, InvoicesDoNotGroupTheirTaxes) {
  EXPECT_EQ(TotalsOf(u"118000"_s, {}, {false, u"$"_s}).vat.toStdString(), "18000.00$");
}

// A field that is no number ends the load; what was filled before it stays on the screen.
TEST(DocumentTotals, AFailureKeepsWhatWasFilled) {
  PrintParameters parameters;
  parameters.sales_tax = u"пять"_s;
  TotalTexts totals;
  totals.before = TotalBefore(u"118"_s, parameters);
  EXPECT_THROW(FillTotals(parameters, {}, RoubleCurrency(), totals), InputError);
  EXPECT_EQ(totals.vat.toStdString(), "18.00");
  EXPECT_EQ(totals.sales_tax.toStdString(), "");
  EXPECT_EQ(totals.words.toStdString(), "118.00");
}

TEST(DocumentTotals, NoNumberAnywhereIsPassedOver) {
  for (const QString& wrong : {u""_s, u"free"_s, u"1,5,0"_s, u"18%"_s}) {
    EXPECT_THROW(TotalBefore(wrong, {}), InputError);
    PrintParameters percent;
    percent.percent = wrong;
    EXPECT_THROW(TotalBefore(u"1"_s, percent), InputError);
    PrintParameters rate;
    rate.rate = wrong;
    EXPECT_THROW(TotalBefore(u"1"_s, rate), InputError);
    PrintParameters discount;
    discount.discount = wrong;
    EXPECT_THROW(AmountDue(u"1.00"_s, discount), InputError);
  }
  // Only what is typed into a free field has a comma; a document's total has none.
  EXPECT_THROW(TotalBefore(u"1,5"_s, {}), InputError);
}

}  // namespace
}  // namespace kladez
