// What a cash receipt order and its tear-off receipt are filled with.
#pragma once

#include <QString>

#include "books/printing/DocumentTotals.h"
#include "books/stock/PrintSource.h"

namespace kladez {

struct CashOrder {
  QString firm;
  QString number;
  QString date;
  QString payer;
  QString grounds;   // "Накладная N5 от 12.03.2026"
  QString sum;       // "#0.00"
  QString words;     // the sum spelled
  QString included;  // "НДС: 180.00 руб. НСП: 0.00 руб."
};

// The discount in an order for a document: none, unless it is asked for.
enum class OrderDiscount { kNone, kOfDocument };
// In percent, a number text: "0", or that of the document.
QString DiscountOf(const PrintSource& source, OrderDiscount discount);

// Fills the order for a document; the discount of the parameters is that of DiscountOf. Throws
// InputError for a total or parameter that is no number; what was filled until then stays.
void FillCashOrder(const PrintSource& source, const QString& firm,
                   const PrintParameters& parameters, const QString& rub, const Currency& currency,
                   CashOrder& order);

}  // namespace kladez
