#include "formats/LedgerFile.h"

#include "formats/TextLines.h"

namespace kladez {

std::vector<LedgerRecord> ReadLedger(QByteArrayView bytes) {
  std::vector<LedgerRecord> records;
  for (LineReader reader(bytes); !reader.AtEnd();) {
    if (reader.Peek() == ' ') {
      reader.NextRaw();
      continue;
    }
    QString name = reader.Next();
    QString quantity = reader.Next();
    records.push_back({std::move(name), std::move(quantity), reader.Next()});
  }
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
