#include "books/reports/ToldTables.h"

#include <memory>

#include "books/reports/FlowReport.h"
#include "books/reports/ReportPage.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Years of shipments have half a million lines: their texts are made when they come in sight.
struct SalesLines {
  SalesReport report;
  std::vector<SalesRow> rows;

  QString Cell(size_t row, size_t column) const {
    const SalesRow& line = rows[row];
    switch (column) {
      case 0:
        return DayOfKey(line.day_key);
      case 1:
        return report.texts.Text(line.name);
      case 2:
        return report.texts.Text(line.unit);
      case 3:
        return ToNumberOr(report.texts.Text(line.quantity));
      default:
        return FormatMoney(line.amount);
    }
  }
};

}  // namespace

TableReport CollectSalesTable(const DataDir& data, const Session& session, const ReportScope& scope,
                              const Progress& progress) {
  auto lines = std::make_shared<SalesLines>();
  lines->report = CollectSales(data, session, scope, progress);
  lines->rows.resize(lines->report.rows.Count());
  SalesRows::Walk walk(lines->report.rows);
  for (SalesRow& row : lines->rows) walk.Next(row);
  return {.heading = u"Отчет по продажам"_s,
          .columns = {{u"Дата"_s, FigureKind::kText, 5},
                      {u"Товар"_s, FigureKind::kText, 30},
                      {u"Ед.изм"_s, FigureKind::kText, 10},
                      {u"Кол-во"_s, FigureKind::kQuantity, 10},
                      {u"Сумма"_s, FigureKind::kMoney, 10}},
          .rows = lines->rows.size(),
          .cell = [lines](size_t row, size_t column) { return lines->Cell(row, column); },
          .total = {u"ИТОГО:"_s,
                    {},
                    {},
                    GeneralText(lines->report.TotalQuantity()),
                    FormatMoney(lines->report.TotalAmount())},
          .documents =
              [lines](size_t row) {
                return DocumentsWanted{.kinds = {DocumentKind::kShipment},
                                       .goods = lines->Cell(row, 1),
                                       .day_key = lines->rows[row].day_key};
              },
          .names = 1};
}

TableReport CollectSpeedTable(const DataDir& data, const Session& session, const ReportScope& scope,
                              const Progress& progress) {
  const auto speed =
      std::make_shared<const SpeedReport>(CollectSpeed(data, session, scope, progress));
  TableReport report{.heading = u"Скорость реализации товаров"_s,
                     .columns = {{u"Товар"_s, FigureKind::kText, 25},
                                 {u"Ед.изм."_s, FigureKind::kText, 10},
                                 {u"Кол-во"_s, FigureKind::kQuantity, 10},
                                 {u"Реализация"_s, FigureKind::kMoney, 10},
                                 {u"Прибыль"_s, FigureKind::kMoney, 10}},
                     .total = {u"ИТОГО:"_s,
                               {},
                               GeneralText(speed->TotalQuantity()),
                               FormatMoney(speed->TotalSales()),
                               FormatMoney(speed->TotalProfit())},
                     .charted = {3, 4},
                     .compared = 3};
  std::vector<TableReport::Cells> rows;
  for (const SpeedReport::Row& row : speed->rows) {
    rows.push_back(
        {row.name, row.unit, row.quantity, FormatMoney(row.sales), FormatMoney(row.profit)});
  }
  SetRows(report, std::move(rows));
  report.documents = [speed](size_t row) {
    return DocumentsWanted{.kinds = {DocumentKind::kShipment}, .goods = speed->rows[row].name};
  };
  return report;
}

TableReport CollectFlowTable(const DataDir& data, const Session& session, const ReportScope& scope,
                             const Progress& progress) {
  const FlowReport flow = CollectFlow(data, session, scope, progress);
  TableReport report{.heading = u"Отчет по поступлению/реализации товара"_s,
                     .columns = {{u"Дата"_s, FigureKind::kText, 25},
                                 {u"Поступление"_s, FigureKind::kMoney, 10},
                                 {u"Реализация"_s, FigureKind::kMoney, 10},
                                 {u"Прибыль"_s, FigureKind::kMoney, 10}}};
  std::vector<TableReport::Cells> rows;
  std::vector<int> days;
  FlowReport::Day total;
  double profit = 0;
  for (const auto& [key, day] : flow.days) {
    rows.push_back({DayOfKey(key), FormatMoney(day.receipts), FormatMoney(day.sales),
                    FormatMoney(day.sales - day.receipts)});
    days.push_back(key);
    total.receipts += day.receipts;
    total.sales += day.sales;
    profit += day.sales - day.receipts;
  }
  SetRows(report, std::move(rows));
  report.total = {u"ИТОГО:"_s, FormatMoney(total.receipts), FormatMoney(total.sales),
                  FormatMoney(profit)};
  report.documents = [days = std::move(days)](size_t row) {
    return DocumentsWanted{.kinds = {DocumentKind::kReceipt, DocumentKind::kShipment},
                           .day_key = days[row]};
  };
  return report;
}

}  // namespace kladez
