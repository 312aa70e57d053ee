#include "shell/TitlePainting.h"

#include <QLinearGradient>
#include <QPainter>

#include "ui/controls/Look.h"

namespace kladez {

void PaintTitleGround(QPainter& painter, const QRect& room) {
  painter.save();
  painter.setClipRect(room);
  QLinearGradient ground(room.topLeft(), room.bottomRight());
  ground.setColorAt(0, look::kPanel);
  ground.setColorAt(1, look::kPanelDeep);
  painter.fillRect(room, ground);
  const int size = qMin(room.width(), room.height() * 5 / 4);
  const QRect sign(room.right() - size * 3 / 4, room.bottom() - size * 7 / 8, size, size);
  painter.setOpacity(0.09);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(sign, look::Icon(look::IconName::kProgram, look::kOnPanel).pixmap(128));
  painter.restore();
}

QFont TitleFont(const QFont& base) {
  QFont font(base);
  font.setPointSizeF(base.pointSizeF() * 2.2);
  font.setWeight(QFont::Light);
  return font;
}

}  // namespace kladez
