#include "viewer/paper/PaperLayout.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <algorithm>

#include "viewer/page/Fonts.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// Fine enough for letters to stand as on any printer; the strip of the page is measured in it. A
// pixel of the page is a whole number of its dots, so that lines of a table meet without a gap.
constexpr int kPaperDpi = 576;
constexpr double kDotsPerPixel = kPaperDpi / kDotsPerInch;
constexpr double kDotsPerMillimetre = kPaperDpi / 25.4;

constexpr double kMostOfClosing = 0.4;
// Documents of so many cells are kept between measuring and drawing: a long register whole.
constexpr size_t kKeptCells = 120'000;

// What lies between the edges of a row and its first and last block, in pixels at 96 dpi, and the
// line above that it shares with the row before.
struct Insets {
  double line_above;
  double top;
  double bottom;

  Insets(const Table& table, const Piece& piece) {
    const bool has_line_above = table.collapse && (piece.row > 0 || table.shares_line);
    line_above = has_line_above ? table.border : 0;
    bottom = table.padding + table.border;
    top = table.padding + (has_line_above ? 0 : table.border);
  }
};

// Where no line of any cell is cut.
std::vector<double> SplitsBetween(std::vector<Slice> lines) {
  std::sort(lines.begin(), lines.end(),
            [](const Slice& a, const Slice& b) { return a.top < b.top; });
  std::vector<double> splits;
  double bottom = 0;
  for (const Slice& line : lines) {
    if (bottom > 0 && bottom <= line.top) splits.push_back(line.top);
    bottom = std::max(bottom, line.bottom);
  }
  return splits;
}

}  // namespace

int PaperLayout::PaperDpi() { return kPaperDpi; }

PaperLayout::PaperLayout(std::shared_ptr<const Page> page, const Progress& progress)
    : strip_(std::make_unique<PageStrip>(
          std::make_shared<const PagePlan>(std::move(page), progress), kKeptCells)) {}

PaperFormat PaperLayout::Propose(const PaperFormat& format) const {
  return viewer::Propose(format, strip_->plan().ReadableWidth());
}

void PaperLayout::LayOut(const PaperFormat& format, const Progress& progress) {
  format_ = format;
  sheets_.clear();
  const QSizeF body = BodyOf(format).size() * kDotsPerMillimetre;
  const double width = std::max(body.width(), strip_->plan().ReadableWidth() * kDotsPerPixel);
  scale_ = format.fit_width ? body.width() / width : 1;
  if (width != strip_->measure().width) strip_->SetMeasure({kPaperDpi, width, 0, width});
  const double height = body.height() / scale_;
  PlacePieces(height, progress);
  is_closing_short_ = IsClosingShort(height);
  sheets_ = CutIntoSheets(Units(height), height);
  DivideAcross(width, body.width() / scale_);
}

void PaperLayout::PlacePieces(double height, const Progress& progress) {
  const PagePlan& plan = strip_->plan();
  places_.clear();
  places_.reserve(plan.pieces().size());
  edges_.clear();
  for (size_t chunk = 0; chunk < strip_->ChunkCount(); ++chunk) {
    progress.Tell(static_cast<double>(places_.size()) / static_cast<double>(plan.pieces().size()));
    const PageDocument& document = strip_->Document(chunk);
    const double top = strip_->Top(chunk);
    for (size_t p = plan.chunks()[chunk].begin; p < plan.chunks()[chunk].end; ++p) {
      const bool is_row = plan.pieces()[p].part >= 0;
      Place place = is_row ? PlaceRow(document, p, height) : PlaceLines(document, p);
      place.top += top;
      place.bottom += top;
      for (Slice& line : place.lines) line = {line.top + top, line.bottom + top};
      places_.push_back(std::move(place));
      if (is_row) NoteEdges(document, p);
    }
  }
}

PaperLayout::Place PaperLayout::PlaceLines(const PageDocument& document, size_t piece) const {
  const QTextBlock block = document.document()->findBlockByNumber(document.FirstBlock(piece));
  const QRectF rect = document.document()->documentLayout()->blockBoundingRect(block);
  const double top = rect.top();
  Place place{top, rect.bottom(), {}, {}};
  for (int i = 0; i < block.layout()->lineCount(); ++i) {
    const QTextLine line = block.layout()->lineAt(i);
    place.lines.push_back({top + line.y(), top + line.y() + line.height()});
    const QStringView text = QStringView(block.text()).mid(line.textStart(), line.textLength());
    place.blanks.push_back(text.trimmed().isEmpty());
  }
  return place;
}

