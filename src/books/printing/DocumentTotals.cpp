#include "books/printing/DocumentTotals.h"

#include "books/printing/AmountInWords.h"
#include "books/printing/InputError.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

// The amount that taxes are taken from, not rounded.
double LessDiscount(const QString& before, const PrintParameters& parameters) {
  const double amount = FieldNumber(before);
  const double discount = TypedNumber(parameters.discount);
  return parameters.discount_in_prices ? amount : amount - amount * discount / 100;
}

QString TaxText(double tax, const TaxStyle& style) {
  return (style.grouped ? FormatGrouped(tax) : FormatMoney(tax)) + style.currency;
}

}  // namespace

QString TotalBefore(const QString& total, const PrintParameters& parameters) {
  return FormatMoney(FieldNumber(total) * TypedNumber(parameters.percent) / 100 *
                     TypedNumber(parameters.rate));
}

QString AmountDue(const QString& before, const PrintParameters& parameters) {
  return FormatMoney(LessDiscount(before, parameters));
}

void FillTotals(const PrintParameters& parameters, const TaxStyle& style, const Currency& currency,
                TotalTexts& totals) {
  totals.words = AmountDue(totals.before, parameters);
  const double amount = LessDiscount(totals.before, parameters);
  const double vat = TypedNumber(parameters.vat);
  totals.vat = TaxText(amount / (vat + 100) * vat, style);
  totals.sales_tax = TaxText(amount * TypedNumber(parameters.sales_tax) / 100, style);
  totals.words = AmountInWords(totals.words, currency);
}

}  // namespace kladez
