#include "formats/GoodsFile.h"

#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {

std::vector<GoodsRecord> ReadGoods(QByteArrayView bytes) {
  std::vector<GoodsRecord> records;
  for (LineReader reader(bytes); !reader.AtEnd();) {
    GoodsRecord record{
        .name = reader.Next(), .country = {}, .declaration = {}, .unit = {}, .price = {}};
    if (!record.IsGroup()) {
      record.country = reader.Next();
      record.declaration = reader.Next();
      record.unit = reader.Next();
      record.price = ToNumberOr(reader.Next());
    }
    records.push_back(std::move(record));
  }
  return records;
}

QByteArray WriteGoods(const std::vector<GoodsRecord>& records) {
  LineWriter writer;
  for (const GoodsRecord& record : records) {
    writer.Add(record.name);
    if (record.IsGroup()) continue;
    for (const QString* field : {&record.country, &record.declaration, &record.unit, &record.price})
      writer.Add(*field);
  }
  return writer.Take();
}

}  // namespace kladez
