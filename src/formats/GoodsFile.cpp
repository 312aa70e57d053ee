#include "formats/GoodsFile.h"

#include "formats/Numbers.h"

namespace kladez {

std::vector<GoodsRecord> ReadGoods(QByteArrayView bytes) {
  std::vector<GoodsRecord> records;
  ForEachGoods(bytes, [&](const RawGoods& goods) {
    GoodsRecord& record = records.emplace_back();
    record.name = DecodeText(goods.name);
    if (goods.IsGroup()) return;
    record.country = DecodeText(goods.country);
    record.declaration = DecodeText(goods.declaration);
    record.unit = DecodeText(goods.unit);
    record.price = ToNumberOr(DecodeText(goods.price));
  });
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
