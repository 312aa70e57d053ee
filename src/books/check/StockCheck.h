// Adds up what documents and ledgers say of each goods in each warehouse, and compares the two.
#pragma once

#include <QStringList>
#include <vector>

#include "books/check/NameCheck.h"
#include "formats/DocumentFile.h"

namespace kladez {

class StockCheck {
 public:
  // `goods` numbers the names and outlives this, as `warehouses` does.
  StockCheck(const QStringList& warehouses, const KnownNames& goods);

  // A goods line of a document that posts. `warehouse` is a place among the warehouses, -1 where
  // the document names none of them; `destination` likewise, for transfers.
  void AddDocumentLine(DocumentKind kind, int warehouse, int destination, size_t goods,
                       double quantity);
  void AddLedgerRecord(int warehouse, size_t goods, double quantity);

  // Every goods that stands in a document or a ledger, warehouse by warehouse.
  std::vector<StockComparison> Compare() const;
  // What is negative, and what the documents do not explain, at the warehouses' ledgers.
  void Tell(FindingList& findings) const;

 private:
  struct Sums {
    double receipts = 0;
    double shipments = 0;
    double transfers = 0;
    double on_hand = 0;
    int postings = 0;   // 0: nothing is known of the goods
    int roundings = 0;  // each issue rounds the ledger to two decimals
  };

  Sums* At(int warehouse, size_t goods);

  const QStringList& warehouses_;
  const KnownNames& goods_;
  std::vector<std::vector<Sums>> sums_;  // by warehouse and number of the goods
};

}  // namespace kladez
