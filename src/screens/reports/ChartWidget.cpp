#include "screens/reports/ChartWidget.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

#include "screens/reports/ChartPainter.h"

namespace kladez {

using namespace Qt::StringLiterals;

ChartWidget::ChartWidget(QWidget* parent) : QWidget(parent), style_(ScreenChartStyle()) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  // The painter fills the whole rectangle.
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void ChartWidget::SetGrid(const ChartGrid& grid) {
  grid_ = grid;
  setAccessibleName(grid.title);
  MarkRow(-1);
  update();
}

void ChartWidget::SetKind(ChartKind kind) {
  kind_ = kind;
  update();
}

QSize ChartWidget::sizeHint() const { return {600, 400}; }

QSize ChartWidget::minimumSizeHint() const { return {240, 150}; }

bool ChartWidget::event(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) {
    const int marked = style_.marked_row;
    style_ = ScreenChartStyle();
    style_.marked_row = marked;
  }
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  ShowRowTip(RowAt(help->pos()), help->globalPos());
  return true;
}

void ChartWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintChart(painter, rect(), grid_, kind_, style_);
  if (!hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) { MarkRow(RowAt(event->position())); }

void ChartWidget::leaveEvent(QEvent*) { MarkRow(-1); }

void ChartWidget::keyPressEvent(QKeyEvent* event) {
  const int rows = grid_.RowCount();
  const int marked = style_.marked_row;
  int row = marked;
  switch (event->key()) {
    case Qt::Key_Left:
      row = marked < 0 ? rows - 1 : marked - 1;
      break;
    case Qt::Key_Right:
      row = marked + 1;
      break;
    case Qt::Key_Home:
      row = 0;
      break;
    case Qt::Key_End:
      row = rows - 1;
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  if (rows == 0) return;
  MarkRow(std::clamp(row, 0, rows - 1));
  const ChartLayout layout = Layout();
  const QPointF foot(layout.Middle(style_.marked_row), layout.front.center().y());
  ShowRowTip(style_.marked_row, mapToGlobal(foot.toPoint()));
}

void ChartWidget::focusOutEvent(QFocusEvent* event) {
  MarkRow(-1);
  QWidget::focusOutEvent(event);
}

ChartLayout ChartWidget::Layout() const { return LayOutChart(rect(), grid_, kind_, style_); }

int ChartWidget::RowAt(QPointF point) const { return Layout().RowAt(point, grid_.RowCount()); }

void ChartWidget::MarkRow(int row) {
  if (row == style_.marked_row) return;
  style_.marked_row = row;
  // An assistive tool reads the values of the marked row.
  setAccessibleDescription(RowText(row));
  update();
}

void ChartWidget::ShowRowTip(int row, QPoint global_position) {
  if (row < 0) {
    QToolTip::hideText();
    return;
  }
  // Names are shown as they are, even if one looks like markup.
  QToolTip::showText(global_position, Qt::convertFromPlainText(RowText(row)), this);
}

QString ChartWidget::RowText(int row) const {
  if (row < 0) return {};
  const auto at = static_cast<size_t>(row);
  QStringList lines = {grid_.row_labels[row]};
  const auto add = [&](const QString& name, double value) {
    const QString text = name + u": "_s + ChartNumberText(value);
    lines.append(grid_.unit.isEmpty() ? text : text + u' ' + grid_.unit);
  };
  if (row < grid_.PastRows()) {
    for (const ChartColumn& column : grid_.columns) add(column.name, column.values[at]);
  } else {
    lines.append(u"ещё впереди"_s);
  }
  if (at < grid_.year_ago.size()) add(kYearAgo.toString(), grid_.year_ago[at]);
  return lines.join(u'\n');
}

}  // namespace kladez
