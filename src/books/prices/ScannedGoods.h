// A scanned barcode as a line of a document.
#pragma once

#include "books/directories/GoodsPick.h"
#include "books/stock/DocumentDraft.h"

namespace kladez {

// Adds one to the last line of the same goods, whatever its price, or adds the line. Gives its row.
int AddScanned(DocumentDraft& draft, const GoodsPick& pick);

}  // namespace kladez
