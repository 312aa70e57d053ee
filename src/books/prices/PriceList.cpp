#include "books/prices/PriceList.h"

#include <QHash>
#include <QSet>

#include "books/directories/GoodsOrder.h"
#include "formats/GoodsFile.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

// Finds the first row of a name. The rows must not move while it is in use.
class FirstRows {
 public:
  explicit FirstRows(std::vector<PriceRow>& rows) {
    by_name_.reserve(static_cast<qsizetype>(rows.size()));
    for (PriceRow& row : rows) {
      PriceRow*& first = by_name_[row.name];
      if (first == nullptr) first = &row;
    }
  }
  PriceRow* Find(QStringView name) const { return by_name_.value(name); }

 private:
  QHash<QStringView, PriceRow*> by_name_;
};

}  // namespace

PriceList::PriceList(QByteArrayView goods, QByteArrayView prices, QByteArrayView marked,
                     GoodsView view, const LoadProgress& progress) {
  ForEachGoods(goods, [&](const RawGoods& record) {
    if (record.IsGroup() && view == GoodsView::kGoodsOnly) return;
    PriceRow& row = rows_.emplace_back();
    row.name = DecodeText(record.name);
    if (record.IsGroup()) return;
    row.unit = DecodeText(record.unit);
    row.purchase = MoneyText(DecodeText(record.price));
    row.sale = row.purchase;
  });
  if (view == GoodsView::kGoodsOnly) rows_ = SortedByName(std::move(rows_));

  const FirstRows first(rows_);
  qsizetype told = 0;
  ForEachPrice(prices,
               [&](QByteArrayView name, QByteArrayView, QByteArrayView, QByteArrayView sale) {
                 const qsizetype done = name.data() - prices.data();
                 if (progress && (done - told) * 100 >= prices.size()) {
                   told = done;
                   progress(static_cast<double>(done) / static_cast<double>(prices.size()));
                 }
                 if (name.startsWith(' ')) return;
                 if (PriceRow* row = first.Find(DecodeText(name)))
                   row->sale = MoneyText(DecodeText(sale));
               });
  for (LineReader reader(marked); !reader.AtEnd();) {
    if (PriceRow* row = first.Find(reader.Next())) row->ticked = true;
  }
}

bool PriceList::SetSalePrice(int row, const QString& price) {
  const auto value = ParseStrict(price);
  if (!value || rows_.at(row).IsGroup()) return false;
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
  const int count = static_cast<int>(rows_.size());
  const int at = below < 0 || below >= count ? count : below + 1;
  rows_.insert(rows_.begin() + at, std::move(row));
  return at;
}

void PriceList::Remove(int row) { rows_.erase(rows_.begin() + row); }

void PriceList::Paste(QByteArrayView prices) {
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
