// Receipts against sales, day by day, from the heads of the documents. The "profit" is the day's
// sales less its receipts: a difference of cash, not a margin.
#pragma once

#include <QByteArray>
#include <map>

#include "books/reports/ReportScope.h"

namespace kladez {

struct FlowReport {
  struct Day {
    double receipts = 0;
    double sales = 0;
  };
  std::map<int, Day> days;  // by the key "yymmdd", over all chosen warehouses
};

// Throws WorkCancelled.
FlowReport CollectFlow(const DataDir& data, const Session& session, const ReportScope& scope,
                       const Progress& progress = {});
void WriteFlowReport(const FlowReport& report, const ReportScope& scope, const ByteSink& sink,
                     const Progress& progress);

}  // namespace kladez
