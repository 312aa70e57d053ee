#include "books/reports/DocumentSearch.h"

#include <algorithm>

#include "books/stock/DocumentBook.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using H = DocumentHead;

bool HoldsGoods(ScannedDocument& document, const QByteArray& goods) {
  while (document.NextLine()) {
    if (document.Line(&DocumentLine::name) == goods) return true;
  }
  return false;
}

}  // namespace

std::vector<FoundDocument> FindDocuments(const DataDir& data, const Session& session,
                                         const ReportScope& scope, const DocumentsWanted& wanted,
                                         const Progress& progress) {
  const QByteArray party = EncodeText(wanted.party.value_or(QString()));
  const QByteArray goods = EncodeText(wanted.goods.value_or(QString()));
  const QByteArray open = EncodeText(u"нет");
  std::vector<FoundDocument> found;
  const QStringList warehouses = scope.Warehouses(session);
  const double share = 1.0 / std::max<double>(1, warehouses.size() * wanted.kinds.size());
  double begun = 0;
  for (const DocumentKind kind : wanted.kinds) {
    for (const QString& warehouse : warehouses) {
      const auto visit = [&](ScannedDocument& document) {
        const auto date = document.Date();
        if (!date || !scope.period.Passes(DayKeyOf(*date))) return;
        if (wanted.day_key && DayKeyOf(*date) != *wanted.day_key) return;
        if (wanted.party && document.Head(&H::party) != party) return;
        if (wanted.goods && !HoldsGoods(document, goods)) return;
        found.push_back({.document = {kind, warehouse, document.File()},
                         .date = *date,
                         .number = DecodeText(document.Head(&H::number)),
                         .party = DecodeText(document.Head(&H::party)),
                         .sum = NumberOr(document.Head(BookOf(kind).total)),
                         .is_open = document.Head(&H::closed) == open});
      };
      ScanWarehouses(data, session, {warehouse}, kind, Unreadable::kPassOver,
                     progress.Piece(begun, begun + share), visit);
      begun += share;
    }
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.date < b.date; });
  return found;
}

}  // namespace kladez
