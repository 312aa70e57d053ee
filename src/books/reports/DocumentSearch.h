// The documents behind a row of a report: those of a period that bear its party, hold its goods or
// are of its day.
#pragma once

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

#include "books/reports/ReportScope.h"
#include "books/stock/DocumentRef.h"

namespace kladez {

// What is left out does not matter. Names are compared exactly.
struct DocumentsWanted {
  std::vector<DocumentKind> kinds;  // receipts and shipments
  std::optional<QString> party{};
  std::optional<QString> goods{};
  std::optional<int> day_key{};
};

struct FoundDocument {
  DocumentRef document;
  QDate date;
  QString number;
  QString party;
  double sum;  // after the discount
  bool is_open;
};

// By day, those of one day in the order of kinds, warehouses and files. What can't be read is
// passed over, as the reports do. Throws WorkCancelled.
std::vector<FoundDocument> FindDocuments(const DataDir& data, const Session& session,
                                         const ReportScope& scope, const DocumentsWanted& wanted,
                                         const Progress& progress = {});

}  // namespace kladez
