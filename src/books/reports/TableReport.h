// A report as rows of data: what a list shows, a chart draws and, of the reports that have no page
// of their own, the page prints. It also knows which documents stand behind each row.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "books/reports/ChartGrid.h"
#include "books/reports/DocumentSearch.h"
#include "formats/TextLines.h"

namespace kladez {

enum class FigureKind { kText, kCount, kQuantity, kMoney, kPrice, kPercent };

struct ReportColumn {
  QString title;
  FigureKind kind;
  int width;  // percent of the page
};

struct TableReport {
  using Cells = std::vector<QString>;

  QString heading{};  // "Отчет по клиентам"
  std::vector<ReportColumn> columns{};
  size_t rows = 0;
  // The text of a cell, row and column counted from 0.
  std::function<QString(size_t row, size_t column)> cell{};
  Cells total{};  // "ИТОГО:" and what adds up
  // The documents behind a row.
  std::function<DocumentsWanted(size_t row)> documents{};
  size_t names = 0;               // the column that takes the room that is left in a list
  std::vector<size_t> charted{};  // the columns of its chart; without any it has none
  int compared = -1;              // the column that the period before is set beside, row by row
  std::vector<Cells> beside{};    // stands below the total: the period before, the change since
  QString note{};                 // what a reader has to know
};

// Gives the report rows that are all made by now, cell by cell.
void SetRows(TableReport& report, std::vector<TableReport::Cells> rows);

// Sets the same report of an earlier period beside it: its total and the change below the total,
// and where a column is compared, what the row of the same first cell had there, in two columns
// more. A row that only the earlier period has comes last, without documents.
void SetBeside(TableReport& report, const TableReport& before, const ReportPeriod& period);

// The rows with most in the first charted column, the others together as "Прочие".
ChartGrid ChartOf(const TableReport& report);

// The print-out, in the form of all reports. Throws WorkCancelled.
void WriteTableReport(const TableReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress);

}  // namespace kladez
