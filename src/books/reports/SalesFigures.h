// What the home screen takes out of its one pass over the heads of all shipments: today's, this
// month's and this year's sales, this month's by day, and the documents that somebody should look
// at. Nothing is cached from one time to the next.
#pragma once

#include "books/reports/ChartGrid.h"
#include "books/reports/ReportScope.h"
#include "books/stock/DocumentRef.h"

namespace kladez {

struct ShipmentNote {
  DocumentRef document;
  QDate date;
  QString number;
  QString party;
  QString net_sum;
};

struct SalesFigures {
  double day = 0;
  double month = 0;
  double year = 0;
  ChartGrid by_day;  // the whole month; days to come stay at 0 and are not drawn

  std::vector<ShipmentNote> today;  // in the order of warehouses and files
  // Those of other days that are open, the oldest first, and how many there are in all.
  std::vector<ShipmentNote> oldest_open;
  int open_count = 0;
  bool has_several_days = false;  // of sales: no shop of which this is true is a new one

  static constexpr size_t kMostOpen = 20;
};

// Throws WorkCancelled.
SalesFigures CollectSalesFigures(const DataDir& data, const Session& session, QDate today,
                                 const Progress& progress = {});

}  // namespace kladez
