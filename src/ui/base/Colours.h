// The colours of every screen, each of them for light ground and for dark ground. Papers and charts
// are white on every screen and take the light ones.
#pragma once

#include <QColor>
#include <QPalette>

class QWidget;

namespace kladez::look {

// Used as a colour it is the one for the ground that the program has now.
struct Shade {
  QColor light;
  QColor dark;
  operator QColor() const;  // NOLINT: a shade is a colour wherever one is asked for
};

// Whether windows are dark now, by the choice of the user or of the desktop.
bool IsDark();

// Links, headings, icons, the frame of the field under the pointer.
inline constexpr Shade kAccent{{0x1F, 0x4E, 0x5F}, {0x8F, 0xC7, 0xDA}};
inline constexpr Shade kAccentHover{{0x98, 0x4C, 0x0C}, {0xF0, 0xA8, 0x68}};  // a link pointed at
inline constexpr Shade kAccentLight{{0xE3, 0xEE, 0xF1}, {0x24, 0x36, 0x3D}};  // the strip
// The ground of the panel and of the title, and where it fades out.
inline constexpr Shade kPanel{{0x1F, 0x4E, 0x5F}, {0x16, 0x32, 0x3D}};
inline constexpr Shade kPanelDeep{{0x12, 0x30, 0x3B}, {0x0C, 0x21, 0x29}};
inline constexpr Shade kOnPanel{{0xFF, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF}};    // headings on the panel
inline constexpr Shade kLink{{0xFF, 0xFF, 0xC0}, {0xFF, 0xFF, 0xC0}};       // links: light yellow
inline constexpr Shade kLinkHover{{0xFF, 0xE0, 0xC0}, {0xFF, 0xE0, 0xC0}};  // pointed at: peach
inline constexpr Shade kGroupRow{{0, 0, 255}, {0x93, 0xA9, 0xFF}};          // rows of goods groups
inline constexpr Shade kQuiet{{0x56, 0x61, 0x68}, {0xA3, 0xB2, 0xB9}};      // notes, empty lists
inline constexpr Shade kLine{{0xD5, 0xDC, 0xDF}, {0x3C, 0x47, 0x4B}};       // thin separators
inline constexpr Shade kStripe{{0xF6, 0xF9, 0xFA}, {0x20, 0x27, 0x2A}};     // every second row
inline constexpr Shade kEdge{{0x74, 0x80, 0x86}, {0x93, 0xA3, 0xAA}};   // around what is filled in
inline constexpr Shade kStill{{0xEF, 0xEF, 0xEF}, {0x22, 0x28, 0x2B}};  // fields that only show
// A field at fault, and why; a number below zero.
inline constexpr Shade kWarning{{0xA8, 0x32, 0x1E}, {0xFF, 0x8A, 0x75}};

// How much lighter the one is than the other, 1 to 21: text wants 4.5, an icon 3.
double Contrast(const QColor& one, const QColor& other);

// The part of the widget has the shade, also after the ground has changed.
void Paint(QWidget* widget, QPalette::ColorRole part, const Shade& shade);

enum class Scheme { kSystem, kLight, kDark };
// The colours of the program from now on. Those of the desktop are taken as they are, but that a
// selected row can be read; the edges of fields and buttons are drawn by EdgedStyle from then on.
void UseScheme(Scheme scheme);
// For what is paper, whatever the ground around it.
QPalette PaperPalette();

}  // namespace kladez::look
