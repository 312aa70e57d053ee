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

namespace kladez {

struct LedgerRecord {
  QString name;
  QString quantity;  // number text; "- 5" is how a reversal lies in the file
  QString unit;

  bool operator==(const LedgerRecord&) const = default;
};

// The records without the group lines. Postings work on the plain lines instead (StockLedger).
std::vector<LedgerRecord> ReadLedger(QByteArrayView bytes);
QByteArray WriteLedger(const std::vector<LedgerRecord>& records);

}  // namespace kladez
