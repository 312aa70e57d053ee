#include <algorithm>

#include "viewer/page/Markup.h"
#include "viewer/page/Normaliser.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr int kMostSpan = 100;

int Span(const GumboNode& node, const char* name, int most) {
  return std::clamp(LeadingNumber(Attribute(node, name), 1), 1, most);
}

// Gives each cell its column, round the cells of former rows that reach into its row, and cuts
// spans that reach out of the table.
void PlaceCells(Table& table) {
  std::vector<int> taken;  // for each column, the rows for which a cell above still reaches down
  for (size_t r = 0; r < table.rows.size(); ++r) {
    int column = 0;
    for (Cell& cell : table.rows[r].cells) {
      const auto is_taken = [&taken](int at) {
        return at < static_cast<int>(taken.size()) && taken[static_cast<size_t>(at)] > 0;
      };
      while (is_taken(column)) {
        ++column;
      }
      cell.column = column;
      int span = 1;
      while (span < cell.column_span && !is_taken(column + span)) {
        ++span;
      }
      cell.column_span = span;
      cell.row_span = std::min(cell.row_span, static_cast<int>(table.rows.size() - r));
      column += span;
      if (static_cast<int>(taken.size()) < column) {
        taken.resize(static_cast<size_t>(column));
      }
      std::fill(taken.begin() + cell.column, taken.begin() + column, cell.row_span);
    }
    for (int& rows : taken) {
      rows = std::max(0, rows - 1);
    }
  }
  table.columns = static_cast<int>(taken.size());
}

}  // namespace

std::unique_ptr<Table> Normaliser::ReadTable(const GumboNode& node, const Flow::Look& look) {
  auto table = std::make_unique<Table>();
  const QString border = Attribute(node, "border");
  table->border = std::clamp(LeadingNumber(border, 0), 0, 10);
  table->padding = std::clamp(LeadingNumber(Attribute(node, "cellpadding"), 1), 0, 50);
  table->spacing = std::clamp(LeadingNumber(Attribute(node, "cellspacing"), 2), 0, 50);
  table->collapse = StyleProperty(node, u"border-collapse"_s) == u"collapse"_s;
  table->width = ParseWidth(Attribute(node, "width"));
  table->align = look.align;
  // A page without a document type: a table takes the letter's face from around it, not its size.
  Flow::Look inside;
  inside.style.family = look.style.family;
  inside.style = StyleInside(node, inside.style);
  ReadRows(node, inside, *table);
  PlaceCells(*table);
  return table;
}

void Normaliser::ReadRows(const GumboNode& node, const Flow::Look& look, Table& table) {
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    const auto& child = *static_cast<const GumboNode*>(children.data[i]);
    if (child.type != GUMBO_NODE_ELEMENT) {
      continue;
    }
    if (child.v.element.tag != GUMBO_TAG_TR) {
      ReadRows(child, look, table);
      continue;
    }
    steps_.Advance(static_cast<int>(child.v.element.start_pos.offset));
    Row row = ReadRow(child, look);
    if (!row.cells.empty()) {
      row.heading = node.v.element.tag == GUMBO_TAG_THEAD;
      table.rows.push_back(std::move(row));
    }
  }
}

Row Normaliser::ReadRow(const GumboNode& node, const Flow::Look& look) {
  Row row;
  Flow::Look inside = look;
  inside.align = AlignmentOf(node).value_or(look.align);
  const Qt::Alignment vertical = VerticalOf(node).value_or(Qt::AlignVCenter);
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    const auto& child = *static_cast<const GumboNode*>(children.data[i]);
    if (child.type == GUMBO_NODE_ELEMENT) {
      row.cells.push_back(ReadCell(child, inside, vertical));
    }
  }
  return row;
}

Cell Normaliser::ReadCell(const GumboNode& node, const Flow::Look& look, Qt::Alignment vertical) {
  const bool heads = node.v.element.tag == GUMBO_TAG_TH;
  Flow::Look inside = look;
  inside.style = StyleInside(node, look.style);
  inside.align = AlignmentOf(node).value_or(heads ? Qt::AlignHCenter : look.align);
  Cell cell;
  cell.width = ParseWidth(Attribute(node, "width"));
  cell.column_span = Span(node, "colspan", kMostSpan);
  cell.row_span = Span(node, "rowspan", 1000);
  cell.vertical = VerticalOf(node).value_or(vertical);
  Flow flow(page_, true);
  ReadChildren(node, flow, inside);
  cell.blocks = flow.Take(inside);
  return cell;
}

}  // namespace kladez::viewer
