#include "viewer/paper/PageDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QTextCursor>
#include <QUrl>

#include "viewer/page/Fonts.h"
#include "viewer/paper/PictureObject.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// A table of more rows is cut into parts: the toolkit lays out a table in one go, and needs more
// time for a row the more of them there are.
constexpr size_t kRowsOfPart = 200;
constexpr double kEmptyCellPoints = 1;
// Pixels: where the lines of a list item begin, and how far its bullet stands before them.
constexpr double kListIndent = 28;
constexpr double kBulletRoom = 12;

QUrl PictureUrl(const QString& name) { return QUrl(u"picture:"_s + name); }

QTextLength LengthOf(const Width& width) {
  switch (width.kind) {
    case Width::Kind::kPercent:
      return QTextLength(QTextLength::PercentageLength, std::min(width.value, 100.0));
    case Width::Kind::kPixels:
      return QTextLength(QTextLength::FixedLength, width.value);
    case Width::Kind::kNone:
      break;
  }
  return QTextLength();
}

QTextTableFormat FormatOf(const Table& table) {
  QTextTableFormat format;
  format.setWidth(LengthOf(table.width));
  // The toolkit centres a table between the edge of the view and the right margin: one that takes
  // the whole width would stand half a margin too far to the right.
  if (table.width.kind != Width::Kind::kPercent || table.width.value < 100) {
    format.setAlignment(table.align);
  }
  format.setCellPadding(table.padding);
  format.setCellSpacing(table.collapse ? 0 : table.spacing);
  // A collapsed border is drawn by the cells: the toolkit draws that of a table out of its place.
  format.setBorder(table.collapse ? 0 : table.border);
  format.setBorderBrush(Qt::black);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setTopMargin(table.space_before);
  QList<QTextLength> columns;
  for (const double share : WishedShares(table)) {
    columns.append(share > 0 ? QTextLength(QTextLength::PercentageLength, share) : QTextLength());
  }
  format.setColumnWidthConstraints(columns);
  return format;
}

QTextCharFormat::VerticalAlignment VerticalOf(Qt::Alignment vertical) {
  if (vertical == Qt::AlignTop) {
    return QTextCharFormat::AlignTop;
  }
  return vertical == Qt::AlignBottom ? QTextCharFormat::AlignBottom : QTextCharFormat::AlignMiddle;
}

// Lines between cells are single: a cell has those on its right and below, and the outermost ones
// also those at the left and on top. Tables that follow each other share one in the same way.
QTextTableCellFormat FormatOf(const Table& table, const Cell& cell, bool is_top) {
  QTextTableCellFormat format;
  format.setVerticalAlignment(VerticalOf(cell.vertical));
  if (table.border == 0) {
    return format;
  }
  format.setLeftPadding(std::max(table.padding, kLeastPadding));
  format.setRightPadding(std::max(table.padding, kLeastPadding));
  if (table.collapse) {
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(Qt::black);
    format.setRightBorder(table.border);
    format.setBottomBorder(table.border);
    format.setLeftBorder(cell.column == 0 ? table.border : 0);
    format.setTopBorder(is_top ? table.border : 0);
  }
  return format;
}

bool ReachesPast(const Table& table, size_t begin, size_t end) {
  for (size_t r = begin; r < end; ++r) {
    for (const Cell& cell : table.rows[r].cells) {
      if (r + static_cast<size_t>(cell.row_span) > end) {
        return true;
      }
    }
  }
  return false;
}

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

PageDocument::PageDocument(std::shared_ptr<const Page> page, const Progress& progress)
    : page_(std::move(page)), steps_(progress, page_->RowCount()) {
  document_.setUndoRedoEnabled(false);
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  document_.setDefaultTextOption(option);
  for (const auto& [name, picture] : page_->pictures) {
    document_.addResource(QTextDocument::ImageResource, PictureUrl(name), picture);
  }
  document_.documentLayout()->registerHandler(QTextFormat::ImageObject,
                                              new PictureObject(&document_));
  MakeFormats();
  QTextCursor cursor(&document_);
  cursor.beginEditBlock();
  Fill(cursor, page_->blocks, true);
  cursor.endEditBlock();
  steps_ = {{}, 0};
}

