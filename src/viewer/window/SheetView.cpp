#include "viewer/window/SheetView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "viewer/window/ViewerLook.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kKeptPictures = 12;
constexpr double kLeastDpi = 24;
constexpr double kMostDpi = 144;

}  // namespace

SheetView::SheetView(QWidget* parent) : QAbstractScrollArea(parent), pictures_(kKeptPictures) {
  setObjectName(u"SheetView"_s);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
}

void SheetView::ShowSheets(const PaperLayout* layout) {
  layout_ = layout;
  Arrange();
  verticalScrollBar()->setValue(0);
  current_ = CurrentSheet();
  emit CurrentSheetChanged(current_);
}

void SheetView::SetWholeSheet(bool whole) {
  const int sheet = current_;
  whole_ = whole;
  Arrange();
  GoToSheet(sheet);
}

QSize SheetView::SheetSize() const {
  const QSizeF inches = layout_->format().page.fullRect(QPageLayout::Inch).size();
  return (inches * dpi_).toSize();
}

void SheetView::Arrange() {
  pictures_.clear();
  const int count = layout_ == nullptr ? 0 : layout_->SheetCount();
  if (count > 0) {
    const QSizeF inches = layout_->format().page.fullRect(QPageLayout::Inch).size();
    dpi_ = (viewport()->width() - 2 * look::kSheetGap) / inches.width();
    if (whole_)
      dpi_ = std::min(dpi_, (viewport()->height() - 2 * look::kSheetGap) / inches.height());
    dpi_ = std::clamp(dpi_, kLeastDpi, kMostDpi);
    const int height = count * (SheetSize().height() + look::kSheetGap) + look::kSheetGap;
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(SheetSize().height() / 10);
  } else {
    verticalScrollBar()->setRange(0, 0);
  }
  viewport()->update();
}

QRect SheetView::SheetRect(int sheet) const {
  const QSize size = SheetSize();
  const int top = look::kSheetGap + sheet * (size.height() + look::kSheetGap);
  return QRect(QPoint((viewport()->width() - size.width()) / 2, top - verticalScrollBar()->value()),
               size);
}

int SheetView::CurrentSheet() const {
  if (layout_ == nullptr || layout_->SheetCount() == 0) return -1;
  const int middle = verticalScrollBar()->value() + viewport()->height() / 2 - look::kSheetGap;
  const int sheet = middle / (SheetSize().height() + look::kSheetGap);
  return std::clamp(sheet, 0, layout_->SheetCount() - 1);
}

void SheetView::GoToSheet(int sheet) {
  if (layout_ == nullptr || layout_->SheetCount() == 0) return;
  sheet = std::clamp(sheet, 0, layout_->SheetCount() - 1);
  verticalScrollBar()->setValue(sheet * (SheetSize().height() + look::kSheetGap));
  current_ = sheet;
}

QPixmap* SheetView::Picture(int sheet) {
  if (QPixmap* kept = pictures_.object(sheet)) return kept;
  const qreal ratio = devicePixelRatioF();
  auto* picture = new QPixmap(SheetSize() * ratio);
  picture->setDevicePixelRatio(ratio);
  picture->fill(Qt::white);
  QPainter painter(picture);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  layout_->Draw(painter, sheet, dpi_);
  painter.end();
  pictures_.insert(sheet, picture);
  return picture;
}

void SheetView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), look::kDesk);
  const int count = layout_ == nullptr ? 0 : layout_->SheetCount();
  if (count == 0) return;
  const int first = verticalScrollBar()->value() / (SheetSize().height() + look::kSheetGap);
  for (int sheet = first; sheet < count; ++sheet) {
    const QRect rect = SheetRect(sheet);
    if (rect.top() > viewport()->height()) break;
    painter.setPen(look::kShadow);
    painter.drawRect(rect.adjusted(-1, -1, 0, 0));
    painter.drawPixmap(rect.topLeft(), *Picture(sheet));
  }
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  const int sheet = current_;
  Arrange();
  GoToSheet(sheet);
}

void SheetView::scrollContentsBy(int /*dx*/, int /*dy*/) {
  viewport()->update();
  current_ = CurrentSheet();
  emit CurrentSheetChanged(current_);
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      GoToSheet(0);
      break;
    case Qt::Key_End:
      GoToSheet(layout_ == nullptr ? 0 : layout_->SheetCount() - 1);
      break;
    case Qt::Key_PageDown:
      GoToSheet(CurrentSheet() + 1);
      break;
    case Qt::Key_PageUp:
      GoToSheet(CurrentSheet() - 1);
      break;
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

}  // namespace kladez::viewer
