#include <algorithm>

#include "viewer/page/Limits.h"
#include "viewer/page/Markup.h"
#include "viewer/page/Normaliser.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kMostSpan = 100;

int Span(const Tag& tag, const char* name, int most) {
  return std::clamp(LeadingNumber(tag.Attribute(name), 1), 1, most);
}

// Gives each cell its column, round the cells of former rows that reach into its row, and cuts
// spans that reach out of the table. Cells too far to the right go; gives whether there were any.
bool PlaceCells(Table& table) {
  bool has_lost = false;
  std::vector<int> taken;  // for each column, the rows for which a cell above still reaches down
  const auto is_taken = [&taken](int at) {
    return at < static_cast<int>(taken.size()) && taken[static_cast<size_t>(at)] > 0;
  };
  for (Row& row : table.rows) {
    int column = 0;
    size_t kept = 0;
    for (; kept < row.cells.size(); ++kept) {
      Cell& cell = row.cells[kept];
      while (is_taken(column)) ++column;
      if (column >= limits::kColumns) break;
      cell.column = column;
      int span = 1;
      while (span < std::min(cell.column_span, limits::kColumns - column) &&
             !is_taken(column + span))
        ++span;
      cell.column_span = span;
      column += span;
      if (static_cast<int>(taken.size()) < column) taken.resize(static_cast<size_t>(column));
      std::fill(taken.begin() + cell.column, taken.begin() + column, cell.row_span);
    }
    has_lost = has_lost || kept < row.cells.size();
    row.cells.erase(row.cells.begin() + static_cast<std::ptrdiff_t>(kept), row.cells.end());
    for (int& rows : taken) rows = std::max(0, rows - 1);
  }
  std::erase_if(table.rows, [](const Row& row) { return row.cells.empty(); });
  table.columns = static_cast<int>(taken.size());
  return has_lost;
}

void CutSpans(Table& table) {
  for (size_t r = 0; r < table.rows.size(); ++r)
    for (Cell& cell : table.rows[r].cells)
      cell.row_span = std::min(cell.row_span, static_cast<int>(table.rows.size() - r));
}

}  // namespace

std::unique_ptr<Table> Normaliser::ReadTable(const GumboNode& node, const Flow::Look& look) {
  auto table = std::make_unique<Table>();
  const Tag tag(node);
  table->border = std::clamp(LeadingNumber(tag.Attribute("border"), 0), 0, 10);
  table->padding = std::clamp(LeadingNumber(tag.Attribute("cellpadding"), 1), 0, 50);
  table->spacing = std::clamp(LeadingNumber(tag.Attribute("cellspacing"), 2), 0, 50);
  table->collapse = tag.StyleProperty(u"border-collapse"_s) == u"collapse"_s;
  table->width = ParseWidth(tag.Attribute("width"));
  table->align = look.align;
  // A page without a document type: a table takes the letter's face from around it, not its size.
  Flow::Look inside;
  inside.style.family = look.style.family;
  inside.style = StyleInside(tag, inside.style);
  ReadRows(node, inside, *table);
  if (PlaceCells(*table)) is_cut_ = true;
  // What the grid is larger than its cells counts too.
  const qsizetype most = limits::kCells / std::max(1, table->columns);
  if (static_cast<qsizetype>(table->rows.size()) > most) {
    table->rows.resize(static_cast<size_t>(most));
    is_cut_ = true;
  }
  CutSpans(*table);
  return table;
}

bool Normaliser::IsRunOfPlainRows(const GumboNode& node,
                                  std::pair<qsizetype, qsizetype>* run) const {
  bool ok = false;
  const size_t index = Tag(node).Attribute("0").toULong(&ok);
  if (!ok || index >= escaped_.rows.size()) return false;
  *run = escaped_.rows[index];
  return true;
}

bool Normaliser::HasRoomFor(const Table& table) {
  if (table.rows.size() > 0) cells_ += static_cast<qsizetype>(table.rows.back().cells.size());
  if (cells_ >= limits::kCells || letters_ >= limits::kLetters) is_cut_ = true;
  return cells_ < limits::kCells && letters_ < limits::kLetters;
}

void Normaliser::ReadRows(const GumboNode& node, const Flow::Look& look, Table& table) {
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    const auto& child = *static_cast<const GumboNode*>(children.data[i]);
    if (child.type != GUMBO_NODE_ELEMENT) continue;
    if (child.v.element.tag != GUMBO_TAG_TR) {
      ReadRows(child, look, table);
      continue;
    }
    const size_t before = table.rows.size();
    std::pair<qsizetype, qsizetype> run;
    if (IsRunOfPlainRows(child, &run)) {
      ReadPlainRows(run.first, run.second, look, table);
    } else if (HasRoomFor(table)) {
      Row row = ReadRow(child, look);
      if (!row.cells.empty()) table.rows.push_back(std::move(row));
    }
    for (size_t r = before; r < table.rows.size(); ++r)
      table.rows[r].heading = node.v.element.tag == GUMBO_TAG_THEAD;
  }
}

Row Normaliser::ReadRow(const GumboNode& node, const Flow::Look& look) {
  Row row;
  Flow::Look inside = look;
  inside.align = AlignmentOf(Tag(node)).value_or(look.align);
  const Qt::Alignment vertical = VerticalOf(Tag(node)).value_or(Qt::AlignVCenter);
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    const auto& child = *static_cast<const GumboNode*>(children.data[i]);
    if (child.type != GUMBO_NODE_ELEMENT) continue;
    if (row.cells.size() == limits::kColumns) {
      is_cut_ = true;
      break;
    }
    row.cells.push_back(ReadCell(child, inside, vertical));
  }
  return row;
}

Cell Normaliser::MakeCell(const Tag& tag, const Flow::Look& look, Qt::Alignment vertical,
                          Flow::Look* inside) const {
  const bool heads = tag.kind() == GUMBO_TAG_TH;
  *inside = look;
  inside->style = StyleInside(tag, look.style);
  inside->align = AlignmentOf(tag).value_or(heads ? Qt::AlignHCenter : look.align);
  Cell cell;
  cell.width = ParseWidth(tag.Attribute("width"));
  cell.column_span = Span(tag, "colspan", kMostSpan);
  cell.row_span = Span(tag, "rowspan", 1000);
  cell.vertical = VerticalOf(tag).value_or(vertical);
  return cell;
}

void Normaliser::BeginCell() {
  if (cell_depth_++ == 0) letters_of_cell_ = 0;
}

Cell Normaliser::ReadCell(const GumboNode& node, const Flow::Look& look, Qt::Alignment vertical) {
  Flow::Look inside;
  Cell cell = MakeCell(Tag(node), look, vertical, &inside);
  BeginCell();
  Flow flow(page_, true);
  ReadChildren(node, flow, inside);
  cell.blocks = flow.Take(inside);
  --cell_depth_;
  return cell;
}

}  // namespace kladez::viewer
