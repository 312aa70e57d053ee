#include "books/stock/DraftStock.h"

#include "books/stock/OnHand.h"
#include "formats/Numbers.h"

namespace kladez {

DraftStock::DraftStock(const DocumentDraft& draft) : draft_(draft) {
  const DocumentDraft::Place& place = draft.Where();
  const OnHandList list =
      LoadOnHand(place.data, place.session, {draft.Warehouse()}, GoodsView::kGroups);
  for (const OnHandRow& row : list.Rows()) {
    if (!row.IsGroup() && !ledger_.contains(row.name)) {
      ledger_.insert(row.name, NumberOr(row.quantity));
    }
  }
}

std::optional<double> DraftStock::OnHand(const QString& goods, int but_row) const {
  const auto found = ledger_.constFind(goods);
  if (found == ledger_.constEnd()) return std::nullopt;
  double left = *found;
  if (draft_.HasPosted()) return left;
  const double sign = draft_.Kind() == DocumentKind::kReceipt ? 1 : -1;
  for (size_t row = 0; row < draft_.Lines().size(); ++row) {
    const DocumentLine& line = draft_.Lines()[row].line;
    if (static_cast<int>(row) == but_row || line.name != goods) continue;
    left = RoundGeneral(left + sign * NumberOr(line.quantity));
  }
  return left;
}

std::vector<bool> DraftStock::ShortLines() const {
  std::vector<bool> lacking(draft_.Lines().size(), false);
  if (draft_.Kind() == DocumentKind::kReceipt || draft_.HasPosted()) return lacking;
  QHash<QString, double> left = ledger_;
  for (size_t row = 0; row < lacking.size(); ++row) {
    const DocumentLine& line = draft_.Lines()[row].line;
    const auto found = left.find(line.name);
    if (found == left.end()) continue;
    *found = RoundGeneral(*found - NumberOr(line.quantity));
    lacking[row] = *found < 0 && NumberOr(line.quantity) > 0;
  }
  return lacking;
}

}  // namespace kladez
