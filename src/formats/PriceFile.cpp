#include "formats/PriceFile.h"

#include "formats/TextLines.h"

namespace kladez {

std::vector<PriceRecord> ReadPrices(QByteArrayView bytes) {
  std::vector<PriceRecord> records;
  for (LineReader reader(bytes); !reader.AtEnd();) {
    PriceRecord record;
    record.name = reader.Next();
    if (!record.IsGroup()) {
      record.unit = reader.Next();
      record.purchase = reader.Next();
      record.sale = reader.Next();
    }
    records.push_back(std::move(record));
  }
  return records;
}

QByteArray WritePrices(const std::vector<PriceRecord>& records) {
  LineWriter writer;
  for (const PriceRecord& record : records) {
    writer.Add(record.name);
    if (record.IsGroup()) continue;
    for (const QString* field : {&record.unit, &record.purchase, &record.sale}) writer.Add(*field);
  }
  return writer.Take();
}

}  // namespace kladez
