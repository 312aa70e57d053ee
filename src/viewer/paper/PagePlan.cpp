#include "viewer/paper/PagePlan.h"

#include <QFontMetricsF>
#include <algorithm>

#include "viewer/page/Fonts.h"
#include "viewer/page/ProgressSteps.h"

namespace kladez::viewer {

namespace {

// A table of more rows is cut into parts: the toolkit needs more time for a row the more of them
// there are.
constexpr size_t kRowsOfPart = 200;
constexpr size_t kGridOfPart = 4000;             // its cells, the empty ones too
constexpr size_t kMostOfPart = 4 * kGridOfPart;  // with cells that reach down
// A chunk is closed when it holds so many cells, and wherever it stands when it holds many more.
constexpr size_t kCellsOfChunk = 1000;
constexpr size_t kMostOfChunk = 4 * kCellsOfChunk;
// So many letters of a paragraph weigh as much as a cell.
constexpr size_t kLettersOfCell = 50;

// The row after the last one that a cell of this row reaches.
size_t ReachOf(const Table& table, size_t row) {
  size_t reach = row + 1;
  for (const Cell& cell : table.rows[row].cells)
    reach = std::max(reach, row + static_cast<size_t>(cell.row_span));
  return reach;
}

// Where a part ends that begins at `begin`: no cell goes on behind it, if that can be had.
size_t EndOfPart(const Table& table, size_t begin) {
  const auto columns = static_cast<size_t>(std::max(1, table.columns));
  const size_t least = begin + std::min(kRowsOfPart, kGridOfPart / columns);
  size_t end = begin;
  for (size_t reach = begin; end < table.rows.size(); ++end) {
    if (end >= begin + kMostOfPart / columns || (end >= least && reach <= end)) break;
    reach = std::max(reach, ReachOf(table, end));
  }
  return end;
}

}  // namespace

PagePlan::PagePlan(std::shared_ptr<const Page> page, const Progress& progress)
    : page_(std::move(page)) {
  ProgressSteps steps(progress, static_cast<int>(page_->blocks.size()));
  for (size_t i = 0; i < page_->blocks.size(); ++i) {
    const int block = static_cast<int>(i);
    const size_t first = pieces_.size();
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&page_->blocks[i]))
      AddTable(block, **table);
    else
      AddParagraph(block);
    for (size_t p = first; p < pieces_.size(); ++p) {
      pieces_[p].closing = i >= page_->closing && i < page_->signature_end;
      pieces_[p].signature = i >= page_->signature && i < page_->signature_end;
    }
    steps.Advance(block);
  }
  Divide();
}

const Table* PagePlan::TableOf(const Piece& piece) const {
  const auto* table =
      std::get_if<std::unique_ptr<Table>>(&page_->blocks[static_cast<size_t>(piece.block)]);
  return table == nullptr ? nullptr : table->get();
}

const Paragraph& PagePlan::ParagraphOf(const Piece& piece) const {
  return std::get<Paragraph>(page_->blocks[static_cast<size_t>(piece.block)]);
}

void PagePlan::AddParagraph(int block) {
  Piece piece;
  piece.block = block;
  widest_paragraph_ = std::max(widest_paragraph_, NarrowestWidth(*page_, ParagraphOf(piece)));
  pieces_.push_back(piece);
}

void PagePlan::AddTable(int block, const Table& table) {
  if (!table.follows_table) stacks_.emplace_back();
  stacks_.back().Add(*page_, table);
  const size_t count = table.rows.size();
  for (size_t begin = 0; begin < count;) {
    const size_t end = EndOfPart(table, begin);
    parts_.push_back({block, begin, end, stacks_.size() - 1});
    AddRows(parts_.back(), table);
    begin = end;
  }
}

void PagePlan::AddRows(const Part& part, const Table& table) {
  size_t reach = 0;
  for (size_t r = part.begin; r < part.end; ++r) {
    const Row& row = table.rows[r];
    reach = std::max(reach, ReachOf(table, r));
    Piece piece;
    piece.block = part.block;
    piece.row = static_cast<int>(r);
    piece.part = static_cast<int>(parts_.size()) - 1;
    piece.begins_stack = r == 0 && !table.follows_table;
    piece.blank = std::all_of(row.cells.begin(), row.cells.end(),
                              [](const Cell& cell) { return cell.IsBlank(); });
    piece.reaches_down = reach > r + 1;
    piece.heading = row.heading;
    piece.group = row.group;
    pieces_.push_back(piece);
  }
}

size_t PagePlan::WeightOf(const Piece& piece) const {
  if (const Table* table = TableOf(piece)) return static_cast<size_t>(table->columns);
  size_t letters = 0;
  for (const Run& run : ParagraphOf(piece).runs) letters += static_cast<size_t>(run.text.size());
  return 1 + letters / kLettersOfCell;
}

// Between tables, and between paragraphs, nothing is lost when they stand in two documents.
bool PagePlan::MayPart(const Piece& before, const Piece& after, size_t cells) const {
  if (before.part >= 0 && before.part == after.part) return false;
  if ((before.part < 0) == (after.part < 0)) return cells >= kCellsOfChunk;
  // A paragraph without a letter takes no room before a table.
  return cells >= kMostOfChunk && (before.part >= 0 || !ParagraphOf(before).Text().isEmpty());
}

double PagePlan::GapAbove(const Piece& before, const Piece& after) const {
  if (after.part >= 0) return 0;
  return before.part >= 0 ? LostBelow(parts_[static_cast<size_t>(before.part)])
                          : ParagraphOf(after).space_before;
}

void PagePlan::Divide() {
  Chunk chunk;
  for (size_t p = 0; p < pieces_.size(); ++p) {
    if (p > 0 && MayPart(pieces_[p - 1], pieces_[p], chunk.cells)) {
      chunk.end = p;
      chunks_.push_back(chunk);
      chunk = {p, p, 0, GapAbove(pieces_[p - 1], pieces_[p])};
    }
    chunk.cells += WeightOf(pieces_[p]);
  }
  chunk.end = pieces_.size();
  chunks_.push_back(chunk);
}

double PagePlan::ReadableWidth() const {
  double width = widest_paragraph_;
  for (const TableStack& stack : stacks_) width = std::max(width, stack.ReadableWidth());
  return width;
}

double PagePlan::LostBelow(const Part& part) const {
  const auto next = static_cast<size_t>(part.block) + 1;
  const auto& table = std::get<std::unique_ptr<Table>>(page_->blocks[next - 1]);
  if (part.end < table->rows.size() || next == page_->blocks.size()) return 0;
  const auto* paragraph = std::get_if<Paragraph>(&page_->blocks[next]);
  return paragraph == nullptr ? 0 : LostUnderTable(*paragraph);
}

double PagePlan::LostUnderTable(const Paragraph& paragraph) const {
  double lost = paragraph.space_before;
  if (!paragraph.runs.empty() && paragraph.runs.front().text.startsWith(QChar::LineSeparator)) {
    const TextStyle& style = page_->styles[static_cast<size_t>(paragraph.runs.front().style)];
    lost += QFontMetricsF(ScreenFont(style)).height();
  }
  return lost;
}

}  // namespace kladez::viewer
