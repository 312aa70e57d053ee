#include "viewer/paper/PaperFormat.h"

#include <algorithm>

#include "viewer/page/Fonts.h"

namespace kladez::viewer {

namespace {

constexpr double kLeastPortraitScale = 0.85;

}  // namespace

QRectF BodyOf(const PaperFormat& format) {
  const QRectF paper = format.page.fullRect(QPageLayout::Millimeter);
  QMarginsF margins = format.page.margins(QPageLayout::Millimeter);
  margins.setBottom(std::max(margins.bottom(), kNumberRoom));
  return paper.marginsRemoved(margins);
}

double BodyWidth(const PaperFormat& format) {
  return BodyOf(format).width() / kMillimetresPerInch * kDotsPerInch;
}

PaperFormat Propose(PaperFormat format, double width) {
  if (format.page.orientation() == QPageLayout::Portrait &&
      BodyWidth(format) < width * kLeastPortraitScale)
    format.page.setOrientation(QPageLayout::Landscape);
  return format;
}

}  // namespace kladez::viewer
