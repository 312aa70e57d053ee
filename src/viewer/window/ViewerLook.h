// Colours and spacings of the viewer's windows; no other file of it has a literal one.
#pragma once

#include <QColor>
#include <QSize>

namespace kladez::viewer::look {

inline constexpr int kGap = 8;         // the grid of all spacings, in pixels
inline constexpr int kSheetEdge = 38;  // white around what is written on the screen's sheet, a
                                       // centimetre as on paper
inline constexpr int kSheetGap = 16;   // between the sheets of the preview
inline const QSize kPreviewSize(960, 760);
inline constexpr double kMostOfScreen = 0.95;      // for a window with its frame to be all in sight
inline const QColor kDesk(0xC9, 0xD3, 0xD7);       // what sheets lie on
inline const QColor kShadow(0x7A, 0x8A, 0x90);     // their outline
inline const QColor kSelection(0x1F, 0x4E, 0x5F);  // behind white letters

}  // namespace kladez::viewer::look
