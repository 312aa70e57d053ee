#include "books/prices/PriceList.h"

#include <QSet>
#include <vector>

#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextLines.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

// A line that a cut file lacks lies at its end.
quint32 PlaceIn(const QByteArray& bytes, QByteArrayView text) {
  return static_cast<quint32>(text.isNull() ? bytes.size() : text.data() - bytes.constData());
}

QString MoneyOf(QByteArrayView price) { return MoneyText(DecodeText(price)); }

// The rows of the directory as the list shows them, and the first of each name.
class DirectoryRows {
 public:
  DirectoryRows(const QByteArray& goods, GoodsView view) {
    ForEachGoods(goods, [&](const RawGoods& record) {
      if (record.IsGroup() && view == GoodsView::kGoodsOnly) return;
      // Numbers of the pool count up with the names that are new to it.
      if (static_cast<size_t>(names_.Add(record.name)) == first_.size()) {
        first_.push_back(places_.size());
      }
      places_.push_back({.goods = PlaceIn(goods, record.name)});
      if (view == GoodsView::kGoodsOnly) to_sort_.push_back(record.name);
    });
  }
  // The first row of a name; null where there is none.
  PricePlace* Find(QByteArrayView name) {
    const int number = names_.Find(name);
    return number < 0 ? nullptr : &places_[first_[static_cast<size_t>(number)]];
  }
  // In the order of the view.
  std::vector<PricePlace> Take() const {
    if (to_sort_.empty()) return places_;
    std::vector<PricePlace> sorted;
    sorted.reserve(places_.size());
    for (const size_t at : PlacesInOrder(to_sort_)) sorted.push_back(places_[at]);
    return sorted;
  }

 private:
  TextPool names_{TextPool::Keeps::kPlaces};
  std::vector<size_t> first_;  // by the name's number
  std::vector<PricePlace> places_;
  std::vector<QByteArrayView> to_sort_;  // their names, where the view has them in order
};

}  // namespace

PriceRow PriceSource::Make(const PricePlace& place) const {
  const RawGoods raw = goods.Raw(place.goods);
  PriceRow row;
  row.ticked = place.ticked;
  row.name = DecodeText(raw.name);
  if (raw.IsGroup()) return row;
  row.unit = DecodeText(raw.unit);
  row.purchase = MoneyOf(raw.price);
  row.sale = row.purchase;
  if (place.sale != PricePlace::kNone) {
    row.sale = MoneyOf(LineReader(QByteArrayView(prices).sliced(place.sale)).NextRaw());
  }
  return row;
}

PriceList::PriceList(const QByteArray& goods, const QByteArray& prices, QByteArrayView marked,
                     GoodsView view, const Progress& progress) {
  DirectoryRows rows(goods, view);
  qsizetype told = 0;
  ForEachPrice(prices,
               [&](QByteArrayView name, QByteArrayView, QByteArrayView, QByteArrayView sale) {
                 const qsizetype done = name.data() - prices.data();
                 if ((done - told) * 100 >= prices.size()) {
                   told = done;
                   progress.Tell(static_cast<double>(done) / static_cast<double>(prices.size()));
                 }
                 if (name.startsWith(' ')) return;
                 if (PricePlace* row = rows.Find(name)) row->sale = PlaceIn(prices, sale);
               });
  for (LineReader reader(marked); !reader.AtEnd();) {
    if (PricePlace* row = rows.Find(reader.NextRaw())) row->ticked = true;
  }
  // Sorted only now: rows of one name keep their order, so the first of them is the same one.
  rows_ = PriceRows({{goods}, prices}, rows.Take());
}

bool PriceList::IsTicked(int row) const {
  return rows_.Ask(
      row, [](const PricePlace& place) { return place.ticked; },
      [](const PriceRow& made) { return made.ticked; });
}

int PriceList::TickedCount() const {
  int count = 0;
  for (size_t row = 0; row < rows_.size(); ++row) count += IsTicked(static_cast<int>(row)) ? 1 : 0;
  return count;
}

template <typename OfRaw, typename OfRow>
int PriceList::FirstRow(OfRaw of_raw, OfRow of_row) const {
  const QByteArrayView goods = rows_.File().goods.bytes;
  for (size_t row = 0; row < rows_.size(); ++row) {
    const auto of_place = [&](const PricePlace& place) {
      return of_raw(LineReader(goods.sliced(place.goods)).NextRaw());
    };
    if (rows_.Ask(row, of_place, of_row)) return static_cast<int>(row);
  }
  return -1;
}

int PriceList::RowOfName(const QString& name) const {
  return FirstRow([&](QByteArrayView raw) { return HoldsText(raw, name); },
                  [&](const PriceRow& row) { return row.name == name; });
}

int PriceList::FirstGoods() const {
  return FirstRow([](QByteArrayView raw) { return !raw.startsWith(' '); },
                  [](const PriceRow& row) { return !row.IsGroup(); });
}

bool PriceList::IsChanged() const { return saved_ && *saved_ != rows_; }

void PriceList::SetTick(int row, bool on) {
  rows_.Change(
      row, [on](PricePlace& place) { place.ticked = on; },
      [on](PriceRow& made) { made.ticked = on; });
}

void PriceList::BeforeChange() {
  if (!saved_) saved_ = rows_;
}

bool PriceList::SetSalePrice(int row, const QString& price) {
  const auto value = ParseStrict(price);
  PriceRow changed = rows_.at(row);
  if (!value || changed.IsGroup()) return false;
  BeforeChange();
  changed.sale = FormatMoney(*value);
  rows_.Set(row, std::move(changed));
  return true;
}

void PriceList::SetSalePrices(QHash<QString, QString> prices) {
  BeforeChange();
  for (size_t row = 0; row < rows_.size() && !prices.empty(); ++row) {
    const auto price = prices.find(rows_[row].name);
    if (price == prices.end()) continue;
    SetSalePrice(static_cast<int>(row), *price);
    prices.erase(price);
  }
}

int PriceList::InsertPick(int below, const GoodsPick& pick) {
  PriceRow row;
  row.name = pick.name;
  row.picked = true;
  if (!row.IsGroup()) {
    row.unit = pick.unit;
    row.purchase = pick.price;
    row.sale = pick.quantity;
  }
  BeforeChange();
  const int count = static_cast<int>(rows_.size());
  const int at = below < 0 || below >= count ? count : below + 1;
  rows_.Insert(at, std::move(row));
  return at;
}

void PriceList::Remove(int row) {
  BeforeChange();
  rows_.Erase(row);
}

void PriceList::Paste(QByteArrayView prices) {
  BeforeChange();
  QSet<QString> ticked;
  for (size_t row = 0; row < rows_.size(); ++row) {
    if (IsTicked(static_cast<int>(row))) ticked.insert(rows_[row].name);
  }
  std::vector<PriceRow> rows;
  for (PriceRecord& record : ReadPrices(prices)) {
    PriceRow& row = rows.emplace_back(PriceRow{std::move(record)});
    // Removed once given, so that the first row of a name gets it.
    row.ticked = ticked.remove(row.name);
  }
  rows_ = std::move(rows);
}

QByteArray PriceList::PriceBytes() const {
  LineWriter writer;
  for (const PriceRow& row : rows_) AddPrice(writer, row);
  return writer.Take();
}

QByteArray PriceList::MarkedBytes() const {
  LineWriter writer;
  for (size_t row = 0; row < rows_.size(); ++row) {
    if (IsTicked(static_cast<int>(row))) writer.Add(rows_[row].name);
  }
  return writer.Take();
}

}  // namespace kladez
