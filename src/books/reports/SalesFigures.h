// The sales of the home screen: today's, this month's and this year's, and this month's by day,
// from the heads of all shipments of the Database. Nothing is cached from one time to the next.
#pragma once

#include "books/reports/ChartGrid.h"
#include "books/reports/ReportScope.h"

namespace kladez {

struct SalesFigures {
  double day = 0;
  double month = 0;
  double year = 0;
  ChartGrid by_day;  // the whole month; days to come stay at 0
};

// Throws WorkCancelled.
SalesFigures CollectSalesFigures(const DataDir& data, const Session& session, QDate today,
                                 const Progress& progress = {});

}  // namespace kladez
