// The look of every screen, in one place: spacings, fonts and icons, and with them the colours. No
// other file names a colour or counts pixels.
#pragma once

#include <QFont>
#include <QIcon>

#include "ui/base/Colours.h"

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
// A line drawing, sharp at every size, in the colour for the ground that the program has then.
QIcon Icon(IconName name, const Shade& shade = kAccent);
// As large as the letters of the widget ask for.
QSize IconSize(const QWidget* widget);

// The font itself where all its figures have one width, so that numbers in a column stand under
// each other; else the nearest one of the machine in which they have.
QFont NumberFont(const QFont& base);
QFont HeadingFont(const QFont& base);

// So many steps of the grid, more of them where the letters of the widget are larger than usual.
int ByLetters(const QWidget* widget, int steps);
QSize ByLetters(const QWidget* widget, int across, int down);

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
