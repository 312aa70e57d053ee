#include <gtest/gtest.h>

#include "books/printing/AmountInWords.h"
#include "books/printing/InputError.h"
#include "books/printing/InvoiceRows.h"
#include "books/printing/PaperNote.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

PrintParameters Typed(const QString& percent, const QString& rate, const QString& discount) {
  PrintParameters parameters;
  parameters.percent = percent;
  parameters.rate = rate;
  parameters.discount = discount;
  return parameters;
}

// What the rouble bill of a document of 1180.00 asks for.
PaperNote RoubleBill(const PrintParameters& parameters) {
  TotalTexts totals;
  FillInvoiceTotals(InvoiceCurrency::kRoubles, u"1180.00"_s, parameters, u"руб."_s,
                    RoubleCurrency(), totals);
  return {u"1180.00"_s, parameters, AmountDue(totals.before, parameters), parameters.discount};
}

TEST(PaperNote, TellsWhatTheParametersDoToTheSum) {
  const struct {
    PrintParameters parameters;
    const char* effect;
    const char* difference;
  } cases[] = {
      {Typed(u"100"_s, u"1"_s, u"0"_s), "", ""},
      {Typed(u"100.0"_s, u" 1.00"_s, u"0,0"_s), "", ""},
      {Typed(u"50"_s, u"1"_s, u"0"_s), "Цены 50%: сумма 1180.00, на бумаге 590.00", ""},
      {Typed(u"100"_s, u"31,5"_s, u"0"_s), "Курс $ 31,5: сумма 1180.00, на бумаге 37170.00", ""},
      {Typed(u"100"_s, u"1"_s, u"10"_s), "Скидка 10%: сумма 1180.00, на бумаге 955.80",
       "На 106.20 меньше, чем в накладной"},
      {Typed(u"50"_s, u"2"_s, u"10"_s),
       "Цены 50%, курс $ 2, скидка 10%: сумма 1180.00, на бумаге 849.60",
       "На 212.40 меньше, чем в накладной"},
  };
  for (const auto& c : cases) {
    const PaperNote note = RoubleBill(c.parameters);
    EXPECT_EQ(EffectText(note).toStdString(), c.effect);
    EXPECT_EQ(DifferenceText(note).toStdString(), c.difference);
  }
  EXPECT_THROW(EffectText({u"1"_s, Typed(u"?"_s, u"1"_s, u"0"_s), u"1"_s, u"0"_s}), InputError);
}

TEST(PaperNote, ADiscountTakenOnceAsksForTheSumOfTheLines) {
  PrintParameters parameters = Typed(u"100"_s, u"1"_s, u"10"_s);
  parameters.discount_in_prices = true;
  const PaperNote note = RoubleBill(parameters);
  EXPECT_EQ(note.due, u"1062.00"_s);
  EXPECT_EQ(DifferenceText(note), u""_s);
  TotalTexts totals;
  FillInvoiceTotals(InvoiceCurrency::kRoubles, u"1180.00"_s, parameters, u"руб."_s,
                    RoubleCurrency(), totals);
  EXPECT_EQ(totals, (TotalTexts{u"1062.00"_s, u"162.00 руб."_s, u"0.00 руб."_s,
                                u"Одна тысяча шестьдесят два рубля 00 копеек"_s}));
}

TEST(PaperNote, WithoutTheDiscountAnOrderIsMoreThanTheWaybill) {
  const PaperNote note{u"1180.00"_s, Typed(u"100"_s, u"1"_s, u"0"_s), u"1180.00"_s, u"10"_s};
  EXPECT_EQ(DifferenceText(note), u"На 118.00 больше, чем в накладной"_s);
}

TEST(PaperNote, WordsAreCutFromAThousandMillion) {
  EXPECT_FALSE(WordsAreCut(u"999999999.99"_s));
  EXPECT_TRUE(WordsAreCut(u"1000000000.00"_s));
  EXPECT_FALSE(WordsAreCut(u"-99999999.99"_s));
  EXPECT_TRUE(WordsAreCut(u"-100000000.00"_s)) << "its sign takes the place of a digit";
}

}  // namespace
}  // namespace kladez
