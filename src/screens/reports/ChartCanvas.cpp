#include "screens/reports/ChartCanvas.h"

#include <algorithm>
#include <cmath>

namespace kladez {

PixelGrid::PixelGrid(const QTransform& to_device)
    : scale_x_(to_device.m11()),
      scale_y_(to_device.m22()),
      shift_x_(to_device.dx()),
      shift_y_(to_device.dy()),
      aligned_(to_device.type() <= QTransform::TxScale && scale_x_ > 0 && scale_y_ > 0) {}

double PixelGrid::X(double x) const {
  return aligned_ ? (std::round(x * scale_x_ + shift_x_) - shift_x_) / scale_x_ : x;
}

double PixelGrid::Y(double y) const {
  return aligned_ ? (std::round(y * scale_y_ + shift_y_) - shift_y_) / scale_y_ : y;
}

double PixelGrid::Length(double length) const {
  return aligned_ ? std::max(std::floor(length * scale_x_), 1.0) / scale_x_ : length;
}

ChartCanvas::ChartCanvas(QPainter* target, const ChartGrid& shown_grid, const ChartLayout& place,
                         const ChartStyle& look)
    : painter(*target),
      grid(shown_grid),
      layout(place),
      style(look),
      pixels(target->deviceTransform()) {}

void ChartCanvas::FillRect(const QRectF& rect, const QColor& colour) const {
  // The last binary digit of an aligned place would otherwise still blend an edge by a shade.
  painter.setRenderHint(QPainter::Antialiasing, !pixels.Aligned());
  painter.fillRect(pixels.At(rect), colour);
  painter.setRenderHint(QPainter::Antialiasing);
}

void ChartCanvas::FillPolygon(const QPolygonF& polygon, const QColor& colour) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(colour);
  painter.drawPolygon(polygon);
}

void ChartCanvas::FillLineAcross(double left, double right, double y, const QColor& colour) const {
  const double top = pixels.Y(y);
  FillRect(QRectF(QPointF(left, top), QPointF(right, top + pixels.Length(1))), colour);
}

void ChartCanvas::DrawLine(QPointF from, QPointF to, const QColor& colour) const {
  painter.setPen(QPen(colour, pixels.Length(1)));
  painter.drawLine(from, to);
}

}  // namespace kladez