// The cell that needs the height of a row begins at its top, however the others are aligned.
PaperLayout::Place PaperLayout::PlaceRow(const PageDocument& document, size_t piece,
                                         double height) const {
  const auto* layout = document.document()->documentLayout();
  const Piece& row = strip_->plan().pieces()[piece];
  const QTextBlock first = document.document()->findBlockByNumber(document.FirstBlock(piece));
  const int last = document.LastBlock(piece);
  Place place;
  place.top = layout->blockBoundingRect(first).top();
  for (QTextBlock block = first; block.isValid() && block.blockNumber() <= last;
       block = block.next()) {
    const QRectF rect = layout->blockBoundingRect(block);
    place.top = std::min(place.top, rect.top());
    place.bottom = std::max(place.bottom, rect.bottom());
  }
  // Only a row that is higher than a sheet is cut.
  for (QTextBlock block = first;
       place.bottom - place.top > height / 4 && block.isValid() && block.blockNumber() <= last;
       block = block.next()) {
    const double top = layout->blockBoundingRect(block).top();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QTextLine line = block.layout()->lineAt(i);
      place.lines.push_back({top + line.y(), top + line.y() + line.height()});
    }
  }
  const Insets insets(*strip_->plan().TableOf(row), row);
  place.top -= insets.top * kDotsPerPixel;
  place.bottom += insets.bottom * kDotsPerPixel;
  return place;
}

void PaperLayout::NoteEdges(const PageDocument& document, size_t piece) {
  const int columns = strip_->plan().TableOf(strip_->plan().pieces()[piece])->columns;
  if (columns <= static_cast<int>(edges_.size())) return;
  edges_.clear();
  const auto* layout = document.document()->documentLayout();
  const QTextBlock first = document.document()->findBlockByNumber(document.FirstBlock(piece));
  const QTextTable* table = document.TableOf(piece);
  const int row = table->cellAt(first.position()).row();
  for (int column = 0; column < columns; ++column) {
    const QTextBlock block = table->cellAt(row, column).firstCursorPosition().block();
    const double inset = (kLeastPadding + 1) * kDotsPerPixel;
    edges_.push_back(layout->blockBoundingRect(block).left() - inset);
  }
}

bool PaperLayout::IsHeld(const Piece& piece) const {
  return piece.signature || (piece.closing && is_closing_short_);
}

bool PaperLayout::StaysWithNext(size_t index) const {
  const auto& pieces = strip_->plan().pieces();
  return index + 1 < pieces.size() && IsHeld(pieces[index]) && IsHeld(pieces[index + 1]);
}

// Totals and signatures stand on one sheet if that does not leave much of another empty.
bool PaperLayout::IsClosingShort(double height) const {
  const auto& pieces = strip_->plan().pieces();
  const auto is_closing = [](const Piece& piece) { return piece.closing; };
  const auto first = std::find_if(pieces.begin(), pieces.end(), is_closing);
  if (first == pieces.end()) return false;
  const auto last = std::find_if(pieces.rbegin(), pieces.rend(), is_closing);
  const Place& begin = places_[static_cast<size_t>(first - pieces.begin())];
  const Place& end = places_[static_cast<size_t>(pieces.rend() - last) - 1];
  return end.bottom - begin.top <= height * kMostOfClosing;
}

std::vector<Unit> PaperLayout::Units(double height) const {
  const auto& pieces = strip_->plan().pieces();
  std::vector<Unit> units;
  int heading = -1;
  int heading_end = -1;
  for (size_t i = 0; i < pieces.size(); ++i) {
    const Piece& piece = pieces[i];
    if (piece.part < 0) {
      AddLines(i, units);
      continue;
    }
    if (piece.begins_stack) heading = heading_end = -1;
    const int index = static_cast<int>(units.size());
    if (piece.heading && (heading < 0 || heading_end == index)) {
      heading = heading < 0 ? index : heading;
      heading_end = index + 1;
    }
    AddRow(i, height, units);
    units.back().heading = heading;
    units.back().heading_end = heading_end;
  }
  return units;
}

void PaperLayout::AddLines(size_t index, std::vector<Unit>& units) const {
  const Place& place = places_[index];
  const bool stays = StaysWithNext(index);
  for (size_t i = 0; i < place.lines.size(); ++i) {
    Unit unit;
    unit.top = place.lines[i].top;
    unit.bottom = place.lines[i].bottom;
    unit.blank = place.blanks[i];
    const bool is_last = i + 1 == place.lines.size();
    unit.keep_with_next = is_last ? stays : IsHeld(strip_->plan().pieces()[index]);
    units.push_back(unit);
  }
}

void PaperLayout::AddRow(size_t index, double height, std::vector<Unit>& units) const {
  const auto& pieces = strip_->plan().pieces();
  const Piece& piece = pieces[index];
  const bool goes_on = index + 1 < pieces.size() && pieces[index + 1].part == piece.part;
  Unit unit;
  unit.top = places_[index].top;
  unit.bottom = goes_on ? places_[index + 1].top : places_[index].bottom;
  unit.lead = Insets(*strip_->plan().TableOf(piece), piece).line_above * kDotsPerPixel;
  unit.keep_with_next = piece.heading || piece.group || piece.reaches_down || StaysWithNext(index);
  unit.blank = piece.blank;
  if (unit.bottom - unit.top > height / 2) unit.splits = SplitsBetween(places_[index].lines);
  units.push_back(unit);
}

}  // namespace kladez::viewer
