#include "formats/LedgerFile.h"

#include "formats/TextLines.h"

namespace kladez {

std::vector<LedgerRecord> ReadLedger(QByteArrayView bytes) {
  std::vector<LedgerRecord> records;
  ForEachLedgerRecord(
      bytes, [&](QByteArrayView name, QByteArrayView quantity, QByteArrayView unit) {
        records.push_back({DecodeText(name), DecodeText(quantity), DecodeText(unit)});
      });
  return records;
}

QByteArray WriteLedger(const std::vector<LedgerRecord>& records) {
  LineWriter writer;
  for (const LedgerRecord& record : records) {
    writer.Add(record.name);
    writer.Add(record.quantity);
    writer.Add(record.unit);
  }
  return writer.Take();
}

}  // namespace kladez
