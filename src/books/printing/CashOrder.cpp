#include "books/printing/CashOrder.h"

namespace kladez {

using namespace Qt::StringLiterals;

QString DiscountOf(const PrintSource& source, OrderDiscount discount) {
  const bool none = discount == OrderDiscount::kNone || source.discount.isEmpty();
  return none ? u"0"_s : source.discount;
}

void FillCashOrder(const PrintSource& source, const QString& firm,
                   const PrintParameters& parameters, const QString& rub, const Currency& currency,
                   CashOrder& order) {
  order = CashOrder();
  order.firm = firm;
  order.number = source.number;
  order.date = source.date;
  order.payer = source.party;
  order.grounds = u"Накладная N"_s + source.number + u" от "_s + source.date;
  TotalTexts totals;
  totals.before = TotalBefore(source.total, parameters);
  order.sum = AmountDue(totals.before, parameters);
  FillTotals(parameters, {.grouped = true, .currency = u' ' + rub}, currency, totals);
  order.words = totals.words;
  order.included = u"НДС: "_s + totals.vat + u" НСП: "_s + totals.sales_tax;
}

}  // namespace kladez
