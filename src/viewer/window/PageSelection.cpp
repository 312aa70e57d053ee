// What a person selects on the page, finds in it and follows from it.
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <algorithm>

#include "viewer/window/PageView.h"
#include "viewer/window/SelectionText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// A selection over more chunks is copied as text only: nobody pastes so much as a formatted page.
constexpr size_t kMostFormatted = 8;

bool Contains(const std::vector<Block>& blocks, const QString& text) {
  return std::any_of(blocks.begin(), blocks.end(), [&text](const Block& block) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block))
      return paragraph->Text().replace(QChar::Nbsp, u' ').contains(text, Qt::CaseInsensitive);
    const auto& rows = std::get<std::unique_ptr<Table>>(block)->rows;
    return std::any_of(rows.begin(), rows.end(), [&text](const Row& row) {
      return std::any_of(row.cells.begin(), row.cells.end(),
                         [&text](const Cell& cell) { return Contains(cell.blocks, text); });
    });
  });
}

// Whether it is worth while to look for `text` in the document of a chunk.
bool MayHold(const PagePlan& plan, const Chunk& chunk, const QString& text) {
  for (size_t p = chunk.begin; p < chunk.end; ++p) {
    const Piece& piece = plan.pieces()[p];
    const Table* table = plan.TableOf(piece);
    if (table == nullptr) {
      QString words = plan.ParagraphOf(piece).Text();
      if (words.replace(QChar::Nbsp, u' ').contains(text, Qt::CaseInsensitive)) return true;
      continue;
    }
    for (const Cell& cell : table->rows[static_cast<size_t>(piece.row)].cells)
      if (Contains(cell.blocks, text)) return true;
  }
  return false;
}

}  // namespace

QPointF PageView::InChunk(size_t chunk, const QPoint& at) const {
  return {static_cast<double>(at.x() + horizontalScrollBar()->value()),
          at.y() + verticalScrollBar()->value() - strip_->Top(chunk)};
}

PageView::Spot PageView::SpotAt(const QPoint& at) const {
  const size_t chunk = strip_->ChunkAt(at.y() + verticalScrollBar()->value());
  const auto* layout = strip_->Document(chunk).document()->documentLayout();
  return {chunk, std::max(0, layout->hitTest(InChunk(chunk, at), Qt::FuzzyHit))};
}

QString PageView::LinkAt(const QPoint& at) const {
  if (strip_ == nullptr) return {};
  const size_t chunk = strip_->ChunkAt(at.y() + verticalScrollBar()->value());
  return strip_->Document(chunk).document()->documentLayout()->anchorAt(InChunk(chunk, at));
}

// The part of the selection that lies in a chunk; null when none does.
QTextCursor PageView::SelectionIn(size_t chunk) const {
  const auto [begin, end] = std::minmax(anchor_, cursor_);
  if (begin == end || chunk < begin.chunk || chunk > end.chunk) return {};
  QTextDocument* document = strip_->Document(chunk).document();
  QTextCursor selected(document);
  selected.setPosition(chunk == begin.chunk ? begin.position : 0);
  selected.setPosition(chunk == end.chunk ? end.position : document->characterCount() - 1,
                       QTextCursor::KeepAnchor);
  return selected;
}

void PageView::Select(const Spot& anchor, const Spot& cursor) {
  anchor_ = anchor;
  cursor_ = cursor;
  viewport()->update();
}

void PageView::SelectAll() {
  if (strip_ == nullptr) return;
  const size_t last = strip_->ChunkCount() - 1;
  Select({}, {last, strip_->Document(last).document()->characterCount() - 1});
}

QString PageView::SelectedText() const {
  if (strip_ == nullptr || anchor_ == cursor_) return {};
  const auto [begin, end] = std::minmax(anchor_, cursor_);
  QStringList texts;
  for (size_t chunk = begin.chunk; chunk <= end.chunk; ++chunk) {
    const bool is_whole = begin.chunk < chunk && chunk < end.chunk;
    texts << (is_whole ? PlainTextOf(strip_->plan(), strip_->plan().chunks()[chunk])
                       : PlainTextOf(SelectionIn(chunk)));
  }
  return texts.join(u'\n');
}

