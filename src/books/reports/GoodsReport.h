// The reports by goods: what each item brought in and earned, and which few of them bring most of
// the money. Revenue is reckoned as in the sales report, and adds up to the same.
//
// What goods cost is known from one place only: the purchase price that a line of a shipment took
// from the directory when it was entered. Ledgers hold no cost, and receipts are not followed to
// the goods that left. A line without one counts as earned whole, and the report says how much that
// is.
#pragma once

#include "books/reports/TableReport.h"

namespace kladez {

// "Валовая прибыль по товарам": those that earned most first.
TableReport CollectMargins(const DataDir& data, const Session& session, const ReportScope& scope,
                           const Progress& progress = {});

// "ABC-анализ по выручке": goods by revenue, in class A while those before them bring less than 80%
// of it, in B while less than 95%, else in C. What brought nothing, or less, is in C.
TableReport CollectAbc(const DataDir& data, const Session& session, const ReportScope& scope,
                       const Progress& progress = {});

}  // namespace kladez
