// The three reports that have pages of their own, as rows of data that lead to their documents.
#pragma once

#include "books/reports/TableReport.h"

namespace kladez {

// The rows and totals of SalesReport, SpeedReport and FlowReport. Throw WorkCancelled.
TableReport CollectSalesTable(const DataDir& data, const Session& session, const ReportScope& scope,
                              const Progress& progress = {});
TableReport CollectSpeedTable(const DataDir& data, const Session& session, const ReportScope& scope,
                              const Progress& progress = {});
TableReport CollectFlowTable(const DataDir& data, const Session& session, const ReportScope& scope,
                             const Progress& progress = {});

}  // namespace kladez
