#include "books/reports/ChartSeries.h"

#include <cerrno>
#include <optional>

#include "books/store/Errors.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using L = DocumentLine;

QString PeriodTitle(const ChartScope& scope) {
  const QString year = GeneralText(scope.year);
  return scope.by_day ? QString(MonthName(scope.month) + u' ' + year) : QString(year + u" год"_s);
}

int DaysOf(const ChartScope& scope) { return QDate(scope.year, scope.month, 1).daysInMonth(); }

ChartGrid EmptyGrid(const QString& title, const ChartScope& scope, const QStringList& columns) {
  const int rows = scope.by_day ? DaysOf(scope) : 12;
  ChartGrid grid = NumberedChartGrid(title + PeriodTitle(scope), rows, columns);
  grid.year_ago.resize(static_cast<size_t>(rows));
  return grid;
}

// The row that a date falls into. By day the key holds two digits of the year, so a date a century
// off counts as well, unless the month lacks its day: only some years have a 29th of February.
std::optional<int> RowOf(const ChartScope& scope, QDate date) {
  if (!scope.by_day) {
    if (date.year() != scope.year) return std::nullopt;
    return date.month() - 1;
  }
  if (date.year() % 100 != scope.year % 100 || date.month() != scope.month) return std::nullopt;
  if (date.day() > DaysOf(scope)) return std::nullopt;
  return date.day() - 1;
}

// The row of the same day or month a year before the chart's.
std::optional<int> RowOfYearAgo(const ChartScope& scope, QDate date) {
  if (date.year() != scope.year - 1) return std::nullopt;
  if (!scope.by_day) return date.month() - 1;
  if (date.month() != scope.month || date.day() > DaysOf(scope)) return std::nullopt;
  return date.day() - 1;
}

int PastRows(const ChartScope& scope, int rows) {
  const QDate today = scope.today;
  if (!today.isValid()) return rows;
  const int months = (scope.year - today.year()) * 12 + (scope.by_day ? scope.month : 1);
  if (!scope.by_day) return today.month() - months + 1;
  if (months != today.month()) return months < today.month() ? rows : 0;
  return today.day();
}

// What is no number counts as far as it can be read, without a word.
double Tolerant(QByteArrayView bytes) {
  if (const auto value = ParseStrict(bytes)) return *value;
  return ParseLenient(DecodeText(bytes));
}

// A sum is kept as text between two additions: 15 significant digits.
void AddTo(double& sum, double value) { sum = RoundGeneral(sum + RoundGeneral(value)); }

// `row` is one of a year ago or of the chart itself.
using AddLine = std::function<void(const ScannedDocument& line, int row, bool year_ago)>;

void Collect(const DataDir& data, const Session& session, const ChartScope& scope,
             const Progress& progress, const AddLine& add) {
  const QStringList warehouses = ReportScope{scope.warehouse, {}}.Warehouses(session);
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    const auto row = date ? RowOf(scope, *date) : std::nullopt;
    const auto ago = date ? RowOfYearAgo(scope, *date) : std::nullopt;
    while (document.NextLine()) {
      if (row) add(document, *row, false);
      if (ago) add(document, *ago, true);
    }
    if (document.IsCut()) {
      ThrowFileError(u"Документ обрывается на середине, график не построен"_s, document.File(),
                     EBADMSG);
    }
  };
  ScanWarehouses(data, session, warehouses, DocumentKind::kShipment, Unreadable::kStop, progress,
                 visit);
}

}  // namespace

ChartGrid CollectSalesChart(const DataDir& data, const Session& session, const ChartScope& scope,
                            const Progress& progress) {
  ChartGrid grid = EmptyGrid(u"График продаж за "_s, scope, {u"Реализация"_s, u"Прибыль"_s});
  grid.unit = session.currency_name;
  Collect(data, session, scope, progress, [&](const ScannedDocument& line, int row, bool year_ago) {
    const double quantity = Tolerant(line.Line(&L::quantity));
    const double revenue = Tolerant(line.Line(&L::net_price)) * quantity;
    if (year_ago) {
      AddTo(grid.year_ago[static_cast<size_t>(row)], revenue);
      return;
    }
    AddTo(grid.Cell(row, 0), revenue);
    AddTo(grid.Cell(row, 1), revenue - Tolerant(line.Line(&L::cost)) * quantity);
  });
  EndAtToday(grid, PastRows(scope, grid.RowCount()));
  return grid;
}

ChartGrid CollectGoodsChart(const DataDir& data, const Session& session, const QString& goods,
                            const ChartScope& scope, const Progress& progress) {
  ChartGrid grid =
      EmptyGrid(u"График реализации товара "_s + goods + u" за "_s, scope, {u"Количество"_s});
  const QByteArray name = EncodeText(goods);
  Collect(data, session, scope, progress, [&](const ScannedDocument& line, int row, bool year_ago) {
    if (line.Line(&L::name) != name) return;
    double& sum = year_ago ? grid.year_ago[static_cast<size_t>(row)] : grid.Cell(row, 0);
    AddTo(sum, Tolerant(line.Line(&L::quantity)));
    if (grid.unit.isEmpty()) grid.unit = DecodeText(line.Line(&L::unit));
  });
  EndAtToday(grid, PastRows(scope, grid.RowCount()));
  return grid;
}

}  // namespace kladez
