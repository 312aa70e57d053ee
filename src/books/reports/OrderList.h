// "Заказать": what is below its minimum, by the supplier of the last receipt that brought it, with
// as much as is missing.
#pragma once

#include "books/reports/TableReport.h"

namespace kladez {

// Reads the receipts of all warehouses. The price is that of the last receipt, or else the purchase
// price of the directory. Goods that were never received stand under an empty supplier, last.
// Throws filesystem_error and WorkCancelled.
TableReport CollectOrder(const DataDir& data, const Session& session,
                         const Progress& progress = {});

}  // namespace kladez
