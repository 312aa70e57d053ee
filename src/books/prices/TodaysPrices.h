// What a document's goods cost today, priced as the document's own picker does: at the purchase
// price for a receipt, else at the sale price of a list of the warehouse.
#pragma once

#include <optional>

#include "books/directories/GoodsDirectory.h"
#include "books/directories/GoodsPick.h"
#include "books/prices/PriceList.h"
#include "formats/DocumentFile.h"

namespace kladez {

class TodaysPrices {
 public:
  // Reads the directory and the named list of the warehouse, or its first where it has none of that
  // name. Throws filesystem_error.
  TodaysPrices(const DataDir& data, const Session& session, DocumentKind kind,
               const QString& warehouse, const QString& price_list);

  // One piece of the goods. Nothing for goods that the directory lacks.
  std::optional<GoodsPick> PickOf(const QString& goods) const;

 private:
  GoodsDirectory directory_;
  std::optional<PriceList> prices_;  // none for a receipt, and where the warehouse has no list
};

}  // namespace kladez
