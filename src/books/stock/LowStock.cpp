#include "books/stock/LowStock.h"

#include <unordered_map>

#include "books/directories/GoodsExtras.h"
#include "books/store/OwnRecordsFile.h"
#include "formats/DatabaseFiles.h"
#include "formats/GoodsFile.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"

namespace kladez {

double LowStock::Missing() const { return RoundGeneral(minimum - on_hand); }

std::vector<LowStock> CollectLowStock(const DataDir& data, const Session& session) {
  struct Stock {
    double minimum = 0;
    double on_hand = 0;
  };
  std::unordered_map<QByteArray, Stock> watched;
  const OwnRecords records = OwnRecordsFile(data, session.Path(files::kGoodsExtras)).records;
  for (const QString& name : records.Names()) {
    const double minimum = NumberOr(ExtrasOf(records, name).minimum);
    if (minimum > 0) watched[EncodeText(name)].minimum = minimum;
  }
  std::vector<LowStock> low;
  if (watched.empty()) return low;
  for (const QString& warehouse : session.warehouses) {
    ForEachLedgerRecord(data.Read(LedgerPath(session, warehouse)),
                        [&](QByteArrayView name, QByteArrayView quantity, QByteArrayView) {
                          const auto found =
                              watched.find(QByteArray::fromRawData(name.data(), name.size()));
                          if (found == watched.end()) return;
                          Stock& stock = found->second;
                          stock.on_hand = RoundGeneral(stock.on_hand + NumberOr(quantity));
                        });
  }
  ForEachGoods(data.Read(session.Path(files::kGoods)), [&](const RawGoods& goods) {
    const auto found = watched.find(goods.name.toByteArray());
    if (goods.IsGroup() || found == watched.end()) return;
    const Stock stock = found->second;
    watched.erase(found);  // goods of one name are one
    if (stock.on_hand >= stock.minimum) return;
    low.push_back({.name = DecodeText(goods.name),
                   .unit = DecodeText(goods.unit),
                   .price = ToNumberOr(DecodeText(goods.price)),
                   .on_hand = stock.on_hand,
                   .minimum = stock.minimum});
  });
  return low;
}

}  // namespace kladez
