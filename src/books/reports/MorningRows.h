// What a shop looks at in the morning, as the rows of one short list: today's shipments, the open
// ones by age, goods below their minimum, and when the books were copied last.
#pragma once

#include <QDateTime>
#include <optional>
#include <vector>

#include "books/reports/SalesFigures.h"
#include "books/stock/LowStock.h"

namespace kladez {

struct MorningRow {
  enum class Kind { kHeading, kDocument, kGoods, kCopy };

  Kind kind;
  QString text;
  QString value;  // a sum, or "3 из 10 кг"
  DocumentRef document = {};
};

std::vector<MorningRow> MorningRows(const SalesFigures& figures, const std::vector<LowStock>& low,
                                    const std::optional<QDateTime>& last_copy, QDate today);

}  // namespace kladez
