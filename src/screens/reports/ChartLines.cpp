#include <algorithm>
#include <cmath>

#include "screens/reports/ChartMarks.h"

namespace kladez {
namespace {

struct Lane {
  double near = 0;
  double far = 1;
};

// The first column's ribbon lies behind the second's.
Lane LaneOf(const ChartCanvas& canvas, int column) {
  if (canvas.ColumnCount() == 1) return {0.2, 0.8};
  return column == 0 ? Lane{0.56, 0.94} : Lane{0.06, 0.44};
}

double LineWidth(const ChartCanvas& canvas) { return canvas.layout.line_height / 7; }

QPolygonF PointsOf(const ChartCanvas& canvas, int column) {
  QPolygonF points;
  for (int row = 0; row < canvas.grid.PastRows(); ++row) {
    points << QPointF(canvas.layout.Middle(row), canvas.layout.Y(canvas.grid.Cell(row, column)));
  }
  return points;
}

void DrawThinLine(const ChartCanvas& canvas, const QPolygonF& points) {
  canvas.painter.setPen(
      QPen(canvas.style.text, LineWidth(canvas) / 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  canvas.painter.setBrush(Qt::NoBrush);
  canvas.painter.drawPolyline(points);
}

// Columns differ in the marker's form too: a full disc, and a square with a light heart.
void DrawMarker(const ChartCanvas& canvas, int column, QPointF at, double radius) {
  const SeriesStyle& series = canvas.Series(column);
  QPainter& painter = canvas.painter;
  if (column == 0) {
    painter.setPen(QPen(canvas.style.ground, radius * 0.4));
    painter.setBrush(series.face);
    painter.drawEllipse(at, radius, radius);
  } else {
    const double side = radius * 0.85;
    painter.setPen(QPen(series.face, radius * 0.55));
    painter.setBrush(canvas.style.ground);
    painter.drawRect(QRectF(at.x() - side, at.y() - side, 2 * side, 2 * side));
  }
}

void DrawStroke(const ChartCanvas& canvas, const QPolygonF& points, const QColor& colour) {
  canvas.painter.setPen(
      QPen(colour, LineWidth(canvas), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  canvas.painter.setBrush(Qt::NoBrush);
  canvas.painter.drawPolyline(points);
}

void DrawArea(const ChartCanvas& canvas, QPolygonF points, const SeriesStyle& series) {
  if (points.isEmpty()) return;
  const double zero = canvas.pixels.Y(canvas.layout.Y(0));
  points << QPointF(points.last().x(), zero);
  points.prepend(QPointF(points.first().x(), zero));
  canvas.FillPolygon(points, series.area);
}

// How much light a stretch of ribbon gets, as an index of the ramp: gently falling stretches face
// the light at the upper right, and of those steeper than the view itself only the shaded under
// side is seen.
size_t LightOn(QPointF from, QPointF to, QPointF depth, size_t levels) {
  const double run = to.x() - from.x();
  const double rise = from.y() - to.y();
  if (rise * depth.x() > -depth.y() * run) return 1;
  const double light = (0.9 * run - 0.45 * rise) / std::hypot(rise, run);
  const double share = std::clamp((light - 0.4) / 0.5, 0.0, 1.0);
  return 2 + static_cast<size_t>(std::lround(share * static_cast<double>(levels - 3)));
}

// What a ribbon of one row is: there is no second row to reach for.
QPolygonF Plank(const ChartCanvas& canvas, QPointF middle) {
  const QPointF half(std::min(canvas.layout.slot * 0.4, canvas.layout.line_height), 0);
  return {middle - half, middle + half};
}

void DrawRibbon(const ChartCanvas& canvas, int column) {
  const SeriesStyle& series = canvas.Series(column);
  const Lane lane = LaneOf(canvas, column);
  const QPointF across = canvas.layout.depth * (lane.far - lane.near);
  QPolygonF near = PointsOf(canvas, column);
  if (near.size() == 1) near = Plank(canvas, near.first());
  near.translate(canvas.layout.depth * lane.near);
  for (qsizetype i = 0; i + 1 < near.size(); ++i) {
    const QPointF from = near[i];
    const QPointF to = near[i + 1];
    const QColor& colour = series.ramp[LightOn(from, to, canvas.layout.depth, series.ramp.size())];
    canvas.FillPolygon({from, to, to + across, from + across}, colour);
    // Closes the hair of ground between this stretch and the next.
    canvas.DrawLine(to, to + across, colour);
  }
  DrawStroke(canvas, near, series.Side());
}

}  // namespace

// Only the first column's: two areas would hide each other.
void DrawAreas(const ChartCanvas& canvas) {
  if (canvas.ColumnCount() > 0) DrawArea(canvas, PointsOf(canvas, 0), canvas.Series(0));
}

void DrawFlatLines(const ChartCanvas& canvas) {
  const QRectF& front = canvas.layout.front;
  canvas.FillLineAcross(front.left(), front.right(), canvas.layout.Y(0), canvas.style.zero_line);
  const double radius = std::min(canvas.layout.slot * 0.28, canvas.layout.line_height * 0.26);
  for (int column = 0; column < canvas.ColumnCount(); ++column) {
    const QPolygonF points = PointsOf(canvas, column);
    DrawStroke(canvas, points, canvas.Series(column).face);
    for (const QPointF& point : points) DrawMarker(canvas, column, point, radius);
  }
}

void DrawRibbons(const ChartCanvas& canvas) {
  DrawFloor(canvas);
  for (int column = 0; column < canvas.ColumnCount(); ++column) DrawRibbon(canvas, column);
}

void DrawYearAgo(const ChartCanvas& canvas) {
  QPolygonF points;
  for (size_t row = 0; row < canvas.grid.year_ago.size(); ++row) {
    points << QPointF(canvas.layout.Middle(static_cast<int>(row)),
                      canvas.layout.Y(canvas.grid.year_ago[row]));
  }
  DrawThinLine(canvas, points);
}

void DrawYearAgoKey(const ChartCanvas& canvas, const QRectF& box) {
  const double y = box.center().y();
  DrawThinLine(canvas, {QPointF(box.left(), y), QPointF(box.right(), y)});
}

void DrawLineKey(const ChartCanvas& canvas, int column, const QRectF& box) {
  const QPointF middle = box.center();
  DrawStroke(canvas, {{box.left(), middle.y()}, {box.right(), middle.y()}},
             canvas.Series(column).face);
  DrawMarker(canvas, column, middle, canvas.layout.line_height * 0.26);
}

void DrawRibbonKey(const ChartCanvas& canvas, int column, const QRectF& box) {
  const SeriesStyle& series = canvas.Series(column);
  const double lean = box.width() * 0.3;
  const double high = box.height() * 0.36;
  const QPointF left(box.left(), box.center().y() + high / 2);
  const QPointF right(box.right() - lean, left.y());
  canvas.FillPolygon({left, right, right + QPointF(lean, -high), left + QPointF(lean, -high)},
                     series.Top());
  DrawStroke(canvas, {left, right}, series.Side());
}

}  // namespace kladez
