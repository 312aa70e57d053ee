// Draws a grid of numbers as a chart of one of four kinds, on a screen, a print or a picture.
#pragma once

#include <QPainter>
#include <QRectF>

#include "books/reports/ChartGrid.h"
#include "screens/reports/ChartStyle.h"

namespace kladez {

// The name of the thin line.
inline constexpr QStringView kYearAgo = u"Год назад";

// Fills the rectangle, the ground included. The grid's title is not drawn: it stands above the
// chart on the screen and on the page. A grid without rows or columns gives an empty axis.
void PaintChart(QPainter& painter, const QRectF& rect, const ChartGrid& grid, ChartKind kind,
                const ChartStyle& style);

}  // namespace kladez
