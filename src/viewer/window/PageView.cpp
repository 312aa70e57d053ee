#include "viewer/window/PageView.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "viewer/page/Fonts.h"
#include "viewer/window/SelectionText.h"
#include "viewer/window/ViewerLook.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr std::array<int, 13> kZoomSteps = {30,  50,  67,  80,  90,  100, 110,
                                            125, 150, 175, 200, 250, 300};
constexpr int kPrepareMilliseconds = 30;

}  // namespace

PageView::PageView(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(u"PageView"_s);
  setOpenLinks(false);
  setFrameShape(QFrame::NoFrame);
  setWordWrapMode(QTextOption::WordWrap);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  // A bar that comes and goes would have a long page laid out twice.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  paper.setColor(QPalette::Window, look::kDesk);
  setPalette(paper);
  setAutoFillBackground(true);
  connect(&prepare_timer_, &QTimer::timeout, this, &PageView::PrepareMore);
}

PageView::~PageView() { setDocument(nullptr); }

void PageView::ShowDocument(std::unique_ptr<PageDocument> document, double paper_width) {
  paper_width_ = paper_width;
  document->document()->setDocumentMargin(look::kSheetEdge);
  setLineWrapColumnOrWidth(0);
  setDocument(document->document());
  document_ = std::move(document);
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
  if (percent == zoom_) {
    return;
  }
  const int top = cursorForPosition(QPoint(0, 0)).position();
  zoom_ = percent;
  if (document_ != nullptr) {
    LayOut();
    // What stood at the top of the window stays there.
    QTextCursor cursor(document_->document());
    cursor.setPosition(top);
    const bool at_begin = top == 0;
    verticalScrollBar()->setValue(
        at_begin ? 0 : verticalScrollBar()->value() + cursorRect(cursor).top());
  }
  emit ZoomChanged(zoom_);
}

void PageView::LayOut() {
  const int dpi = qRound(logicalDpiX() * zoom_ / 100.0);
  const double scale = dpi / kDotsPerInch;
  document_->SetResolution(dpi);
  const double width = std::max(paper_width_, document_->ReadableWidth()) * scale;
  document_->FitColumns(width);
  setLineWrapColumnOrWidth(qCeil(width + 2 * look::kSheetEdge * scale));
  CentrePage();
  prepared_ = 0;
  prepare_timer_.start();
}

int PageView::WidthForPage() const {
  return lineWrapColumnOrWidth() + verticalScrollBar()->sizeHint().width() + 2 * look::kGap;
}

void PageView::CentrePage() {
  const int room = width() - verticalScrollBar()->sizeHint().width() - lineWrapColumnOrWidth();
  const int side = std::max(0, room / 2);
  setViewportMargins(side, 0, std::max(0, room - side), 0);
}

void PageView::resizeEvent(QResizeEvent* event) {
  QTextBrowser::resizeEvent(event);
  CentrePage();
}

// Lays out a long page bit by bit, so that the window answers meanwhile.
void PageView::PrepareMore() {
  const auto& pieces = document_->pieces();
  QElapsedTimer timer;
  timer.start();
  while (prepared_ < pieces.size() && timer.elapsed() < kPrepareMilliseconds) {
    const QTextBlock block = document()->findBlockByNumber(pieces[prepared_].last_block);
    document()->documentLayout()->blockBoundingRect(block);
    ++prepared_;
  }
  if (prepared_ == pieces.size()) {
    prepare_timer_.stop();
  }
  emit Prepared(static_cast<int>(prepared_), static_cast<int>(pieces.size()));
}

void PageView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0) {
    QAbstractScrollArea::wheelEvent(event);
    return;
  }
  if (event->angleDelta().y() > 0) {
    ZoomIn();
  } else if (event->angleDelta().y() < 0) {
    ZoomOut();
  }
  event->accept();
}

bool PageView::FindText(const QString& text, bool backward) {
  QTextDocument::FindFlags flags;
  flags.setFlag(QTextDocument::FindBackward, backward);
  QTextCursor found = document()->find(text, textCursor(), flags);
  if (found.isNull()) {
    QTextCursor edge(document());
    edge.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
    found = document()->find(text, edge, flags);
  }
  if (found.isNull()) {
    return false;
  }
  setTextCursor(found);
  ensureCursorVisible();
  return true;
}

QVariant PageView::loadResource(int /*type*/, const QUrl& /*name*/) { return {}; }

QMimeData* PageView::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(PlainTextOf(textCursor()));
  copied->setHtml(textCursor().selection().toHtml());
  return copied;
}

}  // namespace kladez::viewer
