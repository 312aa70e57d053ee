// Brings a foreign table into the books: new goods, other fields of goods that are there, sale
// prices of one price list. First a plan that says of every row what comes of it and why, then one
// save of all files.
#pragma once

#include <QStringList>
#include <vector>

#include "books/prices/BringPlan.h"
#include "books/store/DataDir.h"
#include "books/store/OwnRecordsFile.h"
#include "books/store/Session.h"
#include "formats/GoodsFile.h"

namespace kladez {

class GoodsBringer {
 public:
  // Reads the goods directory and what belongs to it. Throws filesystem_error. Both outlive it.
  GoodsBringer(const DataDir& data, const Session& session);

  // The groups of the directory, in its order.
  const QStringList& Groups() const { return groups_; }

  // Goods are the same by their exact name, by one that differs in letter case, blanks and "ё"
  // alone, or by their barcode. An empty cell changes nothing. Throws filesystem_error where the
  // price list can't be read.
  BringPlan Plan(const Sheet& sheet, const BringChoice& choice) const;
  // One save, all or nothing; a copy of the Database is made before. Throws filesystem_error, and
  // StaleFile where the directory or the price list is no longer as it was read.
  void Save(const BringPlan& plan) const;

 private:
  QByteArray GoodsAfter(const BringPlan& plan) const;

  const DataDir& data_;
  const Session& session_;
  FileState file_;
  OwnRecordsFile extras_;
  QByteArray bytes_;
  std::vector<GoodsRecord> goods_;
  QStringList groups_;
};

}  // namespace kladez
