// All that has happened to one item: each line of a receipt, shipment or transfer that bears its
// name, oldest first, and the stock after it. A ledger keeps no days, so the stock of a day is what
// lies there now less what came and went later; what documents do not tell (opening balances,
// corrections, deleted documents) stands before all of them.
#pragma once

#include <QDate>
#include <QString>
#include <map>
#include <optional>
#include <vector>

#include "books/stock/DocumentRef.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "formats/Progress.h"

namespace kladez {

struct GoodsMovement {
  QDate date;
  DocumentRef document;
  QString number;     // of the document
  QString warehouse;  // whose stock it is
  QString party;      // supplier, client, or the warehouse at the other end of a transfer
  double quantity;    // what came; below zero what went
  bool is_open;       // a receipt or shipment that is not closed moves nothing yet
  QString price;      // of a receipt the purchase price, of a shipment the one after discount
};

class GoodsHistory {
 public:
  struct Row {
    // Nothing for the first row, of what no document tells.
    std::optional<GoodsMovement> movement;
    double quantity;
    double stock;  // after it
  };
  struct Sums {
    double received = 0;  // of what moved stock, both zero or above
    double shipped = 0;
    double stock = 0;  // now
  };

  // Of the goods with that name, and empty: CollectGoodsHistory fills it.
  explicit GoodsHistory(QString goods) : goods_(std::move(goods)) {}

  // The name of the goods.
  const QString& Goods() const { return goods_; }
  const QString& Unit() const { return unit_; }  // of the ledgers, or else of a document

  // Of one warehouse, or of kAllWarehouses together, where a transfer has two rows. The first row
  // of what no document tells is left out where there is nothing of that kind.
  std::vector<Row> Rows(const QString& warehouse) const;
  Sums Total(const QString& warehouse) const;
  // At the end of the day.
  double StockOn(QDate day, const QString& warehouse) const;

 private:
  friend GoodsHistory CollectGoodsHistory(const DataDir& data, const Session& session,
                                          const QString& goods, const Progress& progress);
  bool Counts(const QString& of, const QString& chosen) const;
  double OnHand(const QString& warehouse) const;

  QString goods_;
  QString unit_;
  std::vector<GoodsMovement> movements_;  // by day; in a day receipts, transfers, shipments
  std::map<QString, double> on_hand_;     // of each warehouse, from its ledger
};

// Reads all documents of all warehouses. A document without a valid date is left out, one that
// can't be read is passed over. Throws filesystem_error for a ledger that can't be read,
// WorkCancelled, and std::system_error for a name that Windows-1251 can't hold.
GoodsHistory CollectGoodsHistory(const DataDir& data, const Session& session, const QString& goods,
                                 const Progress& progress = {});

}  // namespace kladez