const QString& PageView::Text() const {
  constexpr qsizetype kMost = 1'000'000;
  if (strip_ == nullptr || !text_.isEmpty()) return text_;
  for (const Chunk& chunk : strip_->plan().chunks()) {
    text_ += PlainTextOf(strip_->plan(), chunk) + u'\n';
    if (text_.size() > kMost) break;
  }
  return text_;
}

void PageView::Copy() const {
  if (strip_ == nullptr || anchor_ == cursor_) return;
  auto* copied = new QMimeData;
  copied->setText(SelectedText());
  const auto [begin, end] = std::minmax(anchor_, cursor_);
  QString formatted;
  for (size_t chunk = begin.chunk; chunk <= end.chunk && end.chunk - begin.chunk < kMostFormatted;
       ++chunk)
    formatted += SelectionIn(chunk).selection().toHtml();
  if (!formatted.isEmpty()) copied->setHtml(formatted);
  QApplication::clipboard()->setMimeData(copied);
}

void PageView::mousePressEvent(QMouseEvent* event) {
  if (strip_ == nullptr || event->button() != Qt::LeftButton) return;
  const Spot spot = SpotAt(event->position().toPoint());
  pressed_link_ = LinkAt(event->position().toPoint());
  const bool extends = (event->modifiers() & Qt::ShiftModifier) != 0;
  Select(extends ? anchor_ : spot, spot);
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (strip_ == nullptr) return;
  if ((event->buttons() & Qt::LeftButton) == 0) {
    viewport()->setCursor(LinkAt(at).isEmpty() ? Qt::IBeamCursor : Qt::PointingHandCursor);
    return;
  }
  ScrollTowards(at);
  Select(anchor_, SpotAt(at));
}

// Brings what lies beyond the edge that the pointer has crossed into sight.
void PageView::ScrollTowards(const QPoint& at) {
  const QRect seen = viewport()->rect();
  const auto beyond = [](int place, int last) {
    return place < 0 ? place : std::max(0, place - last);
  };
  verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond(at.y(), seen.bottom()));
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + beyond(at.x(), seen.right()));
}

void PageView::mouseReleaseEvent(QMouseEvent* event) {
  if (strip_ == nullptr || event->button() != Qt::LeftButton) return;
  const QString link = LinkAt(event->position().toPoint());
  if (anchor_ == cursor_ && !link.isEmpty() && link == pressed_link_) {
    emit LinkActivated(QUrl(link));
    return;
  }
  if (anchor_ != cursor_ && QApplication::clipboard()->supportsSelection())
    QApplication::clipboard()->setText(SelectedText(), QClipboard::Selection);
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (strip_ == nullptr || event->button() != Qt::LeftButton) return;
  const Spot spot = SpotAt(event->position().toPoint());
  QTextCursor word(strip_->Document(spot.chunk).document());
  word.setPosition(spot.position);
  word.select(QTextCursor::WordUnderCursor);
  Select({spot.chunk, word.anchor()}, {spot.chunk, word.position()});
}

bool PageView::FindText(const QString& text, bool backward) {
  if (strip_ == nullptr) return false;
  QTextDocument::FindFlags flags;
  flags.setFlag(QTextDocument::FindBackward, backward);
  const auto [begin, end] = std::minmax(anchor_, cursor_);
  const Spot from = backward ? begin : end;
  const size_t count = strip_->ChunkCount();
  // Round the page, and at last in what was passed over of the chunk where the search began.
  for (size_t step = 0; step <= count; ++step) {
    const size_t chunk = (from.chunk + (backward ? count - step % count : step)) % count;
    if (!MayHold(strip_->plan(), strip_->plan().chunks()[chunk], text)) continue;
    QTextDocument* document = strip_->Document(chunk).document();
    QTextCursor start(document);
    if (step == 0)
      start.setPosition(std::min(from.position, document->characterCount() - 1));
    else if (backward)
      start.movePosition(QTextCursor::End);
    const QTextCursor found = document->find(text, start, flags);
    if (!found.isNull()) {
      SelectFound(chunk, found);
      return true;
    }
  }
  return false;
}

