#include "books/prices/PriceList.h"

#include <QSet>
#include <algorithm>
#include <optional>

#include "books/directories/GoodsOrder.h"
#include "formats/GoodsFile.h"
#include "formats/Numbers.h"
#include "formats/SharedTexts.h"
#include "formats/TextLines.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

// Finds the first row of a name, by the bytes of the files.
class FirstRows {
 public:
  void Add(QByteArrayView name, size_t row) {
    // Numbers of the pool count up with the names that are new to it.
    if (static_cast<size_t>(names_.Add(name)) == rows_.size()) rows_.push_back(row);
  }
  // Nothing for a name that was not added.
  std::optional<size_t> Find(QByteArrayView name) {
    const auto number = static_cast<size_t>(names_.Add(name));
    return number < rows_.size() ? std::optional(rows_[number]) : std::nullopt;
  }

 private:
  TextPool names_;
  std::vector<size_t> rows_;
};

}  // namespace

PriceList::PriceList(QByteArrayView goods, QByteArrayView prices, QByteArrayView marked,
                     GoodsView view, const Progress& progress) {
  FirstRows first;
  SharedTexts units;
  SharedTexts purchases;
  SharedTexts sales;
  const auto money = [](QByteArrayView price) { return MoneyText(DecodeText(price)); };
  ForEachGoods(goods, [&](const RawGoods& record) {
    if (record.IsGroup() && view == GoodsView::kGoodsOnly) return;
    first.Add(record.name, rows_.size());
    PriceRow& row = rows_.emplace_back();
    row.name = DecodeText(record.name);
    if (record.IsGroup()) return;
    row.unit = units.Text(record.unit);
    row.purchase = purchases.Text(record.price, money);
    row.sale = row.purchase;
  });
  qsizetype told = 0;
  ForEachPrice(prices,
               [&](QByteArrayView name, QByteArrayView, QByteArrayView, QByteArrayView sale) {
                 const qsizetype done = name.data() - prices.data();
                 if ((done - told) * 100 >= prices.size()) {
                   told = done;
                   progress.Tell(static_cast<double>(done) / static_cast<double>(prices.size()));
                 }
                 if (name.startsWith(' ')) return;
                 if (const auto row = first.Find(name)) rows_[*row].sale = sales.Text(sale, money);
               });
  for (LineReader reader(marked); !reader.AtEnd();) {
    if (const auto row = first.Find(reader.NextRaw())) rows_[*row].ticked = true;
  }
  // Only now: rows of one name keep their order, so the first of them is the same one.
  if (view == GoodsView::kGoodsOnly) rows_ = SortedByName(std::move(rows_));
}

bool PriceList::IsChanged() const {
  return saved_ && !std::equal(saved_->begin(), saved_->end(), rows_.begin(), rows_.end(),
                               [](const PriceRecord& a, const PriceRecord& b) { return a == b; });
}

void PriceList::BeforeChange() {
  if (!saved_) saved_ = rows_;
}

bool PriceList::SetSalePrice(int row, const QString& price) {
  const auto value = ParseStrict(price);
  if (!value || rows_.at(row).IsGroup()) return false;
  BeforeChange();
  rows_[row].sale = FormatMoney(*value);
  return true;
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
  rows_.insert(rows_.begin() + at, std::move(row));
  return at;
}

void PriceList::Remove(int row) {
  BeforeChange();
  rows_.erase(rows_.begin() + row);
}

void PriceList::Paste(QByteArrayView prices) {
  BeforeChange();
  QSet<QString> ticked;
  for (const PriceRow& row : rows_) {
    if (row.ticked) ticked.insert(row.name);
  }
  rows_.clear();
  for (PriceRecord& record : ReadPrices(prices)) {
    PriceRow& row = rows_.emplace_back(PriceRow{std::move(record)});
    // Removed once given, so that the first row of a name gets it.
    row.ticked = ticked.remove(row.name);
  }
}

QByteArray PriceList::PriceBytes() const {
  LineWriter writer;
  for (const PriceRow& row : rows_) AddPrice(writer, row);
  return writer.Take();
}

QByteArray PriceList::MarkedBytes() const {
  LineWriter writer;
  for (const PriceRow& row : rows_) {
    if (row.ticked) writer.Add(row.name);
  }
  return writer.Take();
}

}  // namespace kladez
