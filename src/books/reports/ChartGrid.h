// What a chart shows: a small table of numbers, one row a month or a day, one or two data columns.
#pragma once

#include <QString>
#include <QStringList>
#include <algorithm>
#include <vector>

namespace kladez {

// The numbers are those of the chart's kind as the program stores and passes it.
enum class ChartKind { k3DBars = 0, k2DBars = 1, k3DLines = 2, k2DLines = 3 };

struct ChartColumn {
  QString name;  // shown in the legend when there are two columns
  std::vector<double> values;
};

// Every column has as many values as there are row labels.
struct ChartGrid {
  QString title;
  QStringList row_labels;
  std::vector<ChartColumn> columns;

  // What the picture of a print-out does without: the unit of the values, the first column as it
  // was a year before (empty where it is not known), and how many rows lie behind today, all where
  // it is negative. Rows to come are not drawn as if nothing were sold in them.
  QString unit = {};
  std::vector<double> year_ago = {};
  int past_rows = -1;

  int PastRows() const { return past_rows < 0 ? RowCount() : past_rows; }
  // Rows and columns count from 0 and must exist.
  int RowCount() const { return static_cast<int>(row_labels.size()); }

  // The value, in the units of the chart.
  double& Cell(int row, int column) {
    return columns[static_cast<size_t>(column)].values[static_cast<size_t>(row)];
  }
  double Cell(int row, int column) const {
    return columns[static_cast<size_t>(column)].values[static_cast<size_t>(row)];
  }
};

// The grid without what only a screen shows.
inline ChartGrid PrintedGrid(ChartGrid grid) {
  grid.unit.clear();
  grid.year_ago.clear();
  grid.past_rows = -1;
  return grid;
}

// Keeps of a year ago what is worth a line, and of rows to come those that have something already.
inline void EndAtToday(ChartGrid& grid, int past_rows) {
  const auto is_zero = [](double value) { return value == 0; };
  if (std::ranges::all_of(grid.year_ago, is_zero)) grid.year_ago.clear();
  grid.past_rows = std::clamp(past_rows, 0, grid.RowCount());
  for (const ChartColumn& column : grid.columns) {
    const auto last = std::find_if_not(column.values.rbegin(), column.values.rend(), is_zero);
    grid.past_rows = std::max(grid.past_rows, static_cast<int>(column.values.rend() - last));
  }
}

// A grid of zeros whose rows are labelled "1", "2", ... as the months of a year or days of a month.
inline ChartGrid NumberedChartGrid(const QString& title, int rows,
                                   const QStringList& column_names) {
  ChartGrid grid;
  grid.title = title;
  for (int row = 1; row <= rows; ++row) grid.row_labels.append(QString::number(row));
  for (const QString& name : column_names) {
    grid.columns.push_back({name, std::vector<double>(static_cast<size_t>(rows), 0.0)});
  }
  return grid;
}

}  // namespace kladez
