// A table as a spreadsheet's file (XLSX): title and note above the headings, which stay in sight
// and are repeated on each printed page; numbers as numbers, dates as dates, groups in bold with
// their rows folded below them, sums as formulas.
#pragma once

#include <QByteArray>

#include "formats/tables/Table.h"

namespace kladez {

// Whether a sheet of a spreadsheet has room for the table: 1048576 rows, 16384 columns.
bool FitsWorkbook(const Table& table);

// The bytes of the file. Made in a directory for passing files, which is gone afterwards: years of
// rows do not lie in memory. Throws std::system_error where that can't be written.
QByteArray WorkbookOf(const Table& table);

}  // namespace kladez
