// The sales report: every shipped line of a period with its amount after the discount, oldest
// first, read from the shipments themselves.
#pragma once

#include <QByteArray>

#include "books/reports/ReportScope.h"
#include "books/reports/SalesRows.h"
#include "formats/TextPool.h"

namespace kladez {

struct SalesReport {
  TextPool texts;
  SalesRows rows;

  // The sum of the amounts is rounded after each addition, the sum of the quantities never.
  double TotalQuantity() const;
  double TotalAmount() const;
};

// A damaged document gives its whole lines, an unreadable one nothing. Throws WorkCancelled.
SalesReport CollectSales(const DataDir& data, const Session& session, const ReportScope& scope,
                         const Progress& progress = {});

// The page "temp.htm". Throws WorkCancelled.
void WriteSalesReport(const SalesReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress);

}  // namespace kladez
