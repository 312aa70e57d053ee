// The reports by party: how much each client bought and with what profit, and what each supplier
// delivered. Sums are those of the heads of the documents, after the discount, so that they agree
// with the report of receipts and sales.
#pragma once

#include "books/reports/TableReport.h"

namespace kladez {

// Those with most first. The profit of a client is the sum less what the goods cost by the
// documents: the purchase price that each line of a shipment holds. Throws WorkCancelled.
TableReport CollectClients(const DataDir& data, const Session& session, const ReportScope& scope,
                           const Progress& progress = {});
TableReport CollectSuppliers(const DataDir& data, const Session& session, const ReportScope& scope,
                             const Progress& progress = {});

}  // namespace kladez
