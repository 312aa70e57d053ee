#include "viewer/page/Fonts.h"

#include <QColor>
#include <QStringList>

namespace kladez::viewer {

QTextCharFormat FormatOf(const TextStyle& style) {
  QTextCharFormat format;
  format.setFontFamilies({style.family});
  format.setFontPointSize(style.points);
  format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(style.italic);
  format.setFontUnderline(style.underline);
  const QColor color(style.color);
  format.setForeground(color.isValid() ? color : QColor(Qt::black));
  if (!style.link.isEmpty()) {
    format.setAnchor(true);
    format.setAnchorHref(style.link);
    format.setFontUnderline(true);
    format.setForeground(Qt::blue);
  }
  return format;
}

QFont ScreenFont(const TextStyle& style) {
  QFont font = FormatOf(style).font();
  font.setPixelSize(qRound(style.points * kPixelsPerPoint));
  return font;
}

}  // namespace kladez::viewer
