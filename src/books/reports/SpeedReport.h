// The sales speed report: how much of each item was shipped in a period, for how much, and with
// what profit. The discount of the documents plays no part here.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "books/reports/ReportScope.h"

namespace kladez {

struct SpeedReport {
  struct Row {
    QString name;
    QString unit;      // of the item's first line
    QString quantity;  // as written, until something was added to it
    double sales;
    double profit;
  };
  std::vector<Row> rows;  // by name

  // The quantities of all goods, in whatever units they have.
  double TotalQuantity() const;
  // Rounded after each addition.
  double TotalSales() const;
  double TotalProfit() const;
};

// As CollectSales.
SpeedReport CollectSpeed(const DataDir& data, const Session& session, const ReportScope& scope,
                         const Progress& progress = {});
void WriteSpeedReport(const SpeedReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress);

}  // namespace kladez
