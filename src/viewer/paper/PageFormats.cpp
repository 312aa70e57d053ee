#include "viewer/paper/PageFormats.h"

#include <algorithm>

#include "viewer/paper/ColumnFit.h"

namespace kladez::viewer {

namespace {

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

QTextCharFormat::VerticalAlignment VerticalOf(Qt::Alignment vertical) {
  if (vertical == Qt::AlignTop) return QTextCharFormat::AlignTop;
  return vertical == Qt::AlignBottom ? QTextCharFormat::AlignBottom : QTextCharFormat::AlignMiddle;
}

}  // namespace

QTextTableFormat FormatOf(const Table& table) {
  QTextTableFormat format;
  format.setWidth(LengthOf(table.width));
  // The toolkit centres a table between the edge of the view and the right margin: one that takes
  // the whole width would stand half a margin too far to the right.
  if (table.width.kind != Width::Kind::kPercent || table.width.value < 100)
    format.setAlignment(table.align);
  format.setCellPadding(table.padding);
  format.setCellSpacing(table.collapse ? 0 : table.spacing);
  // A collapsed border is drawn by the cells: the toolkit draws that of a table out of its place.
  format.setBorder(table.collapse ? 0 : table.border);
  format.setBorderBrush(Qt::black);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setTopMargin(table.space_before);
  QList<QTextLength> columns;
  for (const double share : WishedShares(table))
    columns.append(share > 0 ? QTextLength(QTextLength::PercentageLength, share) : QTextLength());
  format.setColumnWidthConstraints(columns);
  return format;
}

// Lines between cells are single: a cell has those on its right and below, and the outermost ones
// also those at the left and on top. Tables that follow each other share one in the same way.
QTextTableCellFormat FormatOf(const Table& table, const Cell& cell, bool is_top) {
  QTextTableCellFormat format;
  format.setVerticalAlignment(VerticalOf(cell.vertical));
  if (table.border == 0) return format;
  format.setLeftPadding(std::max(table.padding, kLeastPadding));
  format.setRightPadding(std::max(table.padding, kLeastPadding));
  if (!table.collapse) return format;
  // Only the lines that there are: the toolkit copies the format whenever it looks at the cell.
  const auto solid = QTextFrameFormat::BorderStyle_Solid;
  format.setRightBorder(table.border);
  format.setRightBorderStyle(solid);
  format.setRightBorderBrush(Qt::black);
  format.setBottomBorder(table.border);
  format.setBottomBorderStyle(solid);
  format.setBottomBorderBrush(Qt::black);
  if (cell.column == 0) {
    format.setLeftBorder(table.border);
    format.setLeftBorderStyle(solid);
    format.setLeftBorderBrush(Qt::black);
  }
  if (is_top) {
    format.setTopBorder(table.border);
    format.setTopBorderStyle(solid);
    format.setTopBorderBrush(Qt::black);
  }
  return format;
}

}  // namespace kladez::viewer
