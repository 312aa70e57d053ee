#include "books/reports/OrderList.h"

#include <algorithm>
#include <unordered_map>

#include "books/stock/LowStock.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using L = DocumentLine;

struct LastReceipt {
  QDate date;
  QString supplier;
  QString price;
};

struct OrderRow {
  LowStock goods;
  LastReceipt last;
};

void FindLastReceipts(const DataDir& data, const Session& session,
                      std::unordered_map<QByteArray, LastReceipt>& wanted,
                      const Progress& progress) {
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date) return;
    while (document.NextLine()) {
      const QByteArrayView name = document.Line(&L::name);
      const auto found = wanted.find(QByteArray::fromRawData(name.data(), name.size()));
      // Of one day's the last one read.
      if (found == wanted.end() || (found->second.date.isValid() && *date < found->second.date)) {
        continue;
      }
      found->second = {*date, DecodeText(document.Head(&DocumentHead::party)),
                       ToNumberOr(DecodeText(document.Line(&L::price)))};
    }
  };
  ScanWarehouses(data, session, session.warehouses, DocumentKind::kReceipt, Unreadable::kPassOver,
                 progress, visit);
}

TableReport::Cells CellsOf(const OrderRow& row) {
  const QString price = row.last.date.isValid() ? row.last.price : row.goods.price;
  return {row.last.supplier,
          row.goods.name,
          row.goods.unit,
          GeneralText(row.goods.on_hand),
          GeneralText(row.goods.minimum),
          GeneralText(row.goods.Missing()),
          MoneyText(price),
          FormatMoney(row.goods.Missing() * NumberOr(price))};
}

}  // namespace

TableReport CollectOrder(const DataDir& data, const Session& session, const Progress& progress) {
  std::vector<OrderRow> rows;
  std::unordered_map<QByteArray, LastReceipt> receipts;
  for (LowStock& goods : CollectLowStock(data, session)) {
    receipts[EncodeText(goods.name)];
    rows.push_back({std::move(goods), {}});
  }
  if (!rows.empty()) FindLastReceipts(data, session, receipts, progress);
  for (OrderRow& row : rows) row.last = receipts[EncodeText(row.goods.name)];
  std::stable_sort(rows.begin(), rows.end(), [](const OrderRow& a, const OrderRow& b) {
    const bool a_known = a.last.date.isValid();
    const bool b_known = b.last.date.isValid();
    return a_known != b_known ? a_known : OrderKey(a.last.supplier) < OrderKey(b.last.supplier);
  });
  TableReport report{.heading = u"Заказать"_s,
                     .columns = {{u"Поставщик"_s, FigureKind::kText, 20},
                                 {u"Товар"_s, FigureKind::kText, 25},
                                 {u"Ед.изм."_s, FigureKind::kText, 5},
                                 {u"На складах"_s, FigureKind::kQuantity, 10},
                                 {u"Минимум"_s, FigureKind::kQuantity, 10},
                                 {u"Заказать"_s, FigureKind::kQuantity, 10},
                                 {u"Цена"_s, FigureKind::kPrice, 10},
                                 {u"Сумма"_s, FigureKind::kMoney, 10}},
                     .names = 1};
  double total = 0;
  std::vector<TableReport::Cells> cells;
  std::vector<QString> names;
  for (const OrderRow& row : rows) {
    cells.push_back(CellsOf(row));
    names.push_back(row.goods.name);
    total = RoundMoney(total + NumberOr(cells.back().back()));
  }
  SetRows(report, std::move(cells));
  report.total = {u"ИТОГО:"_s, {}, {}, {}, {}, {}, {}, FormatMoney(total)};
  report.documents = [names = std::move(names)](size_t row) {
    return DocumentsWanted{.kinds = {DocumentKind::kReceipt}, .goods = names[row]};
  };
  return report;
}

}  // namespace kladez
