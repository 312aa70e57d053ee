// A scanned barcode as a line of a document.
#pragma once

#include "books/directories/GoodsPick.h"
#include "books/stock/DocumentDraft.h"

namespace kladez {

// One piece of the goods that the directory has by this name, priced as the document's own picker
// does: at the purchase price for a receipt, else at the sale price of the named list of the
// warehouse, or of its first where it has none of that name. Nothing for goods that the directory
// lacks. Throws filesystem_error.
std::optional<GoodsPick> PickOfGoods(const DataDir& data, const Session& session, DocumentKind kind,
                                     const QString& warehouse, const QString& price_list,
                                     const QString& goods);

// Adds one to the last line of the same goods, whatever its price, or adds the line. Gives its row.
int AddScanned(DocumentDraft& draft, const GoodsPick& pick);

}  // namespace kladez
