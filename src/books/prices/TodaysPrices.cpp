#include "books/prices/TodaysPrices.h"

#include <algorithm>

#include "books/prices/PriceStore.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

TodaysPrices::TodaysPrices(const DataDir& data, const Session& session, DocumentKind kind,
                           const QString& warehouse, const QString& price_list)
    : directory_(data, session, GoodsView::kGroups) {
  if (kind == DocumentKind::kReceipt) return;
  const PriceStore store(data, session);
  const QStringList lists = store.Names(warehouse);
  if (lists.isEmpty()) return;
  const auto list = std::max<qsizetype>(0, lists.indexOf(price_list));
  prices_ = store.Load(warehouse, static_cast<int>(list), GoodsView::kGoodsOnly);
}

std::optional<GoodsPick> TodaysPrices::PickOf(const QString& goods) const {
  const int place = directory_.Rows().RowOfGoods(goods);
  if (place < 0) return std::nullopt;
  GoodsPick pick = kladez::PickOf(directory_.Rows()[static_cast<size_t>(place)]);
  pick.quantity = u"1"_s;
  const int row = prices_ ? prices_->RowOfName(goods) : -1;
  if (row >= 0) {
    const PriceRow priced = prices_->Rows()[static_cast<size_t>(row)];
    pick.cost = priced.purchase;
    pick.price = MoneyText(priced.sale);
  }
  return pick;
}

}  // namespace kladez
