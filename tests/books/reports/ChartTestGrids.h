// Grids that the tests and benchmarks of charts draw.
#pragma once

#include <cmath>

#include "books/reports/ChartGrid.h"

namespace kladez {

inline constexpr ChartKind kAllChartKinds[] = {ChartKind::k3DBars, ChartKind::k2DBars,
                                               ChartKind::k3DLines, ChartKind::k2DLines};

// Sales as they rise and fall over the rows; with a second column, some rows are at a loss.
inline ChartGrid SalesGrid(int rows, int columns) {
  const QStringList names = {QStringLiteral("Выручка"), QStringLiteral("Прибыль")};
  ChartGrid grid =
      NumberedChartGrid(QStringLiteral("График продаж за 2026 год"), rows, names.first(columns));
  for (int row = 0; row < rows; ++row) {
    grid.Cell(row, 0) = 1250000 * (0.5 + 0.35 * std::sin(row * 0.7) + 0.15 * std::sin(row * 2.9));
    if (columns > 1) grid.Cell(row, 1) = grid.Cell(row, 0) * 0.5 * std::sin(row * 1.3);
  }
  return grid;
}

}  // namespace kladez
