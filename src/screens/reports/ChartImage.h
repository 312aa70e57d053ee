// A chart as a picture of 256 colours in memory, for the file that a print-out shows.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include "books/reports/ChartGrid.h"
#include "books/reports/IndexedImage.h"

namespace kladez {

// In the default style; the size is in pixels and not empty. The style's own colours are exact.
IndexedImage RenderChartIndexed(const ChartGrid& grid, ChartKind kind, QSize size);

// As a person takes it along, on white, with all that the screen shows: a drawing of any size, and
// a picture of 2400 by 1280 pixels.
QByteArray ChartAsSvg(const ChartGrid& grid, ChartKind kind);
QImage ChartAsPicture(const ChartGrid& grid, ChartKind kind);

}  // namespace kladez
