#include "books/stock/OnHand.h"

#include "books/directories/GoodsOrder.h"
#include "books/stock/DocumentBook.h"
#include "books/store/SaveSet.h"
#include "formats/DatabaseFiles.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kNothing = u"0"_s;

bool IsKept(const OnHandRow& row) { return !row.IsGroup() && row.quantity != kNothing; }

// The directory's rows as the view shows them, quantity "0".
std::vector<OnHandRow> DirectoryRows(QByteArrayView goods, GoodsView view) {
  std::vector<GoodsRecord> records = ReadGoods(goods);
  std::vector<OnHandRow> rows;
  rows.reserve(records.size());
  QString group;
  for (GoodsRecord& record : records) {
    if (record.IsGroup()) {
      group = record.name;
      if (view == GoodsView::kGroups) rows.push_back({record.name, {}, {}, {}, group});
    } else {
      rows.push_back({std::move(record.name), kNothing, std::move(record.unit),
                      std::move(record.price), group});
    }
  }
  // Sorted before the join: "the first row" is the first of the list as it is shown.
  return view == GoodsView::kGoodsOnly ? SortedByName(std::move(rows)) : rows;
}

std::vector<QByteArray> EncodedNames(const std::vector<OnHandRow>& rows) {
  std::vector<QByteArray> names;
  names.reserve(rows.size());
  for (const OnHandRow& row : rows) names.push_back(EncodeText(row.name));
  return names;
}

QString GoodsPath(const Session& session) { return session.Path(files::kGoods); }

void SaveLedger(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse, QByteArray bytes) {
  SaveSet save(data);
  save.Expect(GoodsPath(session), list.goods_file);
  save.Write(LedgerPath(session, warehouse), std::move(bytes), list.ledger_file);
  save.Commit();
}

}  // namespace

OnHandJoin::OnHandJoin(QByteArrayView goods, GoodsView view)
    : rows_(DirectoryRows(goods, view)), index_(EncodedNames(rows_)), sums_(rows_.size()) {}

void OnHandJoin::Add(QByteArrayView ledger) {
  constexpr size_t kTogether = 32;
  std::vector<QByteArrayView> names;
  std::vector<QByteArrayView> quantities;
  std::vector<int> rows;
  const auto add = [&] {
    index_.FirstBeginnings(names, rows);
    for (size_t i = 0; i < names.size(); ++i) {
      if (rows[i] < 0) continue;
      Sum& sum = sums_[rows[i]];
      sum.value = RoundGeneral(sum.value + NumberOr(quantities[i]));
      sum.touched = true;
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

OnHandList OnHandJoin::Take() {
  for (size_t row = 0; row < rows_.size(); ++row) {
    // A record without a name begins every name, a group's too, and a group has no stock.
    if (sums_[row].touched && !rows_[row].IsGroup()) {
      rows_[row].quantity = GeneralText(sums_[row].value);
    }
  }
  return OnHandList(std::move(rows_));
}

OnHandList::Totals OnHandList::Total() const {
  Totals total;
  for (const OnHandRow& row : rows_) {
    if (row.IsGroup()) continue;
    const double quantity = NumberOr(row.quantity);
    if (quantity == 0) continue;
    ++total.names;
    total.sum += quantity * NumberOr(row.price);
  }
  return total;
}

QString OnHandList::StatusText() const {
  const Totals total = Total();
  return u"Итого наименований: "_s + QString::number(total.names) + u"     на сумму: "_s +
         FormatMoney(total.sum);
}

bool OnHandList::ChangeQuantity(int row, const QString& quantity) {
  OnHandRow& changed = rows_.at(row);
  if (changed.IsGroup() || changed.quantity == quantity || !ParseStrict(quantity)) return false;
  changed.quantity = quantity;
  return true;
}

QByteArray OnHandList::LedgerBytes() const {
  LineWriter writer;
  for (const OnHandRow& row : rows_) {
    if (!IsKept(row)) continue;
    for (const QString* line : {&row.name, &row.quantity, &row.unit}) writer.Add(*line);
  }
  return writer.Take();
}

QByteArray OnHandList::ZeroedLedgerBytes() const {
  LineWriter writer;
  for (const OnHandRow& row : rows_) {
    if (!IsKept(row)) continue;
    for (const QString* line : {&row.name, &kNothing, &kNothing}) writer.Add(*line);
  }
  return writer.Take();
}

OnHandList LoadOnHand(const DataDir& data, const Session& session, const QStringList& warehouses,
                      GoodsView view) {
  FileState goods, ledger;
  OnHandJoin join(ReadWithState(data, GoodsPath(session), goods), view);
  for (const QString& warehouse : warehouses) {
    join.Add(ReadWithState(data, LedgerPath(session, warehouse), ledger));
  }
  OnHandList list = join.Take();
  list.goods_file = goods;
  list.ledger_file = ledger;
  return list;
}

void SaveOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse) {
  SaveLedger(list, data, session, warehouse, list.LedgerBytes());
}

void ZeroOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse) {
  SaveLedger(list, data, session, warehouse, list.ZeroedLedgerBytes());
}

}  // namespace kladez
