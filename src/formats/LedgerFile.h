// The stock ledger of a warehouse, <warehouse>\товар.usl: records of three lines, the quantities on
// hand. A name may have several records (a reversal is appended as one of its own), so whoever
// totals stock adds them all up. A line that begins with a blank is a group and means nothing here.
//
//   Чай чёрный, 100 г
//   120
//   пач.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "formats/TextLines.h"

namespace kladez {

struct LedgerRecord {
  QString name;
  QString quantity;  // number text; "- 5" is how a reversal lies in the file
  QString unit;

  bool operator==(const LedgerRecord&) const = default;
};

// Calls visit(name, quantity, unit) with the raw bytes of each record's lines, group lines skipped:
// for whoever reads the ledgers of many warehouses at once.
template <typename Visit>
void ForEachLedgerRecord(QByteArrayView bytes, Visit&& visit) {
  for (LineReader reader(bytes); !reader.AtEnd();) {
    if (reader.Peek() == ' ') {
      reader.NextRaw();
      continue;
    }
    const QByteArrayView name = reader.NextRaw();
    const QByteArrayView quantity = reader.NextRaw();
    visit(name, quantity, reader.NextRaw());
  }
}

// The records without the group lines. Postings work on the plain lines instead (StockLedger).
std::vector<LedgerRecord> ReadLedger(QByteArrayView bytes);
QByteArray WriteLedger(const std::vector<LedgerRecord>& records);

}  // namespace kladez
