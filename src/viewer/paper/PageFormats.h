// How tables and cells of a page look in the toolkit's documents.
#pragma once

#include <QTextTableFormat>

#include "viewer/page/Page.h"

namespace kladez::viewer {

// The toolkit's format for a table: borders, widths in percent, spacing.
QTextTableFormat FormatOf(const Table& table);

// `is_top`: nothing above has a line that the cell could share.
QTextTableCellFormat FormatOf(const Table& table, const Cell& cell, bool is_top);

}  // namespace kladez::viewer
