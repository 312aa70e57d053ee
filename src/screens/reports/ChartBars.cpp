#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "screens/reports/ChartMarks.h"

namespace kladez {
namespace {

// Of the depth of the whole chart, what a bar takes.
constexpr double kNearSide = 0.12;
constexpr double kFarSide = 0.88;

// Bars have one width in whole pixels: with their own rounding, neighbours would differ visibly.
double BarWidth(const ChartCanvas& canvas) {
  const bool solid = !canvas.layout.depth.isNull();
  const double share = solid ? 0.58 : canvas.layout.slot < 14 ? 0.8 : 0.72;
  const double widest = canvas.layout.line_height * 3.2;
  return canvas.pixels.Length(std::min(canvas.layout.slot * share / canvas.ColumnCount(), widest));
}

// From zero to the value; a value that is not zero is at least a pixel high.
QRectF BarRect(const ChartCanvas& canvas, int row, int column, double width) {
  const ChartLayout& layout = canvas.layout;
  const double value = canvas.grid.Cell(row, column);
  const double zero = canvas.pixels.Y(layout.Y(0));
  const double height =
      std::max(std::abs(canvas.pixels.Y(layout.Y(value)) - zero), canvas.pixels.Length(1));
  const double left =
      canvas.pixels.X(layout.Middle(row) - width * canvas.ColumnCount() / 2) + width * column;
  return {left, value < 0 ? zero : zero - height, width, height};
}

// On narrow bars strokes would be mere noise.
void Hatch(const ChartCanvas& canvas, const QRectF& bar, const SeriesStyle& series) {
  const double spacing = canvas.layout.line_height * 0.42;
  if (series.hatch == series.face || BarWidth(canvas) < spacing * 1.2) return;
  canvas.painter.save();
  canvas.painter.setClipRect(bar, Qt::IntersectClip);
  canvas.painter.setPen(QPen(series.hatch, spacing * 0.3));
  const double reach = bar.height();
  for (double x = bar.left() - reach; x < bar.right(); x += spacing) {
    canvas.painter.drawLine(QPointF(x, bar.bottom()), QPointF(x + reach, bar.top()));
  }
  canvas.painter.restore();
}

void DrawFlatBar(const ChartCanvas& canvas, const QRectF& bar, const SeriesStyle& series) {
  canvas.FillRect(bar, series.face);
  Hatch(canvas, bar, series);
}

// The faces share their edges, so each later one is laid over the full shape of those before it;
// faces that only met would let the ground shine through.
void DrawSolidBar(const ChartCanvas& canvas, const QRectF& bar, bool with_top,
                  const SeriesStyle& series) {
  const QRectF front = canvas.pixels.At(bar.translated(canvas.layout.depth * kNearSide));
  const QPointF back =
      canvas.pixels.At(front.topRight() + canvas.layout.depth * (kFarSide - kNearSide)) -
      front.topRight();
  canvas.FillPolygon(
      {front.topRight(), front.topRight() + back, front.bottomRight() + back, front.bottomRight()},
      series.Side());
  if (with_top) {
    canvas.FillPolygon(
        {front.topLeft(), front.topLeft() + back, front.topRight() + back, front.topRight()},
        series.Top());
  }
  DrawFlatBar(canvas, front, series);
}

}  // namespace

void DrawFlatBars(const ChartCanvas& canvas) {
  const QRectF& front = canvas.layout.front;
  canvas.FillLineAcross(front.left(), front.right(), canvas.layout.Y(0), canvas.style.zero_line);
  const double width = BarWidth(canvas);
  for (int row = 0; row < canvas.grid.RowCount(); ++row) {
    for (int column = 0; column < canvas.ColumnCount(); ++column) {
      const double value = canvas.grid.Cell(row, column);
      if (!(value < 0 || value > 0)) continue;
      DrawFlatBar(canvas, BarRect(canvas, row, column, width), canvas.Series(column));
    }
  }
}

// The viewer stands to the right and above: what is farther left is drawn first, and what hangs
// below the floor before the floor.
void DrawSolidBars(const ChartCanvas& canvas) {
  const double width = BarWidth(canvas);
  for (const bool above : {false, true}) {
    if (above) DrawFloor(canvas);
    for (int row = 0; row < canvas.grid.RowCount(); ++row) {
      for (int column = 0; column < canvas.ColumnCount(); ++column) {
        const double value = canvas.grid.Cell(row, column);
        if (above ? value > 0 : value < 0) {
          DrawSolidBar(canvas, BarRect(canvas, row, column, width), above, canvas.Series(column));
        }
      }
    }
  }
}

void DrawBarKey(const ChartCanvas& canvas, int column, const QRectF& box) {
  const double side = canvas.pixels.Length(box.height() * 0.7);
  const QPointF corner(box.right() - side, box.center().y() - side / 2);
  DrawFlatBar(canvas, canvas.pixels.At(QRectF(corner, QSizeF(side, side))), canvas.Series(column));
}

}  // namespace kladez
