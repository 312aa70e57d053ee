#include "viewer/window/SelectionText.h"

#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <optional>

namespace kladez::viewer {

namespace {

// Where a block stands: in a cell of a table, or on the page.
struct Place {
  QTextTable* table = nullptr;
  int row = -1;
  int column = -1;

  explicit Place(const QTextBlock& block) : table(QTextCursor(block).currentTable()) {
    if (table != nullptr) {
      const QTextTableCell cell = table->cellAt(block.position());
      row = cell.row();
      column = cell.column();
    }
  }
};

QChar SeparatorBetween(const Place& before, const Place& after) {
  if (after.table == nullptr || before.table != after.table || before.row != after.row)
    return u'\n';
  return before.column == after.column ? u' ' : u'\t';
}

// What a selection takes in: a stretch of text, or whole cells that form a rectangle.
struct Extent {
  int begin;
  int end;
  int first_column = 0;
  int columns = -1;

  explicit Extent(const QTextCursor& selection)
      : begin(selection.selectionStart()), end(selection.selectionEnd()) {
    int first_row = 0;
    int rows = 0;
    selection.selectedTableCells(&first_row, &rows, &first_column, &columns);
    if (TakesWholeCells()) {
      const QTextTable* table = selection.currentTable();
      begin = table->cellAt(first_row, first_column).firstPosition();
      end = table->cellAt(first_row + rows - 1, first_column + columns - 1).lastPosition();
    }
  }
  bool TakesWholeCells() const { return columns > 0; }
  bool Contains(const Place& place) const {
    return !TakesWholeCells() ||
           (place.column >= first_column && place.column < first_column + columns);
  }
};

QString Plain(QString text) {
  return text.replace(QChar::Nbsp, u' ').replace(QChar::LineSeparator, u'\n');
}

// The paragraphs of a cell are parted by blanks.
QString TextOfCell(const Cell& cell) {
  QStringList texts;
  for (const Block& block : cell.blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      texts << paragraph->Text();
      continue;
    }
    for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows)
      for (const Cell& inner : row.cells) texts << TextOfCell(inner);
  }
  return texts.join(u' ');
}

}  // namespace

QString PlainTextOf(const QTextCursor& selection) {
  const Extent extent(selection);
  QString text;
  std::optional<Place> before;
  for (QTextBlock block = selection.document()->findBlock(extent.begin);
       block.isValid() && block.position() <= extent.end; block = block.next()) {
    const Place place(block);
    const bool stands_between_tables = place.table == nullptr && block.length() == 1;
    if (stands_between_tables || !extent.Contains(place)) continue;
    if (before.has_value()) text += SeparatorBetween(*before, place);
    before = place;
    const int from = std::max(0, extent.begin - block.position());
    const int to = std::min(block.length() - 1, extent.end - block.position());
    text += block.text().mid(from, to - from);
  }
  return Plain(text);
}

QString PlainTextOf(const PagePlan& plan, const Chunk& chunk) {
  QStringList lines;
  for (size_t p = chunk.begin; p < chunk.end; ++p) {
    const Piece& piece = plan.pieces()[p];
    const Table* table = plan.TableOf(piece);
    if (table == nullptr) {
      lines << plan.ParagraphOf(piece).Text();
      continue;
    }
    QStringList cells;
    for (const Cell& cell : table->rows[static_cast<size_t>(piece.row)].cells) {
      while (cells.size() < cell.column) cells << QString();
      cells << TextOfCell(cell);
    }
    lines << cells.join(u'\t');
  }
  return Plain(lines.join(u'\n'));
}

}  // namespace kladez::viewer
