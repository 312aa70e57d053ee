#include "screens/directories/PickQuestion.h"

#include "screens/directories/QuantityDialog.h"

namespace kladez {

using namespace Qt::StringLiterals;

std::optional<GoodsPick> AskPick(QWidget* parent, const GoodsRecord& record, PickFor pick_for,
                                 const StockAfter& on_hand) {
  GoodsPick pick = PickOf(record);
  if (pick.is_group || pick_for == PickFor::kGoodsChart) return pick;
  const bool with_price = pick_for == PickFor::kReceipt || pick_for == PickFor::kOpeningStock;
  const QuantityNotes notes = {.goods = record.name,
                               .unit = record.unit,
                               .on_hand = on_hand ? on_hand(record.name) : std::nullopt,
                               .flow = Flow::kIn};
  const auto answer = AskQuantity(parent, u"Товар"_s, u"Кол-во:"_s, u"1"_s,
                                  with_price ? pick.price : QString(), u"Цена закупа:"_s, notes);
  if (!answer) return std::nullopt;
  if (with_price) pick.price = answer->price;
  return WithQuantity(std::move(pick), answer->quantity);
}

}  // namespace kladez
