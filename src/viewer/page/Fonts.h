// The fonts of a style: what the document is built with, and what its words are measured with.
#pragma once

#include <QFont>
#include <QTextCharFormat>

#include "viewer/page/Page.h"

namespace kladez::viewer {

// A pixel of a page is the ninety-sixth part of an inch, a point the seventy-second.
inline constexpr double kDotsPerInch = 96;
inline constexpr double kPixelsPerPoint = kDotsPerInch / 72;

// The toolkit's format for letters of that style, sizes in points.
QTextCharFormat FormatOf(const TextStyle& style);

// The font at 96 dots to the inch, whatever the screen has.
QFont ScreenFont(const TextStyle& style);

}  // namespace kladez::viewer
