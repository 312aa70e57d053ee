// The paper that a page is printed on, and which way round it is proposed.
#pragma once

#include <QPageLayout>
#include <QRectF>

namespace kladez::viewer {

inline constexpr double kMillimetresPerInch = 25.4;

// The bottom margin, in millimetres, that the number of a sheet needs at least.
inline constexpr double kNumberRoom = 8;

// The paper and how a page is put on it.
struct PaperFormat {
  QPageLayout page{QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 15),
                   QPageLayout::Millimeter};
  bool fit_width = true;  // shrink what is too wide; else it goes on on sheets to the right
};

// Where the page is drawn on a sheet, in millimetres from the corner of the paper.
QRectF BodyOf(const PaperFormat& format);

// The width of that place in pixels at 96 dpi.
double BodyWidth(const PaperFormat& format);

// `format`, turned to landscape when a page that needs `width` pixels at 96 dpi would have to
// shrink below 0.85 in portrait.
PaperFormat Propose(PaperFormat format, double width);

}  // namespace kladez::viewer
