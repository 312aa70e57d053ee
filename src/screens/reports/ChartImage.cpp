#include "screens/reports/ChartImage.h"

#include <QImage>
#include <QPainter>

#include "books/reports/ColourTable.h"
#include "screens/reports/ChartPainter.h"

namespace kladez {

IndexedImage RenderChartIndexed(const ChartGrid& grid, ChartKind kind, QSize size) {
  const ChartStyle style = DefaultChartStyle();
  QImage canvas(size, QImage::Format_RGB32);
  canvas.fill(style.ground);
  QPainter painter(&canvas);
  PaintChart(painter, canvas.rect(), grid, kind, style);
  painter.end();

  std::vector<Rgb> own;
  for (const QColor& colour : OwnColours(style)) {
    own.push_back({static_cast<quint8>(colour.red()), static_cast<quint8>(colour.green()),
                   static_cast<quint8>(colour.blue())});
  }
  // Rows of four bytes a pixel have no padding.
  const auto* pixels = reinterpret_cast<const quint32*>(canvas.constBits());
  const auto count = static_cast<size_t>(canvas.width()) * canvas.height();
  return ReduceColours(canvas.width(), canvas.height(), {pixels, count}, own);
}

}  // namespace kladez
