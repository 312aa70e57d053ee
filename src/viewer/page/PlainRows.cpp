#include "viewer/page/Limits.h"
#include "viewer/page/Normaliser.h"

namespace kladez::viewer {

namespace {

GumboTag TagOf(QChar letter) {
  switch (letter.unicode()) {
    case u'b':
      return GUMBO_TAG_B;
    case u'i':
      return GUMBO_TAG_I;
    case u'u':
      return GUMBO_TAG_U;
    default:
      return GUMBO_TAG_FONT;
  }
}

}  // namespace

void Normaliser::ReadPlainRows(qsizetype begin, qsizetype end, const Flow::Look& look,
                               Table& table) {
  std::vector<RowPart> parts;
  while (begin < end && HasRoomFor(table)) {
    parts.clear();
    if (!ScanPlainRow(text_, begin, &begin, &parts)) return;
    steps_.Advance(static_cast<int>(begin));
    Row row = ReadPlainRow(parts, look);
    if (!row.cells.empty()) table.rows.push_back(std::move(row));
  }
}

Row Normaliser::ReadPlainRow(const std::vector<RowPart>& parts, const Flow::Look& look) {
  Row row;
  const Tag tag(GUMBO_TAG_TR, parts.front().text);
  Flow::Look inside = look;
  inside.align = AlignmentOf(tag).value_or(look.align);
  const Qt::Alignment vertical = VerticalOf(tag).value_or(Qt::AlignVCenter);
  for (size_t at = 1; at < parts.size(); ++at) {
    if (row.cells.size() == limits::kColumns) {
      is_cut_ = true;
      break;
    }
    Flow::Look in_cell;
    row.cells.push_back(MakeCell(Tag(GUMBO_TAG_TD, parts[at].text), inside, vertical, &in_cell));
    BeginCell();
    Flow flow(page_, true);
    ReadPlainCell(parts, &++at, flow, in_cell);
    row.cells.back().blocks = flow.Take(in_cell);
    --cell_depth_;
  }
  return row;
}

// Reads on from `*at` to the end of the cell, or of what a tag in it opens.
void Normaliser::ReadPlainCell(const std::vector<RowPart>& parts, size_t* at, Flow& flow,
                               const Flow::Look& look) {
  for (; parts[*at].kind != RowPart::Kind::kCellEnd; ++*at) {
    const RowPart& part = parts[*at];
    if (part.kind == RowPart::Kind::kText) {
      AddText(flow, PlainText(part.text), look);
    } else if (part.kind == RowPart::Kind::kBreak) {
      flow.AddBreak(look);
    } else if (part.kind == RowPart::Kind::kClose) {
      return;
    } else {
      Flow::Look inside = look;
      inside.style = StyleInside(Tag(TagOf(part.tag), part.text), look.style);
      ++*at;
      ReadPlainCell(parts, at, flow, inside);
    }
  }
}

}  // namespace kladez::viewer
