#include "books/stock/DraftParts.h"

#include <utility>

namespace kladez {

using namespace Qt::StringLiterals;

DraftLine WithAmount(DocumentLine line) {
  QString amount = LineAmount(line.quantity, line.price).value_or(u"0.00"_s);
  return {std::move(line), std::move(amount)};
}

}  // namespace kladez
