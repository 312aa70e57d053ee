#include "books/stock/OnHand.h"

#include <cmath>
#include <utility>

#include "books/stock/DocumentBook.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kNothing = u"0"_s;

// The directory's rows as the view shows them, none with stock.
std::vector<OnHandPlace> DirectoryRows(const QByteArray& goods, GoodsView view) {
  std::vector<OnHandPlace> places;
  std::vector<QByteArrayView> names;
  quint32 group = OnHandPlace::kNone;
  ForEachGoods(goods, [&](const RawGoods& record) {
    const auto place = static_cast<quint32>(record.name.data() - goods.constData());
    if (record.IsGroup()) group = place;
    if (record.IsGroup() && view == GoodsView::kGoodsOnly) return;
    places.push_back({.goods = place, .group = group});
    names.push_back(record.name);
  });
  if (view == GoodsView::kGroups) return places;
  // Sorted before the join: "the first row" is the first of the list as it is shown.
  std::vector<OnHandPlace> sorted;
  sorted.reserve(places.size());
  for (const size_t at : PlacesInOrder(names)) sorted.push_back(places[at]);
  return sorted;
}

QByteArrayView NameAt(QByteArrayView goods, quint32 place) {
  return LineReader(goods.sliced(place)).NextRaw();
}

std::vector<QByteArrayView> NamesOf(const std::vector<OnHandPlace>& places, QByteArrayView goods) {
  std::vector<QByteArrayView> names;
  names.reserve(places.size());
  for (const OnHandPlace& place : places) names.push_back(NameAt(goods, place.goods));
  return names;
}

QString GoodsPath(const Session& session) { return session.Path(files::kGoods); }

void SaveLedger(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse, QByteArray bytes, bool zeroed) {
  SaveSet save(
      data, (zeroed ? u"склад «%1» обнулён"_s : u"остатки склада «%1» записаны"_s).arg(warehouse));
  if (zeroed) save.CopyFirst();
  save.Expect(GoodsPath(session), list.goods_file);
  list.ledger_files.resize(1);
  save.Write(LedgerPath(session, warehouse), std::move(bytes), list.ledger_files.front());
  save.Commit();
}

}  // namespace

OnHandRow OnHandSource::Make(const OnHandPlace& place) const {
  const RawGoods raw = goods.Raw(place.goods);
  OnHandRow row;
  row.name = DecodeText(raw.name);
  if (place.group != OnHandPlace::kNone) row.group = DecodeText(NameAt(goods.bytes, place.group));
  if (raw.IsGroup()) return row;
  row.quantity = place.touched ? GeneralText(place.quantity) : kNothing;
  row.unit = DecodeText(raw.unit);
  row.price = ToNumberOr(DecodeText(raw.price));
  return row;
}

OnHandJoin::OnHandJoin(const QByteArray& goods, GoodsView view)
    : goods_(goods), places_(DirectoryRows(goods, view)), index_(NamesOf(places_, goods_)) {}

void OnHandJoin::Add(QByteArrayView ledger) {
  constexpr size_t kTogether = 32;
  std::vector<QByteArrayView> names;
  std::vector<QByteArrayView> quantities;
  std::vector<int> rows;
  const auto add = [&] {
    index_.FirstBeginnings(names, rows);
    for (const int row : rows) {
      if (row >= 0) __builtin_prefetch(&places_[static_cast<size_t>(row)]);
    }
    for (size_t i = 0; i < names.size(); ++i) {
      if (rows[i] < 0) continue;
      OnHandPlace& place = places_[rows[i]];
      place.quantity = RoundGeneral(place.quantity + NumberOr(quantities[i]));
      place.touched = true;
    }
    names.clear();
    quantities.clear();
  };
  ForEachLedgerRecord(ledger,
                      [&](QByteArrayView name, QByteArrayView quantity, QByteArrayView /*unit*/) {
                        names.push_back(name);
                        quantities.push_back(quantity);
                        if (names.size() == kTogether) add();
                      });
  add();
}

OnHandList OnHandJoin::Take() { return OnHandList(OnHandRows({{goods_}}, places_)); }

