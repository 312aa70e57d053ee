#include <algorithm>

#include "viewer/page/PageReader.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

const Table* AsTable(const Block& block) {
  const auto* table = std::get_if<std::unique_ptr<Table>>(&block);
  return table == nullptr ? nullptr : table->get();
}

Table* AsTable(Block& block) { return const_cast<Table*>(AsTable(std::as_const(block))); }

QString TextOf(const Block& block) {
  const Table* table = AsTable(block);
  if (table == nullptr) return std::get<Paragraph>(block).Text();
  QString text;
  for (const Row& row : table->rows)
    for (const Cell& cell : row.cells) text += cell.Text();
  return text;
}

// The row under the captions that numbers the columns: 1, 2, 3 and on.
bool NumbersColumns(const Row& row) {
  for (size_t i = 0; i < row.cells.size(); ++i)
    if (row.cells[i].Text().trimmed() != QString::number(i + 1)) return false;
  return row.cells.size() > 1;
}

// A stack is a run of tables with nothing between them; a price list is one, with a table for each
// group. Only its very first row can be its heading.
void MarkStack(const std::vector<Table*>& stack) {
  int columns = 0;
  std::vector<Row*> rows;
  for (Table* table : stack) {
    columns = std::max(columns, table->columns);
    for (Row& row : table->rows) rows.push_back(&row);
  }
  if (columns < 2) return;
  const bool has_heading = stack.front()->border > 0 && rows.front()->cells.size() > 1;
  if (has_heading &&
      std::none_of(rows.begin(), rows.end(), [](Row* row) { return row->heading; })) {
    size_t count = 1;
    for (const Cell& cell : rows.front()->cells)
      count = std::max(count, static_cast<size_t>(cell.row_span));
    count += count < rows.size() && NumbersColumns(*rows[count]) ? 1 : 0;
    std::for_each_n(rows.begin(), count, [](Row* row) { row->heading = true; });
  }
  for (Row* row : rows) {
    row->group =
        !row->heading && row->cells.size() == 1 && !row->cells.front().Text().trimmed().isEmpty();
  }
}

// From the first line to be signed after the last list of the page to the last words of the page.
void MarkSignature(Page& page) {
  size_t begin = 0;
  for (size_t i = 0; i < page.blocks.size(); ++i) {
    const Table* table = AsTable(page.blocks[i]);
    begin = table != nullptr && table->border > 0 ? i + 1 : begin;
  }
  const size_t closing = begin;
  while (begin < page.blocks.size() && !TextOf(page.blocks[begin]).contains(u"___"_s)) ++begin;
  size_t end = page.blocks.size();
  while (end > begin && TextOf(page.blocks[end - 1]).trimmed().isEmpty()) --end;
  page.closing = closing == 0 || begin == page.blocks.size() ? begin : closing;
  page.signature = begin;
  page.signature_end = end;
}

}  // namespace

void MarkPrintParts(Page& page) {
  std::vector<Table*> stack;
  for (Block& block : page.blocks) {
    Table* table = AsTable(block);
    if (!stack.empty() && (table == nullptr || !table->follows_table)) {
      MarkStack(stack);
      stack.clear();
    }
    if (table != nullptr) stack.push_back(table);
  }
  if (!stack.empty()) MarkStack(stack);
  MarkSignature(page);
}

}  // namespace kladez::viewer
