// Opening balances: a list of goods and quantities that is booked into a warehouse's ledger without
// a document, and so leaves no trace in any report of documents.
#pragma once

#include <QString>
#include <vector>

#include "books/directories/GoodsPick.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/GoodsFile.h"
#include "formats/LedgerFile.h"

namespace kladez {

class OpeningBalances {
 public:
  // Name, quantity as entered, unit. A picked group is a heading here and is never booked.
  const std::vector<LedgerRecord>& Rows() const { return rows_; }
  bool IsGroup(int row) const { return IsGroupName(rows_.at(row).name); }

  // Puts what was picked at the end of the list.
  void Add(const GoodsPick& pick);
  // False for a group and for a text that is no number or is the row's text already.
  bool ChangeQuantity(int row, const QString& quantity);
  void Remove(int row);

  // Adds the quantities to the warehouse's ledger; goods that it lacks are entered at its end.
  // Throws filesystem_error; nothing has changed then.
  void Book(const DataDir& data, const Session& session, const QString& warehouse) const;

 private:
  std::vector<LedgerRecord> rows_;
};

}  // namespace kladez
