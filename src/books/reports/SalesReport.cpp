#include "books/reports/SalesReport.h"

#include <algorithm>

#include "books/reports/ReportPage.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;
using L = DocumentLine;

std::optional<SalesReport> CollectSales(const DataDir& data, const Session& session,
                                        const ReportScope& scope, const Progress& progress) {
  SalesReport report;
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date || !scope.period.Passes(DayKeyOf(*date))) return;
    const double discount = NumberOr(document.Head(&DocumentHead::discount));
    while (document.NextLine()) {
      const double price = NumberOr(document.Line(&L::price));
      const double net_price = RoundMoney(price - price * discount / 100);
      const QByteArrayView quantity = document.Line(&L::quantity);
      report.rows.push_back({.day_key = DayKeyOf(*date),
                             .name = report.texts.Add(document.Line(&L::name)),
                             .quantity = report.texts.Add(quantity),
                             .unit = report.texts.Add(document.Line(&L::unit)),
                             .amount = RoundMoney(NumberOr(quantity) * net_price)});
    }
  };
  if (!ScanWarehouses(data, session, scope.Warehouses(session), DocumentKind::kShipment,
                      Unreadable::kPassOver, progress, visit)) {
    return std::nullopt;
  }
  std::stable_sort(report.rows.begin(), report.rows.end(),
                   [](const auto& a, const auto& b) { return a.day_key < b.day_key; });
  return report;
}

double SalesReport::TotalQuantity() const {
  double total = 0;
  for (const Row& row : rows) total += NumberOr(texts.Bytes(row.quantity));
  return total;
}

double SalesReport::TotalAmount() const {
  double total = 0;
  for (const Row& row : rows) total = RoundMoney(total + row.amount);
  return total;
}

void WriteSalesReport(const SalesReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress) {
  ReportPage page(u"Отчет по продажам от "_s, scope, sink);
  page.Heads(
      {{u"Дата"_s, 5}, {u"Товар"_s, 30}, {u"Ед.изм"_s, 10}, {u"Кол-во"_s, 10}, {u"Сумма"_s, 10}},
      /*texts=*/2);
  const auto values = [&](size_t i) -> std::vector<QString> {
    const SalesReport::Row& row = report.rows[i];
    return {DayOfKey(row.day_key), report.texts.Text(row.name), report.texts.Text(row.unit),
            ToNumberOr(report.texts.Text(row.quantity)), FormatMoney(row.amount)};
  };
  page.Rows(report.rows.size(), values, progress);
  page.Total({u"ИТОГО:"_s,
              {},
              {},
              GeneralText(report.TotalQuantity()),
              FormatMoney(report.TotalAmount())});
}

}  // namespace kladez
