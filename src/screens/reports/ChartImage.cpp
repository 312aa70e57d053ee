#include "screens/reports/ChartImage.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

#include "books/reports/ColourTable.h"
#include "screens/reports/ChartPainter.h"

namespace kladez {

namespace {

constexpr QSize kTakenSize(1200, 640);

}  // namespace

IndexedImage RenderChartIndexed(const ChartGrid& grid, ChartKind kind, QSize size) {
  const ChartStyle style = DefaultChartStyle();
  QImage canvas(size, QImage::Format_RGB32);
  canvas.fill(style.ground);
  QPainter painter(&canvas);
  PaintChart(painter, canvas.rect(), PrintedGrid(grid), kind, style);
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

QByteArray ChartAsSvg(const ChartGrid& grid, ChartKind kind) {
  QBuffer drawing;
  QSvgGenerator svg;
  svg.setOutputDevice(&drawing);
  svg.setSize(kTakenSize);
  svg.setViewBox(QRect(QPoint(), kTakenSize));
  svg.setTitle(grid.title);
  QPainter painter(&svg);
  PaintChart(painter, QRect(QPoint(), kTakenSize), grid, kind, DefaultChartStyle());
  painter.end();
  return drawing.data();
}

QImage ChartAsPicture(const ChartGrid& grid, ChartKind kind) {
  constexpr int kFiner = 2;
  QImage picture(kTakenSize * kFiner, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kFiner);
  QPainter painter(&picture);
  PaintChart(painter, QRect(QPoint(), kTakenSize), grid, kind, DefaultChartStyle());
  return picture;
}

}  // namespace kladez
