// What a person is told before a paper is printed: what its rate, percentage and discount make of
// the document's sum, and how far the paper is from the document's waybill.
#pragma once

#include "books/printing/DocumentTotals.h"

namespace kladez {

struct PaperNote {
  QString total;               // of the document, before its discount
  PrintParameters parameters;  // the paper's
  QString due;                 // what the paper asks for, "#0.00"
  QString waybill_discount;    // percent that the document's waybill takes off
};

// A rate other than 1, by which every amount is multiplied. Throws InputError.
bool HasRate(const PrintParameters& parameters);

// "Цены 50%, курс $ 2, скидка 10%: сумма 1180.00, на бумаге 1062.00"; nothing where the paper has
// the document's prices, no rate and no discount. Throws InputError.
QString EffectText(const PaperNote& note);

// "На 106.20 меньше, чем в накладной"; nothing where the two agree. Throws InputError.
QString DifferenceText(const PaperNote& note);

}  // namespace kladez
