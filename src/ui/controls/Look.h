// The look of every screen, in one place: colours, spacings, fonts and icons. No other file names a
// colour or counts pixels.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>

class QLayout;
class QWidget;

namespace kladez::look {

// All distances are multiples of eight pixels, or half of one.
inline constexpr int kGrid = 8;
inline constexpr int kTight = kGrid / 2;
inline constexpr int kMargin = 2 * kGrid;
inline constexpr int kGap = 3 * kGrid;  // between groups that belong apart

// A damaged file may hold a line of millions of characters, and to draw it all would take minutes.
inline constexpr int kLongestText = 512;

// Column widths are told in twips; 15 of them are one pixel at 96 dpi.
constexpr int FromTwips(int twips) { return twips / 15; }

inline constexpr QColor kAccent{0x1F, 0x4E,
                                0x5F};  // deep blue-green: panel, chart, default command
inline constexpr QColor kAccentDeep{0x12, 0x30, 0x3B};   // where the accent fades out
inline constexpr QColor kAccentHover{0xB0, 0x5A, 0x14};  // a link on a light ground, pointed at
inline constexpr QColor kAccentLight{0xE3, 0xEE, 0xF1};  // the strip, chosen options
// The second series of a chart: light enough to differ from the accent in a black and white print.
inline constexpr QColor kWarm{0xE0, 0x9F, 0x4A};
inline constexpr QColor kOnAccent{0xFF, 0xFF, 0xFF};   // headings on the panel
inline constexpr QColor kLink{0xFF, 0xFF, 0xC0};       // links on the panel: light yellow
inline constexpr QColor kLinkHover{0xFF, 0xE0, 0xC0};  // the link under the pointer: peach
inline constexpr QColor kGroupRow{0, 0, 255};          // rows of goods groups
inline constexpr QColor kQuiet{0x6B, 0x76, 0x7B};      // notes, empty lists
inline constexpr QColor kLine{0xD5, 0xDC, 0xDF};       // thin separators
inline constexpr QColor kStripe{0xF6, 0xF9, 0xFA};     // every second row of a list
inline constexpr QColor kWarning{0xA8, 0x32, 0x1E};    // a field at fault, and why

enum class IconName {
  kAdd,
  kChange,
  kRemove,
  kUp,
  kDown,
  kSort,
  kPrint,
  kCopy,
  kPaste,
  kRefresh,
  kSave,
  kPick,
  kHint,
  kReceipt,
  kShipment,
  kTransfer,
  kStock,
  kPrices,
  kReport,
  kChart,
  kGoods,
  kParty,
  kWarehouse,
  kCurrency,
  kCalendar,
  kHome,
  kOpen,
  kProgram,
};
// A line drawing in the given colour, sharp at every size.
QIcon Icon(IconName name, const QColor& color = kAccent);

// The font itself where all its figures have one width, so that numbers in a column stand under
// each other; else the nearest one of the machine in which they have.
QFont NumberFont(const QFont& base);
QFont HeadingFont(const QFont& base);

// The usual margins and spacing of a dialog or a panel.
void SetDialogMargins(QLayout* layout);
void SetPanelMargins(QLayout* layout);

// Notes and examples stand back behind what they are written for.
void MakeQuiet(QWidget* widget);

// What is amiss: red words on the ground of a field.
void MakeWarning(QWidget* widget);

// The text of a tool tip: as it is, never as markup, in lines that fit a screen.
QString PlainToolTip(const QString& text);

// A thin line across a layout.
QWidget* NewSeparator(QWidget* parent);

}  // namespace kladez::look
