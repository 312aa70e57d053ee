// What the reports are asked for: the warehouses and the period, and the one walk over the
// documents that lie in them.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "books/directories/WarehouseDirectory.h"
#include "books/stock/DocumentScan.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/Progress.h"

namespace kladez {

enum class PeriodKind { kAll, kCurrentMonth, kRange };

// The key "yymmdd" of a date as a number; keys compare as their texts do, with what that means for
// 1999, which comes after 2026.
int DayKeyOf(QDate date);

struct ReportPeriod {
  PeriodKind kind = PeriodKind::kAll;
  QDate today;
  QDate from;  // kRange: bounds included
  QDate to;

  // "Текущий месяц" compares the month only: it counts that month of every year.
  bool Passes(int day_key) const;
};

struct ReportScope {
  QString warehouse;  // the selector's entry, as the report prints it
  ReportPeriod period;
  // What the page prints below its total, a row each, the first cell its label: the period before.
  std::vector<std::vector<QString>> below_total{};

  // The one that is named, or all of the session for kAllWarehouses.
  QStringList Warehouses(const Session& session) const;
};

// Visits the documents of a kind in the warehouses, one after the other; a warehouse without the
// directory has none, and one whose directory can't be listed is treated as an unreadable file is.
// Throws WorkCancelled.
void ScanWarehouses(const DataDir& data, const Session& session, const QStringList& warehouses,
                    DocumentKind kind, Unreadable unreadable, const Progress& progress,
                    const std::function<void(ScannedDocument&)>& visit);

}  // namespace kladez
