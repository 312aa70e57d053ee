#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <algorithm>

#include "viewer/page/Fonts.h"
#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr double kNumberPoints = 8;
constexpr double kEdge = 4;

}  // namespace

int PaperLayout::SheetCount() const { return static_cast<int>(sheets_.size() * across_.size()); }

// What is wider than the paper is cut between the columns of the row that has most of them.
void PaperLayout::DivideAcross(double layout_width, double paper_width) {
  across_.clear();
  double left = 0;
  while (layout_width - left > paper_width + 1) {
    double right = left + paper_width;
    const auto past = std::upper_bound(edges_.begin(), edges_.end(), right);
    if (past != edges_.begin() && *(past - 1) > left) right = *(past - 1);
    across_.push_back({left, right});
    left = right;
  }
  across_.push_back({left, layout_width});
}

void PaperLayout::Draw(QPainter& painter, int sheet, double dpi) const {
  const Sheet& rows = sheets_.at(static_cast<size_t>(sheet) / across_.size());
  const Slice& across = across_.at(static_cast<size_t>(sheet) % across_.size());
  painter.save();
  painter.translate(BodyOf(format_).topLeft() / kMillimetresPerInch * dpi);
  painter.scale(dpi / PaperDpi() * scale_, dpi / PaperDpi() * scale_);
  if (rows.heading.Height() > 0) {
    DrawSlice(painter, rows.heading, across);
    painter.translate(0, rows.heading.Height());
  }
  DrawSlice(painter, rows.body, across);
  painter.restore();
  if (SheetCount() > 1) DrawNumber(painter, sheet, dpi);
}

void PaperLayout::DrawSlice(QPainter& painter, const Slice& slice, const Slice& across) const {
  const QRectF rect(across.top, slice.top, across.Height(), slice.Height());
  painter.save();
  painter.translate(-rect.topLeft());
  painter.setClipRect(rect, Qt::IntersectClip);
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  for (size_t chunk = strip_->ChunkAt(slice.top);
       chunk < strip_->ChunkCount() && strip_->Top(chunk) < slice.bottom; ++chunk) {
    const double top = strip_->Top(chunk);
    // What only touches the edges of the slice belongs to other sheets: nobody would see it, but
    // it would be found in a PDF.
    context.clip = rect.adjusted(0, kEdge, 0, -kEdge).translated(0, -top);
    painter.translate(0, top);
    strip_->Document(chunk).document()->documentLayout()->draw(&painter, context);
    painter.translate(0, -top);
  }
  painter.restore();
}

void PaperLayout::DrawNumber(QPainter& painter, int sheet, double dpi) const {
  const QRectF paper = format_.page.fullRect(QPageLayout::Inch);
  const QMarginsF margins = format_.page.margins(QPageLayout::Inch);
  const double room = paper.height() - BodyOf(format_).bottom() / kMillimetresPerInch;
  const QRectF place(margins.left() * dpi, (paper.height() - room) * dpi,
                     (paper.width() - margins.left() - margins.right()) * dpi, room * dpi);
  TextStyle style;
  style.family = u"Arial"_s;
  QFont font = ScreenFont(style);
  font.setPixelSize(std::max(1, qRound(kNumberPoints / 72 * dpi)));
  painter.save();
  painter.setPen(Qt::black);
  painter.setFont(font);
  painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter,
                   u"лист %1 из %2"_s.arg(sheet + 1).arg(SheetCount()));
  painter.restore();
}

}  // namespace kladez::viewer