void PageDocument::MakeFormats() {
  for (const TextStyle& style : page_->styles) {
    formats_.push_back(viewer::FormatOf(style));
  }
}

void PageDocument::SetResolution(int dpi) {
  auto device = std::make_unique<ResolutionDevice>(dpi);
  document_.documentLayout()->setPaintDevice(device.get());
  device_ = std::move(device);
  document_.markContentsDirty(0, document_.characterCount());
}

void PageDocument::FitColumns(double width) {
  const double scale = device_ == nullptr ? 1 : device_->dpi() / kDotsPerInch;
  QTextCursor cursor(&document_);
  cursor.beginEditBlock();
  for (TableStack& stack : stacks_) {
    stack.Fit(width / scale, scale);
  }
  cursor.endEditBlock();
}

double PageDocument::ReadableWidth() const {
  double width = widest_paragraph_;
  for (const TableStack& stack : stacks_) {
    width = std::max(width, stack.ReadableWidth());
  }
  return width;
}

// The cursor stands in an empty block when it begins, and at the end of the last block after it.
void PageDocument::Fill(QTextCursor& cursor, const std::vector<Block>& blocks, bool on_page) {
  bool is_fresh = true;
  for (size_t i = 0; i < blocks.size(); ++i) {
    if (on_page) {
      in_closing_ = i >= page_->closing && i < page_->signature_end;
      in_signature_ = i >= page_->signature && i < page_->signature_end;
    }
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&blocks[i])) {
      QTextTable* made = AddTable(cursor, **table, on_page);
      const bool last = i + 1 == blocks.size();
      if (const auto* below = last ? nullptr : std::get_if<Paragraph>(&blocks[i + 1])) {
        QTextTableFormat format = made->format();
        format.setBottomMargin(LostBelowTable(*below));
        made->setFormat(format);
      }
      is_fresh = true;
      continue;
    }
    if (!is_fresh) {
      cursor.insertBlock();
    }
    is_fresh = false;
    const Paragraph& paragraph = std::get<Paragraph>(blocks[i]);
    AddParagraph(cursor, paragraph);
    if (on_page) {
      NoteParagraph(cursor, paragraph);
    }
  }
}

void PageDocument::AddParagraph(QTextCursor& cursor, const Paragraph& paragraph) {
  QTextBlockFormat format;
  format.setAlignment(paragraph.align);
  format.setTopMargin(paragraph.space_before);
  format.setNonBreakableLines(paragraph.keep_lines);
  if (paragraph.listed) {
    format.setLeftMargin(kListIndent);
    format.setTextIndent(-kBulletRoom);
  }
  cursor.setBlockFormat(format);
  // The first block of a cell holds the format of the cell, which has to stay.
  if (paragraph.runs.empty()) {
    QTextCharFormat none;
    none.setFontPointSize(kEmptyCellPoints);
    cursor.mergeBlockCharFormat(none);
    return;
  }
  cursor.mergeBlockCharFormat(formats_[static_cast<size_t>(paragraph.runs.front().style)]);
  for (const Run& run : paragraph.runs) {
    if (run.picture.isEmpty()) {
      cursor.insertText(run.text, formats_[static_cast<size_t>(run.style)]);
      continue;
    }
    const QSizeF size = page_->PictureSize(run.picture);
    QTextImageFormat image;
    image.setName(PictureUrl(run.picture).toString());
    image.setWidth(size.width());
    image.setHeight(size.height());
    cursor.insertImage(image);
  }
}

