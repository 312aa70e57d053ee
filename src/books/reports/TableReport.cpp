#include "books/reports/TableReport.h"

#include <algorithm>
#include <map>
#include <memory>
#include <numeric>

#include "books/reports/ReportPage.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr size_t kChartRows = 10;

QString DifferenceText(FigureKind kind, const QString& now, const QString& before) {
  const double difference = NumberOr(now) - NumberOr(before);
  return kind != FigureKind::kCount && kind != FigureKind::kQuantity
             ? FormatMoney(difference)
             : GeneralText(RoundGeneral(difference));
}

TableReport::Cells ChangeOf(const TableReport& report, const TableReport::Cells& before) {
  TableReport::Cells change = {u"Изменение:"_s};
  for (size_t i = 1; i < report.total.size(); ++i) {
    change.push_back(report.total[i].isEmpty()
                         ? QString()
                         : DifferenceText(report.columns[i].kind, report.total[i], before[i]));
  }
  return change;
}

std::vector<TableReport::Cells> AllRows(const TableReport& report) {
  std::vector<TableReport::Cells> rows(report.rows);
  for (size_t row = 0; row < report.rows; ++row) {
    for (size_t i = 0; i < report.columns.size(); ++i) rows[row].push_back(report.cell(row, i));
  }
  return rows;
}

// Gives each row what the compared column had before, and the change.
void AddCompared(TableReport& report, const TableReport& before) {
  const auto column = static_cast<size_t>(report.compared);
  const FigureKind kind = report.columns[column].kind;
  std::map<QString, QString> earlier;
  for (size_t row = 0; row < before.rows; ++row) {
    earlier[before.cell(row, 0)] = before.cell(row, column);
  }
  const QString nothing = DifferenceText(kind, {}, {});
  std::vector<TableReport::Cells> rows = AllRows(report);
  for (TableReport::Cells& cells : rows) {
    const auto same = earlier.find(cells[0]);
    const QString was = same == earlier.end() ? nothing : same->second;
    if (same != earlier.end()) earlier.erase(same);
    const QString now = cells[column];
    cells.insert(cells.end(), {was, DifferenceText(kind, now, was)});
  }
  for (size_t row = 0; row < before.rows; ++row) {
    const auto gone = earlier.find(before.cell(row, 0));
    if (gone == earlier.end()) continue;
    TableReport::Cells cells(report.columns.size());
    cells[0] = gone->first;
    cells.insert(cells.end(), {gone->second, DifferenceText(kind, {}, gone->second)});
    rows.push_back(std::move(cells));
    earlier.erase(gone);
  }
  const size_t counted = report.rows;
  report.documents = [documents = report.documents, counted](size_t row) {
    return row < counted ? documents(row) : DocumentsWanted{};
  };
  report.columns.push_back({u"Было"_s, kind, 10});
  report.columns.push_back({u"Изменение"_s, kind, 10});
  SetRows(report, std::move(rows));
  const QString was = before.total[column];
  const QString now = report.total[column];
  report.total.insert(report.total.end(), {was, DifferenceText(kind, now, was)});
}

size_t LeadingTexts(const TableReport& report) {
  const auto number =
      std::find_if(report.columns.begin(), report.columns.end(),
                   [](const auto& column) { return column.kind != FigureKind::kText; });
  return static_cast<size_t>(number - report.columns.begin());
}

}  // namespace

void SetRows(TableReport& report, std::vector<TableReport::Cells> rows) {
  report.rows = rows.size();
  report.cell = [cells = std::make_shared<const std::vector<TableReport::Cells>>(std::move(rows))](
                    size_t row, size_t column) { return (*cells)[row][column]; };
}

void SetBeside(TableReport& report, const TableReport& before, const ReportPeriod& period) {
  TableReport::Cells was = before.total;
  was[0] = u"С "_s + DateText(period.from) + u" по "_s + DateText(period.to) + u':';
  TableReport::Cells change = ChangeOf(report, was);
  if (report.compared >= 0) {
    AddCompared(report, before);
    was.resize(report.columns.size());
    change.resize(report.columns.size());
  }
  report.beside = {std::move(was), std::move(change)};
}

ChartGrid ChartOf(const TableReport& report) {
  std::vector<size_t> order(report.rows);
  std::iota(order.begin(), order.end(), size_t{0});
  const auto value = [&](size_t row, size_t column) { return NumberOr(report.cell(row, column)); };
  std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
    return value(a, report.charted.front()) > value(b, report.charted.front());
  });
  const bool others = report.rows > kChartRows;
  const size_t alone = others ? kChartRows - 1 : report.rows;
  ChartGrid grid;
  grid.title = report.heading;
  for (const size_t column : report.charted)
    grid.columns.push_back({report.columns[column].title, {}});
  for (size_t i = 0; i < order.size(); ++i) {
    if (i <= alone) grid.row_labels.append(i < alone ? report.cell(order[i], 0) : u"Прочие"_s);
    for (size_t column = 0; column < report.charted.size(); ++column) {
      std::vector<double>& values = grid.columns[column].values;
      if (i <= alone) values.push_back(0);
      values.back() = RoundMoney(values.back() + value(order[i], report.charted[column]));
    }
  }
  return grid;
}

void WriteTableReport(const TableReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress) {
  ReportScope with_beside = scope;
  with_beside.below_total = report.beside;
  ReportPage page(report.heading + u" от "_s, with_beside, sink);
  std::vector<ReportPage::Head> heads;
  for (const ReportColumn& column : report.columns) heads.push_back({column.title, column.width});
  page.Heads(std::move(heads), LeadingTexts(report));
  const auto values = [&](size_t row) {
    TableReport::Cells cells;
    for (size_t i = 0; i < report.columns.size(); ++i) cells.push_back(report.cell(row, i));
    return cells;
  };
  page.Rows(report.rows, values, progress);
  page.Total(report.total);
}

}  // namespace kladez
