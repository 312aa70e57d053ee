// A table as it is taken along into another program: a list of a screen, or the figures of a
// report, before it becomes a text, a CSV file, JSON or a spreadsheet's file. Cells are texts as
// the program shows them ("1234.50", "05.03.2026"); the kind of their column says what they mean.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace kladez {

enum class CellKind {
  kText,
  kNumber,  // as many decimals as it has
  kMoney,   // two decimals
  kDate,
};

struct TableColumn {
  QString title;
  CellKind kind = CellKind::kText;
  bool total = false;  // summed up in the row "Итого"
};

struct TableRow {
  QStringList cells;      // fewer than columns where the last ones are empty
  bool is_group = false;  // heads the rows below it; its name is the first cell
};

struct Table {
  QString title;  // "Остатки на складе"
  QString note;   // in a line below the title: the warehouse, the period; may be empty
  std::vector<TableColumn> columns;
  std::vector<TableRow> rows;

  // Whether any row heads a group; whether any column is summed up.
  bool HasGroups() const;
  bool HasTotals() const;
};

// The text of a cell, empty where the row is shorter.
QString CellOf(const TableRow& row, size_t column);
// The cell's value where its column holds numbers, or dates, and its text is one.
std::optional<double> NumberOfCell(CellKind kind, const QString& text);
std::optional<QDate> DateOfCell(CellKind kind, const QString& text);

// The sum of a column of numbers over all rows but groups, what is no number left out, freed of
// what binary fractions add to decimal ones.
double TotalOf(const Table& table, size_t column);
// The row "Итого": the word in the first column, unless that is a sum itself, and the sums as
// texts, "#0.00" where the column holds money.
TableRow TotalRow(const Table& table);

// The kind that the cells of a column speak for: dates, where all that are not empty are dates.
// `is_number`: the column is known to hold numbers, and the cells tell whether they are money.
CellKind GuessKind(const std::vector<TableRow>& rows, size_t column, bool is_number);

}  // namespace kladez
