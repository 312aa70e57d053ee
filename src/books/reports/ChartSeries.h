// The series of the charts: shipments of a warehouse or of all, over a year by month or over a
// month by day. Read from the shipments' lines; the discount is in their net prices.
#pragma once

#include <QDate>
#include <QString>

#include "books/reports/ChartGrid.h"
#include "books/reports/ReportScope.h"

namespace kladez {

struct ChartScope {
  QString warehouse;    // a warehouse, or kAllWarehouses
  bool by_day = false;  // a month by day, else a year by month
  int year = 0;
  int month = 0;  // 1 to 12, where by day
  QDate today{};  // what lies behind it is to come; without it nothing is
};

// Each also gives what the screen adds: the unit of the values, the first column a year before, and
// where the future begins.

// Two columns, revenue and profit. A shipment that is cut off in the middle stops it with a
// filesystem_error that names the file. Throws WorkCancelled.
ChartGrid CollectSalesChart(const DataDir& data, const Session& session, const ChartScope& scope,
                            const Progress& progress = {});

// One column, the quantity of the item; the name is compared exactly.
ChartGrid CollectGoodsChart(const DataDir& data, const Session& session, const QString& goods,
                            const ChartScope& scope, const Progress& progress = {});

}  // namespace kladez
