#include "viewer/paper/PageDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextFrame>
#include <QUrl>
#include <algorithm>
#include <map>
#include <tuple>

#include "viewer/page/Fonts.h"
#include "viewer/paper/PageFormats.h"
#include "viewer/paper/PictureObject.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

constexpr double kEmptyCellPoints = 1;
// Pixels: where the lines of a list item begin, and how far its bullet stands before them.
constexpr double kListIndent = 28;
constexpr double kBulletRoom = 12;

QUrl PictureUrl(const QString& name) { return QUrl(u"picture:"_s + name); }

// An empty line is as high as the letters of its block, the others as their own.
bool HasEmptyLine(const Paragraph& paragraph) {
  return std::any_of(paragraph.runs.begin(), paragraph.runs.end(), [](const Run& run) {
    return run.text.isEmpty() || run.text.contains(QChar::LineSeparator);
  });
}

// The formats of the cells of one table: few differ.
class CellFormats {
 public:
  explicit CellFormats(const Table& table) : table_(table) {}

  const QTextTableCellFormat& Of(const Cell& cell, bool is_top) {
    const auto key = std::make_tuple(static_cast<int>(cell.vertical), cell.column == 0, is_top);
    auto found = made_.find(key);
    if (found == made_.end()) found = made_.emplace(key, FormatOf(table_, cell, is_top)).first;
    return found->second;
  }

 private:
  const Table& table_;
  std::map<std::tuple<int, bool, bool>, QTextTableCellFormat> made_;
};

}  // namespace

int ResolutionDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return dpi_;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return 0;
  }
}

// Resolution, margins and width come first: each of them would have a full document laid out anew.
PageDocument::PageDocument(const PagePlan& plan, size_t chunk, const Measure& measure)
    : plan_(plan),
      measure_(measure),
      first_piece_(plan.chunks()[chunk].begin),
      device_(measure.dpi) {
  document_.setUndoRedoEnabled(false);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  document_.setDefaultTextOption(option);
  for (const auto& [name, picture] : plan.page().pictures)
    document_.addResource(QTextDocument::ImageResource, PictureUrl(name), picture);
  QAbstractTextDocumentLayout* layout = document_.documentLayout();
  layout->registerHandler(QTextFormat::ImageObject, new PictureObject(&document_));
  layout->setPaintDevice(&device_);
  QTextFrameFormat sheet = document_.rootFrame()->frameFormat();
  sheet.setMargin(measure.margin);
  if (chunk > 0) sheet.setTopMargin(0);
  if (chunk + 1 < plan.chunks().size()) sheet.setBottomMargin(0);
  document_.rootFrame()->setFrameFormat(sheet);
  document_.setTextWidth(measure.text_width);
  for (const TextStyle& style : plan.page().styles) formats_.push_back(FormatOf(style));
  QTextCursor cursor(&document_);
  cursor.beginEditBlock();
  Fill(cursor, plan.chunks()[chunk]);
  cursor.endEditBlock();
}

QTextTable* PageDocument::TableOf(size_t piece) const {
  return QTextCursor(document_.findBlockByNumber(FirstBlock(piece))).currentTable();
}

// The cursor stands in an empty block when it begins, and at the end of the last block after it.
void PageDocument::Fill(QTextCursor& cursor, const Chunk& chunk) {
  bool is_fresh = true;
  for (size_t p = chunk.begin; p < chunk.end;) {
    const Piece& piece = plan_.pieces()[p];
    if (piece.part >= 0) {
      const Part& part = plan_.parts()[static_cast<size_t>(piece.part)];
      AddPart(cursor, part);
      p += part.end - part.begin;
      is_fresh = true;
      continue;
    }
    if (!is_fresh) cursor.insertBlock();
    is_fresh = false;
    blocks_.push_back({cursor.block().blockNumber(), cursor.block().blockNumber()});
    AddParagraph(cursor, plan_.ParagraphOf(piece));
    ++p;
  }
}

