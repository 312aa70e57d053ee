// What the parts of the chart painter draw on: the painter, the place of everything, and the grid
// of device pixels that keeps straight edges sharp on every screen.
#pragma once

#include <QPainter>
#include <QPolygonF>

#include "screens/reports/ChartLayout.h"

namespace kladez {

// Moves lengths and places to whole device pixels. Under a turned or sheared painter there are no
// pixel edges to meet, and everything stays where it is.
class PixelGrid {
 public:
  explicit PixelGrid(const QTransform& to_device);

  bool Aligned() const { return aligned_; }
  double X(double x) const;
  double Y(double y) const;
  QPointF At(QPointF point) const { return {X(point.x()), Y(point.y())}; }
  QRectF At(const QRectF& rect) const { return {At(rect.topLeft()), At(rect.bottomRight())}; }
  // The largest whole number of pixels not over the length, but at least one.
  double Length(double length) const;

 private:
  double scale_x_ = 1;
  double scale_y_ = 1;
  double shift_x_ = 0;
  double shift_y_ = 0;
  bool aligned_ = true;
};

class ChartCanvas {
 public:
  ChartCanvas(QPainter* target, const ChartGrid& shown_grid, const ChartLayout& place,
              const ChartStyle& look);

  QPainter& painter;
  const ChartGrid& grid;
  const ChartLayout& layout;
  const ChartStyle& style;
  const PixelGrid pixels;

  const SeriesStyle& Series(int column) const {
    return style.series[static_cast<size_t>(column) % style.series.size()];
  }
  int ColumnCount() const { return static_cast<int>(grid.columns.size()); }
  // The point of the depth share (0 nearest, 1 farthest) straight behind a point of the front.
  QPointF Behind(QPointF point, double share) const { return point + layout.depth * share; }

  void FillRect(const QRectF& rect, const QColor& colour) const;
  void FillPolygon(const QPolygonF& polygon, const QColor& colour) const;
  // A sharp thin line that begins at y and runs below it: what stands on y is not covered.
  void FillLineAcross(double left, double right, double y, const QColor& colour) const;
  void DrawLine(QPointF from, QPointF to, const QColor& colour) const;
};

}  // namespace kladez
