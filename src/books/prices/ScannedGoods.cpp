#include "books/prices/ScannedGoods.h"

#include <algorithm>

#include "books/directories/GoodsDirectory.h"
#include "books/prices/PriceStore.h"
#include "books/stock/DocumentBook.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

std::optional<GoodsPick> PickOfGoods(const DataDir& data, const Session& session, DocumentKind kind,
                                     const QString& warehouse, const QString& price_list,
                                     const QString& goods) {
  const GoodsDirectory directory(data, session, GoodsView::kGroups);
  const int place = directory.Rows().RowOfGoods(goods);
  if (place < 0) return std::nullopt;
  GoodsPick pick = PickOf(directory.Rows()[static_cast<size_t>(place)]);
  pick.quantity = u"1"_s;
  if (kind == DocumentKind::kReceipt) return pick;
  const PriceStore store(data, session);
  const QStringList lists = store.Names(warehouse);
  if (lists.isEmpty()) return pick;
  const auto list = std::max<qsizetype>(0, lists.indexOf(price_list));
  const PriceList prices = store.Load(warehouse, static_cast<int>(list), GoodsView::kGoodsOnly);
  const int row = prices.RowOfName(goods);
  if (row >= 0) {
    const PriceRow priced = prices.Rows()[static_cast<size_t>(row)];
    pick.cost = priced.purchase;
    pick.price = MoneyText(priced.sale);
  }
  return pick;
}

int AddScanned(DocumentDraft& draft, const GoodsPick& pick) {
  const auto& lines = draft.Lines();
  for (size_t row = lines.size(); row-- > 0;) {
    const DocumentLine& line = lines[row].line;
    if (line.name != pick.name) continue;
    const QString quantity = GeneralText(RoundGeneral(NumberOr(line.quantity) + 1));
    const QString price = MoneyText(line.price);
    draft.ChangeLine(row, quantity, price, LineAmount(quantity, price).value_or(lines[row].amount));
    return static_cast<int>(row);
  }
  draft.AddLine(pick);
  return static_cast<int>(draft.Lines().size()) - 1;
}

}  // namespace kladez