// A record without a name begins every name, a group's too, and a group has no stock.
bool OnHandList::IsKept(size_t row) const {
  return rows_.Ask(
      row,
      [this](const OnHandPlace& place) {
        return place.quantity != 0 && std::isfinite(place.quantity) &&
               !NameAt(rows_.File().goods.bytes, place.goods).startsWith(' ');
      },
      [](const OnHandRow& made) { return !made.IsGroup() && made.quantity != kNothing; });
}

OnHandList::Totals OnHandList::Total() const {
  Totals total;
  for (size_t row = 0; row < rows_.size(); ++row) {
    if (!IsKept(row)) continue;
    const auto [quantity, price] = rows_.Ask(
        row,
        [this](const OnHandPlace& place) {
          return std::pair(place.quantity, NumberOr(rows_.File().goods.Raw(place.goods).price));
        },
        [](const OnHandRow& made) {
          return std::pair(NumberOr(made.quantity), NumberOr(made.price));
        });
    if (quantity == 0) continue;
    ++total.names;
    total.sum += quantity * price;
  }
  return total;
}

int OnHandList::RowOfName(const QString& name) const {
  for (size_t row = 0; row < rows_.size(); ++row) {
    const bool same = rows_.Ask(
        row,
        [&](const OnHandPlace& place) {
          return HoldsText(NameAt(rows_.File().goods.bytes, place.goods), name);
        },
        [&](const OnHandRow& made) { return made.name == name; });
    if (same) return static_cast<int>(row);
  }
  return -1;
}

QString OnHandList::StatusText() const {
  const Totals total = Total();
  return u"Итого наименований: "_s + QString::number(total.names) + u"     на сумму: "_s +
         FormatMoney(total.sum);
}

bool OnHandList::ChangeQuantity(int row, const QString& quantity) {
  OnHandRow changed = rows_.at(row);
  if (changed.IsGroup() || changed.quantity == quantity || !ParseStrict(quantity)) return false;
  changed.quantity = quantity;
  rows_.Set(row, std::move(changed));
  return true;
}

QByteArray OnHandList::LedgerBytes() const {
  LineWriter writer;
  for (size_t at = 0; at < rows_.size(); ++at) {
    if (!IsKept(at)) continue;
    const OnHandRow row = rows_[at];
    for (const QString* line : {&row.name, &row.quantity, &row.unit}) writer.Add(*line);
  }
  return writer.Take();
}

QByteArray OnHandList::ZeroedLedgerBytes() const {
  LineWriter writer;
  for (size_t at = 0; at < rows_.size(); ++at) {
    if (!IsKept(at)) continue;
    const OnHandRow row = rows_[at];
    for (const QString* line : {&row.name, &kNothing, &kNothing}) writer.Add(*line);
  }
  return writer.Take();
}

OnHandList LoadOnHand(const DataDir& data, const Session& session, const QStringList& warehouses,
                      GoodsView view) {
  FileState goods;
  std::vector<FileState> ledgers;
  OnHandJoin join(ReadWithState(data, GoodsPath(session), goods), view);
  for (const QString& warehouse : warehouses) {
    join.Add(ReadWithState(data, LedgerPath(session, warehouse), ledgers.emplace_back()));
  }
  OnHandList list = join.Take();
  list.goods_file = goods;
  list.ledger_files = std::move(ledgers);
  return list;
}

bool IsCurrent(const OnHandList& list, const DataDir& data, const Session& session,
               const QStringList& warehouses) {
  if (list.ledger_files.size() != static_cast<size_t>(warehouses.size())) return false;
  if (!IsStill(list.goods_file, data, GoodsPath(session))) return false;
  return std::equal(warehouses.begin(), warehouses.end(), list.ledger_files.begin(),
                    [&](const QString& warehouse, const FileState& file) {
                      return IsStill(file, data, LedgerPath(session, warehouse));
                    });
}

void SaveOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse) {
  SaveLedger(list, data, session, warehouse, list.LedgerBytes(), false);
}

void ZeroOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse) {
  SaveLedger(list, data, session, warehouse, list.ZeroedLedgerBytes(), true);
}

}  // namespace kladez
