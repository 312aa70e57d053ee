// A foreign table in a file of the user's choice.
#pragma once

#include <QString>

#include "formats/tables/Sheet.h"

namespace kladez {

// Throws filesystem_error where the file can't be read, is too large or is a spreadsheet's own
// book, which only a spreadsheet can read.
Sheet ReadSheetFile(const QString& path);

}  // namespace kladez
