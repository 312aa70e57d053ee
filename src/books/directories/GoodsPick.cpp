#include "books/directories/GoodsPick.h"

#include "formats/Numbers.h"

namespace kladez {

GoodsPick PickOf(const GoodsRecord& record) {
  if (record.IsGroup()) {
    return {
        .name = record.name, .quantity = {}, .unit = {}, .cost = {}, .price = {}, .is_group = true};
  }
  return {.name = record.name,
          .quantity = {},
          .unit = record.unit,
          .cost = record.price,
          .price = FormatMoney(NumberOr(record.price))};
}

std::optional<GoodsPick> WithQuantity(GoodsPick pick, const QString& quantity) {
  if (!ParseStrict(quantity)) return std::nullopt;
  pick.quantity = quantity;
  return pick;
}

}  // namespace kladez
