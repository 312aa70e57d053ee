#include "screens/reports/ChartPainter.h"

#include <QFontMetricsF>

#include "screens/reports/ChartCanvas.h"
#include "screens/reports/ChartMarks.h"

namespace kladez {
namespace {

// The row that is pointed at, down to its label.
void DrawBand(const ChartCanvas& canvas) {
  const ChartLayout& layout = canvas.layout;
  const int row = canvas.style.marked_row;
  if (row < 0 || row >= canvas.grid.RowCount()) return;
  const double left = layout.SlotLeft(row);
  const double right = left + layout.slot;
  const double top = layout.front.top();
  const double bottom = layout.front.bottom();
  canvas.FillRect(QRectF(QPointF(left, bottom), QPointF(right, bottom + layout.line_height * 1.35)),
                  canvas.style.band);
  canvas.FillRect(QRectF(QPointF(left, top), QPointF(right, bottom)).translated(layout.depth),
                  canvas.style.band);
}

void DrawGridLines(const ChartCanvas& canvas) {
  const ChartLayout& layout = canvas.layout;
  const QPointF depth = layout.depth;
  for (int mark = layout.axis.first; mark <= layout.axis.last; ++mark) {
    const double y = canvas.pixels.Y(layout.Y(layout.axis.Value(mark)));
    canvas.FillLineAcross(layout.front.left() + depth.x(), layout.front.right() + depth.x(),
                          y + depth.y(), canvas.style.grid);
    if (!depth.isNull()) {
      const QPointF near(layout.front.left(), y);
      canvas.DrawLine(near, near + depth, canvas.style.grid);
    }
  }
}

void DrawValueLabels(const ChartCanvas& canvas) {
  const ChartLayout& layout = canvas.layout;
  canvas.painter.setPen(canvas.style.text);
  const double gap = layout.line_height * 0.4;
  for (int mark = layout.axis.first; mark <= layout.axis.last; ++mark) {
    const double middle = layout.Y(layout.axis.Value(mark));
    const QRectF box(layout.front.left() - gap - 1000, middle - layout.line_height / 2, 1000,
                     layout.line_height);
    canvas.painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, layout.axis.Text(mark));
  }
}

void DrawRowLabels(const ChartCanvas& canvas) {
  const ChartLayout& layout = canvas.layout;
  canvas.painter.setPen(canvas.style.text);
  const QFontMetricsF metrics(layout.font);
  const double figure = metrics.horizontalAdvance(u'0');
  for (const int row : layout.shown_labels) {
    const QRectF box(layout.Middle(row) - 500, layout.front.bottom() + layout.line_height * 0.3,
                     1000, layout.line_height);
    const QString& label = canvas.grid.row_labels[row];
    // A number is shown whole however narrow its row is.
    const QString text =
        label.size() <= 2 ? label : metrics.elidedText(label, Qt::ElideRight, layout.slot - figure);
    canvas.painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, text);
  }
}

void DrawUnit(const ChartCanvas& canvas) {
  const QRectF& box = canvas.layout.unit;
  if (box.isEmpty()) return;
  const QFontMetricsF metrics(canvas.layout.font);
  canvas.painter.setPen(canvas.style.text);
  canvas.painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                          metrics.elidedText(canvas.grid.unit, Qt::ElideRight, box.width()));
}

// From the right: the last name ends at the chart's edge.
void DrawLegend(const ChartCanvas& canvas, const ChartMarks& marks) {
  const ChartLayout& layout = canvas.layout;
  if (layout.legend.isEmpty()) return;
  const int columns = canvas.ColumnCount();
  const int entries = canvas.grid.year_ago.empty() ? columns : columns + 1;
  const QFontMetricsF metrics(layout.font);
  const double key = layout.line_height * 1.3;
  const double gap = layout.line_height * 0.4;
  const double widest_name = layout.legend.width() / entries - key - gap - layout.line_height;
  double right = layout.legend.right();
  for (int entry = entries - 1; entry >= 0; --entry) {
    const bool year_ago = entry == columns;
    const QString whole =
        year_ago ? kYearAgo.toString() : canvas.grid.columns[static_cast<size_t>(entry)].name;
    const QString name = metrics.elidedText(whole, Qt::ElideRight, widest_name);
    const double width = metrics.horizontalAdvance(name);
    const QRectF text(right - width, layout.legend.top(), width + 1, layout.line_height);
    canvas.painter.setPen(canvas.style.text);
    canvas.painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, name);
    const QRectF box(text.left() - gap - key, text.top(), key, layout.line_height);
    if (year_ago) {
      DrawYearAgoKey(canvas, box);
    } else {
      marks.draw_key(canvas, entry, box);
    }
    right = text.left() - gap - key - layout.line_height;
  }
}

}  // namespace

void PaintChart(QPainter& painter, const QRectF& rect, const ChartGrid& grid, ChartKind kind,
                const ChartStyle& style) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const ChartLayout layout = LayOutChart(rect, grid, kind, style);
  const ChartCanvas canvas(&painter, grid, layout, style);
  const ChartMarks& marks = MarksOf(kind);
  painter.setFont(layout.font);
  canvas.FillRect(rect, style.ground);
  marks.draw_backdrop(canvas);
  DrawBand(canvas);
  DrawGridLines(canvas);
  marks.draw_rows(canvas);
  DrawYearAgo(canvas);
  DrawValueLabels(canvas);
  DrawRowLabels(canvas);
  DrawUnit(canvas);
  DrawLegend(canvas, marks);
  painter.restore();
}

}  // namespace kladez
