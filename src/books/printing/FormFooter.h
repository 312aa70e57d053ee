// The lines under the goods of a waybill, an invoice in dollars and a bill: totals, discount,
// taxes, the number of rows and the amount in words.
//
//   Всего: 1000.00 руб.
//   Скидка: 10%
//   Итого к оплате: 900.00 руб.,
#pragma once

#include "books/printing/DocumentTotals.h"
#include "books/printing/PageWriter.h"

namespace kladez {

struct FormFooter {
  const PaperSums& sums;
  QString before_amount;  // "$"
  QString after_amount;   // " руб."
  size_t row_count = 0;
  bool tells_total = true;
  bool tells_discount = true;
  bool tells_due = true;  // without it the words stand after "Итого: " and no taxes are told
};

// Throws InputError for a total or a discount that is no number.
void WriteFooter(PageWriter& page, const FormFooter& footer);

}  // namespace kladez
