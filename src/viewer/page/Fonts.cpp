#include "viewer/page/Fonts.h"

#include <QColor>
#include <QStringList>

namespace kladez::viewer {

QTextCharFormat FormatOf(const TextStyle& style) {
  // What is as by itself is left out: the toolkit copies a format for every cell it looks at.
  QTextCharFormat format;
  format.setFontFamilies({style.family});
  format.setFontPointSize(style.points);
  if (style.bold) format.setFontWeight(QFont::Bold);
  if (style.italic) format.setFontItalic(true);
  if (style.underline) format.setFontUnderline(true);
  if (const QColor color(style.color); color.isValid()) format.setForeground(color);
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
