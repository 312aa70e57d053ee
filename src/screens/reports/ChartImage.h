// A chart as a picture of 256 colours in memory, for the file that a print-out shows.
#pragma once

#include <QSize>

#include "books/reports/ChartGrid.h"
#include "books/reports/IndexedImage.h"

namespace kladez {

// In the default style; the size is in pixels and not empty. The style's own colours are exact.
IndexedImage RenderChartIndexed(const ChartGrid& grid, ChartKind kind, QSize size);

}  // namespace kladez
