#include "formats/PriceFile.h"

namespace kladez {

std::vector<PriceRecord> ReadPrices(QByteArrayView bytes) {
  std::vector<PriceRecord> records;
  ForEachPrice(bytes, [&](QByteArrayView name, QByteArrayView unit, QByteArrayView purchase,
                          QByteArrayView sale) {
    records.push_back({DecodeText(name), DecodeText(unit), DecodeText(purchase), DecodeText(sale)});
  });
  return records;
}

void AddPrice(LineWriter& writer, const PriceRecord& record) {
  writer.Add(record.name);
  if (record.IsGroup()) return;
  for (const QString* field : {&record.unit, &record.purchase, &record.sale}) writer.Add(*field);
}

QByteArray WritePrices(const std::vector<PriceRecord>& records) {
  LineWriter writer;
  for (const PriceRecord& record : records) AddPrice(writer, record);
  return writer.Take();
}

}  // namespace kladez
