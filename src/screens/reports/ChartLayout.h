// Where everything of a chart lies: the same for the painter and for what asks which row is under
// the pointer. Lengths in the painter's units.
#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <vector>

#include "books/reports/ChartAxis.h"
#include "books/reports/ChartGrid.h"
#include "screens/reports/ChartStyle.h"

namespace kladez {

struct ChartLayout {
  QRectF front;   // the plane of the data; of a chart with depth, the plane nearest to the viewer
  QPointF depth;  // from the nearest plane to the farthest; zero for a flat chart
  ChartAxis axis;
  QFont font;
  double line_height = 0;
  double slot = 0;  // the width of one row
  std::vector<int> shown_labels;
  QRectF unit;    // above the numbers of the axis; empty where there is none
  QRectF legend;  // empty when there is one column and nothing of a year ago

  double SlotLeft(int row) const { return front.left() + slot * row; }
  double Middle(int row) const { return SlotLeft(row) + slot / 2; }
  double Y(double value) const;
  // The row whose slot is under the point, or -1.
  int RowAt(QPointF point, int row_count) const;
};

bool HasDepth(ChartKind kind);
bool HasLines(ChartKind kind);

ChartLayout LayOutChart(const QRectF& rect, const ChartGrid& grid, ChartKind kind,
                        const ChartStyle& style);

}  // namespace kladez