// Under a table the toolkit leaves out what a paragraph keeps from what is above it, and the empty
// line with which one begins.
double PageDocument::LostBelowTable(const Paragraph& paragraph) const {
  double lost = paragraph.space_before;
  if (!paragraph.runs.empty() && paragraph.runs.front().text.startsWith(QChar::LineSeparator)) {
    const TextStyle& style = page_->styles[static_cast<size_t>(paragraph.runs.front().style)];
    lost += QFontMetricsF(ScreenFont(style)).height();
  }
  return lost;
}

QTextTable* PageDocument::AddTable(QTextCursor& cursor, const Table& table, bool on_page) {
  const size_t count = table.rows.size();
  QTextTable* made = nullptr;
  if (on_page && !table.follows_table) {
    stacks_.emplace_back();
  }
  for (size_t begin = 0; begin < count;) {
    size_t end = on_page ? std::min(count, begin + kRowsOfPart) : count;
    while (end < count && ReachesPast(table, begin, end)) {
      ++end;
    }
    made = AddRows(cursor, table, begin, end);
    if (on_page) {
      stacks_.back().Add(*page_, table, made);
      NoteRows(table, begin, end, made);
      rows_made_ += static_cast<int>(end - begin);
      steps_.Advance(rows_made_);
    }
    begin = end;
  }
  return made;
}

QTextTable* PageDocument::AddRows(QTextCursor& cursor, const Table& table, size_t begin,
                                  size_t end) {
  QTextTable* made =
      cursor.insertTable(static_cast<int>(end - begin), table.columns, FormatOf(table));
  for (size_t r = begin; r < end; ++r) {
    for (const Cell& cell : table.rows[r].cells) {
      const int row = static_cast<int>(r - begin);
      if (cell.column_span > 1 || cell.row_span > 1) {
        made->mergeCells(row, cell.column, cell.row_span, cell.column_span);
      }
      QTextTableCell place = made->cellAt(row, cell.column);
      place.setFormat(FormatOf(table, cell, r == 0 && !table.shares_line));
      QTextCursor inside = place.firstCursorPosition();
      Fill(inside, cell.blocks, false);
    }
  }
  cursor = made->lastCursorPosition();
  cursor.movePosition(QTextCursor::NextBlock);
  return made;
}

void PageDocument::NoteParagraph(const QTextCursor& cursor, const Paragraph& paragraph) {
  Piece piece;
  piece.first_block = piece.last_block = cursor.block().blockNumber();
  piece.closing = in_closing_;
  piece.signature = in_signature_;
  widest_paragraph_ = std::max(widest_paragraph_, NarrowestWidth(*page_, paragraph));
  pieces_.push_back(piece);
}

void PageDocument::NoteRows(const Table& table, size_t begin, size_t end, QTextTable* made) {
  size_t reach = 0;
  for (size_t r = begin; r < end; ++r) {
    const Row& row = table.rows[r];
    for (const Cell& cell : row.cells) {
      reach = std::max(reach, r + static_cast<size_t>(cell.row_span));
    }
    Piece piece;
    piece.table = made;
    piece.row = static_cast<int>(r - begin);
    piece.first_block = made->cellAt(piece.row, row.cells.front().column)
                            .firstCursorPosition()
                            .block()
                            .blockNumber();
    piece.last_block = made->lastCursorPosition().block().blockNumber();
    if (r > begin) {
      pieces_.back().last_block = piece.first_block - 1;
    }
    piece.begins_stack = r == 0 && !table.follows_table;
    const bool has_line_above = table.collapse && (r > 0 || table.shares_line);
    piece.line_above = has_line_above ? table.border : 0;
    piece.inset_bottom = table.padding + table.border;
    piece.inset_top = table.padding + (has_line_above ? 0 : table.border);
    piece.blank = std::all_of(row.cells.begin(), row.cells.end(),
                              [](const Cell& cell) { return cell.Text().trimmed().isEmpty(); });
    piece.reaches_down = reach > r + 1;
    piece.heading = row.heading;
    piece.group = row.group;
    piece.closing = in_closing_;
    piece.signature = in_signature_;
    pieces_.push_back(piece);
  }
}

}  // namespace kladez::viewer
