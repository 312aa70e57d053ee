// Compares a foreign table with the goods directory and a price list, row by row.
#pragma once

#include <QHash>
#include <array>
#include <optional>
#include <vector>

#include "books/prices/BringPlan.h"
#include "books/prices/PriceList.h"
#include "formats/OwnRecords.h"
#include "formats/tables/SheetNumbers.h"

namespace kladez {

class BringPlanner {
 public:
  // All of them outlive the planner.
  BringPlanner(const std::vector<GoodsRecord>& goods, const OwnRecords& extras,
               const PriceList& prices, const BringChoice& choice);

  BringPlan Plan(const Sheet& sheet);

 private:
  struct Cells;  // of one row, as they are taken
  Cells Take(const SheetRow& row);
  void PlanRow(const SheetRow& row, BroughtRow& planned);
  bool HeadsOthers(const SheetRow& row) const;
  int Find(const Cells& cells) const;
  void PlanNew(Cells& cells, BroughtRow& planned);
  void PlanChange(Cells& cells, BroughtRow& planned);
  // Empty where the cells may be taken.
  QString Refusal(const Cells& cells, int at);
  QString TellTwice(const Cells& cells, int at, int number);

  const std::vector<GoodsRecord>& goods_;
  const OwnRecords& extras_;
  const BringChoice& choice_;
  QHash<QString, int> by_name_;
  QHash<QString, int> by_key_;
  QHash<QString, int> by_barcode_;
  QHash<QString, QString> sale_;
  QHash<QString, int> row_of_;  // in the table, of names and barcodes that came before
  std::vector<SheetNumbers> numbers_;
  QString heading_;  // of the rows that are read now
};

}  // namespace kladez
