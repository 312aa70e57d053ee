#include "formats/GoodsFile.h"

#include "formats/Numbers.h"
#include "formats/SharedTexts.h"

namespace kladez {

std::vector<GoodsRecord> ReadGoods(QByteArrayView bytes) {
  std::vector<GoodsRecord> records;
  SharedTexts countries;
  SharedTexts declarations;
  SharedTexts units;
  SharedTexts prices;
  const auto price_text = [](QByteArrayView price) { return ToNumberOr(DecodeText(price)); };
  ForEachGoods(bytes, [&](const RawGoods& goods) {
    GoodsRecord& record = records.emplace_back();
    record.name = DecodeText(goods.name);
    if (goods.IsGroup()) return;
    record.country = countries.Text(goods.country);
    record.declaration = declarations.Text(goods.declaration);
    record.unit = units.Text(goods.unit);
    record.price = prices.Text(goods.price, price_text);
  });
  return records;
}

void AddGoods(LineWriter& writer, const GoodsRecord& record) {
  writer.Add(record.name);
  if (record.IsGroup()) return;
  for (const QString* field : {&record.country, &record.declaration, &record.unit, &record.price}) {
    writer.Add(*field);
  }
}

QByteArray WriteGoods(const std::vector<GoodsRecord>& records) {
  LineWriter writer;
  for (const GoodsRecord& record : records) AddGoods(writer, record);
  return writer.Take();
}

}  // namespace kladez
