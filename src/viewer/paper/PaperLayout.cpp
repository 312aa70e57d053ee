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
constexpr size_t kPiecesAtOnce = 100;

}  // namespace

int PaperLayout::PaperDpi() { return kPaperDpi; }

PaperLayout::PaperLayout(std::shared_ptr<const Page> page, const Progress& progress)
    : document_(std::make_unique<PageDocument>(std::move(page), progress)) {
  document_->document()->setDocumentMargin(0);
  document_->SetResolution(kPaperDpi);
}

PaperFormat PaperLayout::Propose(const PaperFormat& format) const {
  return viewer::Propose(format, document_->ReadableWidth());
}

bool PaperLayout::LayOut(const PaperFormat& format, const Progress& progress) {
  format_ = format;
  sheets_.clear();
  const QSizeF body = BodyOf(format).size() * kDotsPerMillimetre;
  const double width = std::max(body.width(), document_->ReadableWidth() * kDotsPerPixel);
  scale_ = format.fit_width ? body.width() / width : 1;
  if (!LayOutPieces(width, progress)) {
    return false;
  }
  const double height = body.height() / scale_;
  is_closing_short_ = IsClosingShort(height);
  sheets_ = CutIntoSheets(Units(height), height);
  DivideAcross(width, body.width() / scale_);
  return true;
}

// The toolkit lays out as far as it is asked: in steps, a person sees how far it is.
bool PaperLayout::LayOutPieces(double width, const Progress& progress) {
  QTextDocument* document = document_->document();
  document_->FitColumns(width);
  document->setTextWidth(width);
  const auto& pieces = document_->pieces();
  for (size_t i = 0; i < pieces.size(); i += kPiecesAtOnce) {
    if (progress && !progress(static_cast<int>(i), static_cast<int>(pieces.size()))) {
      return false;
    }
    const size_t last = std::min(pieces.size(), i + kPiecesAtOnce) - 1;
    document->documentLayout()->blockBoundingRect(
        document->findBlockByNumber(pieces[last].last_block));
  }
  return true;
}

bool PaperLayout::IsHeld(const PageDocument::Piece& piece) const {
  return piece.signature || (piece.closing && is_closing_short_);
}

bool PaperLayout::StaysWithNext(size_t index) const {
  const auto& pieces = document_->pieces();
  return index + 1 < pieces.size() && IsHeld(pieces[index]) && IsHeld(pieces[index + 1]);
}

// Totals and signatures stand on one sheet if that does not leave much of another empty.
bool PaperLayout::IsClosingShort(double height) const {
  const auto& pieces = document_->pieces();
  const auto is_closing = [](const PageDocument::Piece& piece) { return piece.closing; };
  const auto first = std::find_if(pieces.begin(), pieces.end(), is_closing);
  const auto last = std::find_if(pieces.rbegin(), pieces.rend(), is_closing);
  return first != pieces.end() && RowBottom(*last) - RowTop(*first) <= height * kMostOfClosing;
}

std::vector<Unit> PaperLayout::Units(double height) const {
  const auto& pieces = document_->pieces();
  std::vector<Unit> units;
  int heading = -1;
  int heading_end = -1;
  for (size_t i = 0; i < pieces.size(); ++i) {
    const PageDocument::Piece& piece = pieces[i];
    if (piece.table == nullptr) {
      AddLines(i, units);
      continue;
    }
    if (piece.begins_stack) {
      heading = heading_end = -1;
    }
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
  const auto& pieces = document_->pieces();
  const QTextBlock block = document_->document()->findBlockByNumber(pieces[index].first_block);
  const double top = document_->document()->documentLayout()->blockBoundingRect(block).top();
  const bool stays = StaysWithNext(index);
  for (int i = 0; i < block.layout()->lineCount(); ++i) {
    const QTextLine line = block.layout()->lineAt(i);
    Unit unit;
    unit.top = top + line.y();
    unit.bottom = unit.top + line.height();
    unit.blank = block.text().mid(line.textStart(), line.textLength()).trimmed().isEmpty();
    const bool is_last = i + 1 == block.layout()->lineCount();
    unit.keep_with_next = is_last ? stays : IsHeld(pieces[index]);
    units.push_back(unit);
  }
}

void PaperLayout::AddRow(size_t index, double height, std::vector<Unit>& units) const {
  const auto& pieces = document_->pieces();
  const PageDocument::Piece& piece = pieces[index];
  const PageDocument::Piece* next = index + 1 < pieces.size() ? &pieces[index + 1] : nullptr;
  Unit unit;
  unit.top = RowTop(piece);
  unit.bottom = next != nullptr && next->table == piece.table ? RowTop(*next) : RowBottom(piece);
  unit.lead = piece.line_above * kDotsPerPixel;
  unit.keep_with_next = piece.heading || piece.group || piece.reaches_down || StaysWithNext(index);
  unit.blank = piece.blank;
  if (unit.bottom - unit.top > height / 2) {
    unit.splits = Splits(piece);
  }
  units.push_back(unit);
}

// The cell that needs the height of a row begins at its top, however the others are aligned.
double PaperLayout::RowTop(const PageDocument::Piece& piece) const {
  const auto* layout = document_->document()->documentLayout();
  QTextBlock block = document_->document()->findBlockByNumber(piece.first_block);
  double top = layout->blockBoundingRect(block).top();
  for (; block.isValid() && block.blockNumber() <= piece.last_block; block = block.next()) {
    top = std::min(top, layout->blockBoundingRect(block).top());
  }
  return top - piece.inset_top * kDotsPerPixel;
}

double PaperLayout::RowBottom(const PageDocument::Piece& piece) const {
  const auto* layout = document_->document()->documentLayout();
  QTextBlock block = document_->document()->findBlockByNumber(piece.first_block);
  double bottom = 0;
  for (; block.isValid() && block.blockNumber() <= piece.last_block; block = block.next()) {
    bottom = std::max(bottom, layout->blockBoundingRect(block).bottom());
  }
  return bottom + piece.inset_bottom * kDotsPerPixel;
}

// Where no line of any cell is cut: only a row that is higher than a sheet needs it.
std::vector<double> PaperLayout::Splits(const PageDocument::Piece& piece) const {
  const auto* layout = document_->document()->documentLayout();
  QTextBlock block = document_->document()->findBlockByNumber(piece.first_block);
  std::vector<Slice> lines;
  for (; block.isValid() && block.blockNumber() <= piece.last_block; block = block.next()) {
    const double top = layout->blockBoundingRect(block).top();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
      const QTextLine line = block.layout()->lineAt(i);
      lines.push_back({top + line.y(), top + line.y() + line.height()});
    }
  }
  std::sort(lines.begin(), lines.end(),
            [](const Slice& a, const Slice& b) { return a.top < b.top; });
  std::vector<double> splits;
  double bottom = 0;
  for (const Slice& line : lines) {
    if (bottom > 0 && bottom <= line.top) {
      splits.push_back(line.top);
    }
    bottom = std::max(bottom, line.bottom);
  }
  return splits;
}

}  // namespace kladez::viewer
