#include "books/reports/SalesReport.h"

#include "books/reports/ReportPage.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;
using L = DocumentLine;

SalesReport CollectSales(const DataDir& data, const Session& session, const ReportScope& scope,
                         const Progress& progress) {
  SalesReport report;
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date) return;
    const int day_key = DayKeyOf(*date);
    if (!scope.period.Passes(day_key)) return;
    const double discount = NumberOr(document.Head(&DocumentHead::discount));
    while (document.NextLine()) {
      const double price = NumberOr(document.Line(&L::price));
      const double net_price = RoundMoney(price - price * discount / 100);
      const QByteArrayView quantity = document.Line(&L::quantity);
      report.rows.Add({.day_key = day_key,
                       .name = report.texts.Add(document.Line(&L::name)),
                       .quantity = report.texts.Add(quantity),
                       .unit = report.texts.Add(document.Line(&L::unit)),
                       .amount = RoundMoney(NumberOr(quantity) * net_price)});
    }
  };
  ScanWarehouses(data, session, scope.Warehouses(session), DocumentKind::kShipment,
                 Unreadable::kPassOver, progress, visit);
  return report;
}

double SalesReport::TotalQuantity() const {
  double total = 0;
  SalesRow row;
  for (SalesRows::Walk walk(rows); walk.Next(row);) total += NumberOr(texts.Bytes(row.quantity));
  return total;
}

double SalesReport::TotalAmount() const {
  double total = 0;
  SalesRow row;
  for (SalesRows::Walk walk(rows); walk.Next(row);) total = RoundMoney(total + row.amount);
  return total;
}

void WriteSalesReport(const SalesReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress) {
  ReportPage page(u"Отчет по продажам от "_s, scope, sink);
  page.Heads(
      {{u"Дата"_s, 5}, {u"Товар"_s, 30}, {u"Ед.изм"_s, 10}, {u"Кол-во"_s, 10}, {u"Сумма"_s, 10}},
      /*texts=*/2);
  SalesRows::Walk walk(report.rows);
  SalesRow row;
  const auto values = [&](size_t /*each in its turn*/) -> std::vector<QString> {
    walk.Next(row);
    return {DayOfKey(row.day_key), report.texts.Text(row.name), report.texts.Text(row.unit),
            ToNumberOr(report.texts.Text(row.quantity)), FormatMoney(row.amount)};
  };
  page.Rows(report.rows.Count(), values, progress);
  page.Total({u"ИТОГО:"_s,
              {},
              {},
              GeneralText(report.TotalQuantity()),
              FormatMoney(report.TotalAmount())});
}

}  // namespace kladez
