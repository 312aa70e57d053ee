// The totals of a printed document. Every step takes the text of the step before, so that what is
// printed is what was worked with: rounding is part of the arithmetic.
#pragma once

#include <QString>

#include "formats/CurrencyFile.h"

namespace kladez {

// The fields under "Параметры", as typed; a comma in them is a point. A screen opens with these
// values; its rate comes from the settings, its discount is the document's where it has one, and
// its taxes are those of the Database where that has some.
struct PrintParameters {
  QString percent = QStringLiteral("100");  // of the document's prices
  QString rate = QStringLiteral("1");       // of the dollar: multiplies every amount
  QString discount = QStringLiteral("0");   // percent
  QString vat = QStringLiteral("18");       // percent, contained in the amount
  QString sales_tax = QStringLiteral("0");  // percent
  // The discount is taken once, in the prices of the lines, and not off their total again.
  bool discount_in_prices = false;
};

// The texts that the screens show and the pages print.
struct TotalTexts {
  QString before;     // "Всего:", before the discount
  QString vat;        // "Включая НДС:"
  QString sales_tax;  // "Налог с продаж:"
  QString words;      // "Итого к оплате:", the amount spelled

  bool operator==(const TotalTexts&) const = default;
};

// The money of a paper as its screen shows it.
struct PaperSums {
  PrintParameters parameters;
  TotalTexts totals;
  bool with_vat = true;        // told on the paper
  bool with_sales_tax = true;  // told on the paper
  QString rub;                 // short name of the currency
};

// How a form writes its taxes.
struct TaxStyle {
  bool grouped = true;  // "##,##0.00" rather than "#0.00"
  QString currency;     // what follows the amount: " руб." or "$"
};

// A field that is printed only if its box is ticked.
struct TickedText {
  QString text;
  bool ticked = true;
};

// "Всего:": total * percent / 100 * rate, "#0.00". Throws InputError.
QString TotalBefore(const QString& total, const PrintParameters& parameters);

// "Итого к оплате:" in figures: "Всего:" less the discount, "#0.00". Throws InputError.
QString AmountDue(const QString& before, const PrintParameters& parameters);

// Fills the taxes and the words from `totals.before`. Throws InputError for a field that is no
// number; what was worked out until then stays.
void FillTotals(const PrintParameters& parameters, const TaxStyle& style, const Currency& currency,
                TotalTexts& totals);

}  // namespace kladez