void PageView::SelectFound(size_t chunk, const QTextCursor& found) {
  Select({chunk, found.selectionStart()}, {chunk, found.selectionEnd()});
  ShowSelection();
}

QPoint PageView::SelectionPoint() const {
  const Spot spot = std::min(anchor_, cursor_);
  const QTextDocument* document = strip_->Document(spot.chunk).document();
  const QTextBlock block = document->findBlock(spot.position);
  const QTextLine line = block.layout()->lineForTextPosition(spot.position - block.position());
  QPointF at = document->documentLayout()->blockBoundingRect(block).topLeft();
  if (line.isValid())
    at += QPointF(line.cursorToX(spot.position - block.position()), line.y() + line.height() / 2);
  return QPointF(at.x() - horizontalScrollBar()->value(),
                 at.y() + strip_->Top(spot.chunk) - verticalScrollBar()->value())
      .toPoint();
}

// Brings the line where the selection begins into sight, if it is not.
void PageView::ShowSelection() {
  strip_->Document(std::min(anchor_, cursor_).chunk);
  SetBars();
  const QPoint at = SelectionPoint();
  const int edge = fontMetrics().height();
  if (at.y() < edge || at.y() > viewport()->height() - edge) {
    verticalScrollBar()->setValue(verticalScrollBar()->value() + at.y() - viewport()->height() / 3);
    LayOutSight();
  }
}

const std::vector<PageView::Link>& PageView::Links() {
  const auto& styles = strip_->plan().page().styles;
  const bool none = std::all_of(styles.begin(), styles.end(),
                                [](const TextStyle& style) { return style.link.isEmpty(); });
  for (size_t chunk = 0; !has_links_ && !none && chunk < strip_->ChunkCount(); ++chunk) {
    const QTextDocument* document = strip_->Document(chunk).document();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment part = at.fragment();
        if (!part.charFormat().isAnchor()) continue;
        links_.push_back({{chunk, part.position()},
                          {chunk, part.position() + part.length()},
                          part.charFormat().anchorHref()});
      }
    }
  }
  has_links_ = true;
  return links_;
}

// Tab goes from link to link, and on to the next control behind the last.
bool PageView::focusNextPrevChild(bool next) {
  if (strip_ != nullptr) {
    const auto& links = Links();
    const auto is_after = [this](const Link& link) { return link.begin >= cursor_; };
    const auto is_before = [this](const Link& link) { return link.end <= anchor_; };
    const auto forward = std::find_if(links.begin(), links.end(), is_after);
    const auto back = std::find_if(links.rbegin(), links.rend(), is_before);
    const Link* link = nullptr;
    if (next && forward != links.end()) link = &*forward;
    if (!next && back != links.rend()) link = &*back;
    if (link != nullptr) {
      Select(link->begin, link->end);
      ShowSelection();
      return true;
    }
  }
  return QAbstractScrollArea::focusNextPrevChild(next);
}

void PageView::keyPressEvent(QKeyEvent* event) {
  if (strip_ != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    for (const Link& link : Links()) {
      if (link.begin == anchor_ && link.end == cursor_) {
        emit LinkActivated(QUrl(QString(link.target)));
        return;
      }
    }
  }
  if (event->key() == Qt::Key_Home)
    verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
  else if (event->key() == Qt::Key_End)
    verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
  else
    QAbstractScrollArea::keyPressEvent(event);
}

}  // namespace kladez::viewer
