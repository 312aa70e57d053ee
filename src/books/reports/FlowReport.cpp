#include "books/reports/FlowReport.h"

#include "books/reports/ReportPage.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;
using H = DocumentHead;

FlowReport CollectFlow(const DataDir& data, const Session& session, const ReportScope& scope,
                       const Progress& progress) {
  FlowReport report;
  const auto collect = [&](DocumentKind kind, QString H::*sum, double FlowReport::Day::*into,
                           const Progress& half) {
    ScanWarehouses(data, session, scope.Warehouses(session), kind, Unreadable::kPassOver, half,
                   [&](ScannedDocument& document) {
                     const auto date = document.Date();
                     if (!date || !document.Has(sum)) return;
                     const int key = DayKeyOf(*date);
                     if (!scope.period.Passes(key)) return;
                     report.days[key].*into += NumberOr(document.Head(sum));
                   });
  };
  collect(DocumentKind::kReceipt, &H::sum, &FlowReport::Day::receipts, progress.Piece(0, 0.5));
  collect(DocumentKind::kShipment, &H::net_sum, &FlowReport::Day::sales, progress.Piece(0.5, 1));
  return report;
}

void WriteFlowReport(const FlowReport& report, const ReportScope& scope, const ByteSink& sink,
                     const Progress& /*a row a day is short work*/) {
  ReportPage page(u"Отчет по поступлению/реализации товара от "_s, scope, sink);
  page.Heads({{u"Дата"_s, 25}, {u"Поступление"_s, 10}, {u"Реализация"_s, 10}, {u"Прибыль"_s, 10}},
             /*texts=*/1);
  FlowReport::Day total;
  double profit = 0;
  for (const auto& [key, day] : report.days) {
    page.Row({DayOfKey(key), FormatMoney(day.receipts), FormatMoney(day.sales),
              FormatMoney(day.sales - day.receipts)});
    total.receipts += day.receipts;
    total.sales += day.sales;
    profit += day.sales - day.receipts;
  }
  page.Total(
      {u"ИТОГО:"_s, FormatMoney(total.receipts), FormatMoney(total.sales), FormatMoney(profit)});
}

}  // namespace kladez
