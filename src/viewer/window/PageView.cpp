#include "viewer/window/PageView.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "viewer/page/Fonts.h"
#include "viewer/window/PageAccess.h"
#include "viewer/window/SelectionText.h"
#include "viewer/window/ViewerLook.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr std::array<int, 13> kZoomSteps = {30,  50,  67,  80,  90,  100, 110,
                                            125, 150, 175, 200, 250, 300};
constexpr int kPrepareMilliseconds = 30;
// Of so many chunks it is found out beforehand how high they are, which is some thousand rows; the
// bar takes those behind them to be like them.
constexpr size_t kMostPrepared = 50;
// Documents of so many cells are kept: what is in sight, and some screenfuls around it.
constexpr size_t kKeptCells = 8000;

}  // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
  setObjectName(u"PageView"_s);
  PageAccess::Install();
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  // A bar that comes and goes would have the page stand now here, now there.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::Window, look::kDesk);
  paper.setColor(QPalette::Highlight, look::kSelection);
  paper.setColor(QPalette::HighlightedText, Qt::white);
  setPalette(paper);
  setAutoFillBackground(true);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setAutoFillBackground(true);
  viewport()->setMouseTracking(true);
  connect(&prepare_timer_, &QTimer::timeout, this, &PageView::PrepareMore);
}

PageView::~PageView() = default;

void PageView::ShowPage(std::shared_ptr<const PagePlan> plan, double paper_width) {
  paper_width_ = paper_width;
  strip_ = std::make_unique<PageStrip>(std::move(plan), kKeptCells);
  anchor_ = cursor_ = {};
  links_.clear();
  has_links_ = false;
  text_.clear();
  LayOut();
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
}

void PageView::ZoomIn() {
  const auto next = std::upper_bound(kZoomSteps.begin(), kZoomSteps.end(), zoom_);
  SetZoom(next == kZoomSteps.end() ? kZoomSteps.back() : *next);
}

void PageView::ZoomOut() {
  const auto next = std::lower_bound(kZoomSteps.begin(), kZoomSteps.end(), zoom_);
  SetZoom(next == kZoomSteps.begin() ? kZoomSteps.front() : *(next - 1));
}

void PageView::SetZoom(int percent) {
  if (percent == zoom_) return;
  zoom_ = percent;
  if (strip_ != nullptr) {
    // What stands at the top of the window stays there.
    const double top = verticalScrollBar()->value();
    const size_t chunk = strip_->ChunkAt(top);
    const double share =
        (top - strip_->Top(chunk)) / std::max(1.0, strip_->Bottom(chunk) - strip_->Top(chunk));
    LayOut();
    strip_->Document(chunk);
    SetBars();
    const double height = strip_->Bottom(chunk) - strip_->Top(chunk);
    verticalScrollBar()->setValue(top == 0 ? 0 : qRound(strip_->Top(chunk) + share * height));
  }
  emit ZoomChanged(zoom_);
}

void PageView::LayOut() {
  const int dpi = qRound(logicalDpiX() * zoom_ / 100.0);
  const double scale = dpi / kDotsPerInch;
  const double width = std::max(paper_width_, strip_->plan().ReadableWidth()) * scale;
  strip_->SetMeasure({dpi, width, look::kSheetEdge,
                      static_cast<double>(qCeil(width + 2 * look::kSheetEdge * scale))});
  CentrePage();
  LayOutSight();
  viewport()->update();
  prepared_ = 0;
  prepare_timer_.start();
}

// Lays out what is in sight; what stands at the top of the window stays there.
void PageView::LayOutSight() {
  if (strip_ == nullptr) return;
  const int value = verticalScrollBar()->value();
  const size_t first = strip_->ChunkAt(value);
  const double hidden = value - strip_->Top(first);
  for (size_t chunk = first;
       chunk < strip_->ChunkCount() &&
       strip_->Top(chunk) < strip_->Top(first) + hidden + viewport()->height();
       ++chunk)
    strip_->Document(chunk);
  SetBars();
  verticalScrollBar()->setValue(qRound(strip_->Top(first) + hidden));
}

void PageView::SetBars() {
  const int height = qRound(strip_->Height());
  verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(qRound(20 * zoom_ / 100.0));
  horizontalScrollBar()->setRange(0, std::max(0, StripWidth() - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(20);
}

int PageView::WidthForPage() const {
  return StripWidth() + verticalScrollBar()->sizeHint().width() + 2 * look::kGap;
}

void PageView::CentrePage() {
  const int room = width() - verticalScrollBar()->sizeHint().width() - StripWidth();
  const int side = std::max(0, room / 2);
  setViewportMargins(side, 0, std::max(0, room - side), 0);
}

void PageView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  CentrePage();
  LayOutSight();
}

void PageView::scrollContentsBy(int /*dx*/, int /*dy*/) { viewport()->update(); }

// Goes on behind what is in sight bit by bit, so that the window answers meanwhile.
void PageView::PrepareMore() {
  QElapsedTimer timer;
  timer.start();
  const double top = verticalScrollBar()->value();
  const size_t seen = strip_->ChunkAt(top);
  const double before = strip_->Top(seen);
  const size_t count = std::min(strip_->ChunkCount(), kMostPrepared);
  while (prepared_ < count && timer.elapsed() < kPrepareMilliseconds) strip_->Prepare(prepared_++);
  if (prepared_ == count) prepare_timer_.stop();
  const int moved = qRound(strip_->Top(seen) - before);
  SetBars();
  verticalScrollBar()->setValue(verticalScrollBar()->value() + moved);
  emit Prepared(static_cast<int>(prepared_), static_cast<int>(count));
}

void PageView::paintEvent(QPaintEvent* event) {
  if (strip_ == nullptr) return;
  LayOutSight();
  QPainter painter(viewport());
  const QRect dirty = event->rect();
  const double top = verticalScrollBar()->value();
  const int left = horizontalScrollBar()->value();
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette = palette();
  for (size_t chunk = strip_->ChunkAt(top + dirty.top());
       chunk < strip_->ChunkCount() && strip_->Top(chunk) <= top + dirty.bottom(); ++chunk) {
    const double y = strip_->Top(chunk) - top;
    painter.save();
    painter.translate(-left, y);
    context.clip = QRectF(dirty).translated(left, -y);
    painter.setClipRect(context.clip, Qt::IntersectClip);
    const QTextCursor selected = SelectionIn(chunk);
    context.selections.clear();
    if (!selected.isNull()) {
      QTextCharFormat format;
      format.setBackground(palette().highlight());
      format.setForeground(palette().highlightedText());
      context.selections.append({selected, format});
    }
    strip_->Document(chunk).document()->documentLayout()->draw(&painter, context);
    painter.restore();
  }
}

void PageView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) {
    QAbstractScrollArea::wheelEvent(event);
    return;
  }
  if (event->angleDelta().y() > 0) ZoomIn();
  if (event->angleDelta().y() < 0) ZoomOut();
  event->accept();
}

}  // namespace kladez::viewer
