#include "books/stock/OpeningBalances.h"

#include "books/stock/StockLedger.h"
#include "books/store/SaveSet.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

void OpeningBalances::Add(const GoodsPick& pick) {
  rows_.push_back({pick.name, pick.quantity, pick.unit});
}

bool OpeningBalances::ChangeQuantity(int row, const QString& quantity) {
  if (IsGroup(row) || rows_[row].quantity == quantity || !ParseStrict(quantity)) return false;
  rows_[row].quantity = quantity;
  return true;
}

void OpeningBalances::Remove(int row) { rows_.erase(rows_.begin() + row); }

void OpeningBalances::Book(const DataDir& data, const Session& session,
                           const QString& warehouse) const {
  // Three lines of a group would part every later record of the ledger from its quantity.
  std::vector<LedgerRecord> goods;
  for (const LedgerRecord& row : rows_) {
    if (!IsGroupName(row.name)) goods.push_back(row);
  }
  const QString path = LedgerPath(session, warehouse);
  FileState file;
  StockLedger ledger(ReadWithState(data, path, file));
  ledger.Post(Posting::kReceive, goods);
  SaveSet save(data, u"остатки занесены на склад «%1»"_s.arg(warehouse));
  save.Write(path, ledger.Bytes(), file);
  save.Commit();
}

}  // namespace kladez
