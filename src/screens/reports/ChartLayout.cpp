#include "screens/reports/ChartLayout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace kladez {
namespace {

// Small charts stay legible, large ones do not shout.
double FontSize(const QRectF& rect) {
  const double side = std::min(rect.height(), rect.width() * 0.75);
  return std::clamp(std::round(9 + side / 90), 10.0, 18.0);
}

QPointF DepthOf(ChartKind kind, const QRectF& rect, int rows) {
  if (!HasDepth(kind)) return {};
  const double slot = rect.width() / std::max(rows, 1);
  if (HasLines(kind)) {
    // Deeper than a row is wide, the far ribbon would stand over the label of the next row.
    const double across = std::clamp(std::min(rect.width() * 0.045, slot * 0.65), 6.0, 50.0);
    return {across, -0.85 * across};
  }
  const double across = std::clamp(slot * 0.38, 4.0, 30.0);
  return {across, -0.62 * across};
}

double WidestMark(const ChartAxis& axis, const QFontMetricsF& metrics) {
  double widest = 0;
  for (int mark = axis.first; mark <= axis.last; ++mark) {
    widest = std::max(widest, metrics.horizontalAdvance(axis.Text(mark)));
  }
  return widest;
}

double WidestRowLabel(const ChartGrid& grid, const QFontMetricsF& metrics) {
  double widest = 0;
  for (const QString& label : grid.row_labels) {
    widest = std::max(widest, metrics.horizontalAdvance(label));
  }
  return widest;
}

}  // namespace

double ChartLayout::Y(double value) const {
  // Also for a value that has overflowed: it ends at the edge.
  const double held = std::isnan(value) ? 0 : std::clamp(value, axis.Lowest(), axis.Highest());
  const double share = (held - axis.Lowest()) / (axis.Highest() - axis.Lowest());
  return front.bottom() - front.height() * share;
}

int ChartLayout::RowAt(QPointF point, int row_count) const {
  const QRectF reach = front.united(front.translated(depth)).adjusted(0, 0, 0, line_height * 1.5);
  if (!reach.contains(point) || slot <= 0) return -1;
  const double middle_plane = point.x() - depth.x() / 2;
  const int row = static_cast<int>(std::floor((middle_plane - front.left()) / slot));
  return row_count > 0 ? std::clamp(row, 0, row_count - 1) : -1;
}

bool HasDepth(ChartKind kind) { return kind == ChartKind::k3DBars || kind == ChartKind::k3DLines; }

bool HasLines(ChartKind kind) { return kind == ChartKind::k3DLines || kind == ChartKind::k2DLines; }

ChartLayout LayOutChart(const QRectF& rect, const ChartGrid& grid, ChartKind kind,
                        const ChartStyle& style) {
  ChartLayout layout;
  layout.font = style.font;
  layout.font.setPixelSize(static_cast<int>(FontSize(rect)));
  // Coloured fringes round letters would be foreign colours in a picture and a print.
  layout.font.setStyleStrategy(QFont::NoSubpixelAntialias);
  const QFontMetricsF metrics(layout.font);
  layout.line_height = metrics.height();
  const double margin = std::round(layout.line_height * 0.6);
  layout.depth = DepthOf(kind, rect, grid.RowCount());

  QRectF inside = rect.adjusted(margin, margin, -margin, -margin);
  const bool has_legend = grid.columns.size() > 1 || !grid.year_ago.empty();
  if (has_legend || !grid.unit.isEmpty()) {
    const QRectF head(inside.left(), inside.top(), inside.width(), layout.line_height);
    const double unit =
        std::min(metrics.horizontalAdvance(grid.unit) + layout.line_height, head.width() / 4);
    if (!grid.unit.isEmpty()) layout.unit = QRectF(head.topLeft(), QSizeF(unit, head.height()));
    if (has_legend) layout.legend = head.adjusted(layout.unit.width(), 0, 0, 0);
    inside.setTop(inside.top() + layout.line_height * 1.5);
  }
  inside.setTop(inside.top() - layout.depth.y());
  inside.setRight(inside.right() - layout.depth.x());
  inside.setBottom(inside.bottom() - layout.line_height * 1.35);
  const int most_steps =
      std::clamp(static_cast<int>(inside.height() / (layout.line_height * 1.9)), 2, 8);
  layout.axis = AxisFor(grid, most_steps);
  inside.setLeft(inside.left() + WidestMark(layout.axis, metrics) + margin);

  layout.front = inside;
  const int rows = grid.RowCount();
  layout.slot = inside.width() / std::max(rows, 1);
  // A name may be cut to the width of its row, a number of two figures never.
  const double figure = metrics.horizontalAdvance(u'0');
  const double widest =
      std::min(WidestRowLabel(grid, metrics), std::max(layout.slot - figure, 2 * figure));
  layout.shown_labels = ShownRowLabels(rows, layout.slot, widest + figure);
  return layout;
}

}  // namespace kladez