void PageDocument::FillCell(QTextCursor& cursor, const std::vector<Block>& blocks) {
  bool is_fresh = true;
  for (size_t i = 0; i < blocks.size(); ++i) {
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&blocks[i])) {
      QTextTableFormat format = FormatOf(**table);
      const bool is_last = i + 1 == blocks.size();
      if (const auto* below = is_last ? nullptr : std::get_if<Paragraph>(&blocks[i + 1]))
        format.setBottomMargin(plan_.LostUnderTable(*below));
      AddRows(cursor, **table, 0, (*table)->rows.size(), format);
      is_fresh = true;
      continue;
    }
    if (!is_fresh) cursor.insertBlock();
    is_fresh = false;
    AddParagraph(cursor, std::get<Paragraph>(blocks[i]));
  }
}

void PageDocument::AddParagraph(QTextCursor& cursor, const Paragraph& paragraph) {
  QTextBlockFormat format;
  if (paragraph.align != Qt::AlignLeft) format.setAlignment(paragraph.align);
  if (paragraph.space_before > 0) format.setTopMargin(paragraph.space_before);
  if (paragraph.keep_lines) format.setNonBreakableLines(true);
  if (paragraph.listed) {
    format.setLeftMargin(kListIndent);
    format.setTextIndent(-kBulletRoom);
  }
  if (cursor.blockFormat() != format) cursor.setBlockFormat(format);
  // The first block of a cell holds the format of the cell, which has to stay.
  if (paragraph.runs.empty()) {
    QTextCharFormat none;
    none.setFontPointSize(kEmptyCellPoints);
    cursor.mergeBlockCharFormat(none);
    return;
  }
  if (HasEmptyLine(paragraph))
    cursor.mergeBlockCharFormat(formats_[static_cast<size_t>(paragraph.runs.front().style)]);
  for (const Run& run : paragraph.runs) {
    if (run.picture.isEmpty()) {
      cursor.insertText(run.text, formats_[static_cast<size_t>(run.style)]);
      continue;
    }
    const QSizeF size = plan_.page().PictureSize(run.picture);
    QTextImageFormat image;
    image.setName(PictureUrl(run.picture).toString());
    image.setWidth(size.width());
    image.setHeight(size.height());
    cursor.insertImage(image);
  }
}

void PageDocument::AddPart(QTextCursor& cursor, const Part& part) {
  const Table& table =
      *std::get<std::unique_ptr<Table>>(plan_.page().blocks[static_cast<size_t>(part.block)]);
  QTextTableFormat format = FormatOf(table);
  plan_.StackOf(part).Fit(table.columns, measure_.width, measure_.dpi / kDotsPerInch, format);
  if (const double lost = plan_.LostBelow(part); lost > 0) format.setBottomMargin(lost);
  const QTextTable* made = AddRows(cursor, table, part.begin, part.end, format);
  for (size_t r = part.begin; r < part.end; ++r) {
    const QTextTableCell cell =
        made->cellAt(static_cast<int>(r - part.begin), table.rows[r].cells.front().column);
    const int first = cell.firstCursorPosition().block().blockNumber();
    if (r > part.begin) blocks_.back().last = first - 1;
    blocks_.push_back({first, made->lastCursorPosition().block().blockNumber()});
  }
}

QTextTable* PageDocument::AddRows(QTextCursor& cursor, const Table& table, size_t begin, size_t end,
                                  const QTextTableFormat& format) {
  QTextTable* made = cursor.insertTable(static_cast<int>(end - begin), table.columns, format);
  CellFormats formats(table);
  for (size_t r = begin; r < end; ++r) {
    for (const Cell& cell : table.rows[r].cells) {
      const int row = static_cast<int>(r - begin);
      // A cell that reaches down further than its part does ends with that.
      const int down = std::min(cell.row_span, static_cast<int>(end - r));
      if (cell.column_span > 1 || down > 1)
        made->mergeCells(row, cell.column, down, cell.column_span);
      QTextTableCell place = made->cellAt(row, cell.column);
      place.setFormat(formats.Of(cell, r == 0 && !table.shares_line));
      QTextCursor inside = place.firstCursorPosition();
      FillCell(inside, cell.blocks);
    }
  }
  cursor = made->lastCursorPosition();
  cursor.movePosition(QTextCursor::NextBlock);
  return made;
}

}  // namespace kladez::viewer
