#include "formats/tables/Table.h"

#include <algorithm>

#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

// Reports tell days with two digits of the year: "05.03.26".
std::optional<QDate> DayOf(const QString& text) {
  constexpr int kFirstOfCentury = 80;
  const auto day = ParseDate(text);
  if (day || text.size() != 8 || text[5] != u'.') return day;
  const bool before = text.last(2).toInt() >= kFirstOfCentury;
  const QString whole = text.first(6) + (before ? u"19"_s : u"20"_s) + text.last(2);
  return ParseDate(whole);
}

}  // namespace

bool Table::HasGroups() const {
  return std::any_of(rows.begin(), rows.end(), [](const TableRow& row) { return row.is_group; });
}

bool Table::HasTotals() const {
  return std::any_of(columns.begin(), columns.end(),
                     [](const TableColumn& column) { return column.total; });
}

QString CellOf(const TableRow& row, size_t column) {
  return row.cells.value(static_cast<qsizetype>(column));
}

std::optional<double> NumberOfCell(CellKind kind, const QString& text) {
  if (kind != CellKind::kNumber && kind != CellKind::kMoney) return std::nullopt;
  return ParseStrict(text);
}

std::optional<QDate> DateOfCell(CellKind kind, const QString& text) {
  return kind == CellKind::kDate ? DayOf(text) : std::nullopt;
}

double TotalOf(const Table& table, size_t column) {
  double sum = 0;
  for (const TableRow& row : table.rows) {
    if (row.is_group) continue;
    if (const auto number = NumberOfCell(table.columns[column].kind, CellOf(row, column))) {
      sum = RoundGeneral(sum + *number);
    }
  }
  return sum;
}

TableRow TotalRow(const Table& table) {
  TableRow row;
  for (size_t i = 0; i < table.columns.size(); ++i) {
    const TableColumn& column = table.columns[i];
    const double sum = column.total ? TotalOf(table, i) : 0;
    row.cells << (!column.total                     ? i == 0 ? u"Итого"_s : QString()
                                      : column.kind == CellKind::kMoney ? FormatMoney(sum)
                                                    : GeneralText(sum));
  }
  return row;
}

CellKind GuessKind(const std::vector<TableRow>& rows, size_t column, bool is_number) {
  bool any = false;
  bool all = true;
  for (const TableRow& row : rows) {
    const QString text = CellOf(row, column);
    if (row.is_group || text.isEmpty()) continue;
    any = true;
    all = is_number ? text.size() > 3 && text[text.size() - 3] == u'.' : DayOf(text).has_value();
    if (!all) break;
  }
  if (is_number) return any && all ? CellKind::kMoney : CellKind::kNumber;
  return any && all ? CellKind::kDate : CellKind::kText;
}

}  // namespace kladez
