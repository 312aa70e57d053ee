// What comes of each row of a foreign table that is brought into the books, and why.
#pragma once

#include <QString>
#include <vector>

#include "books/directories/GoodsExtras.h"
#include "books/prices/SheetLayout.h"
#include "books/store/FileState.h"
#include "formats/GoodsFile.h"

namespace kladez {

struct BringChoice {
  SheetLayout layout;
  bool add_new = true;  // otherwise goods that the directory lacks are refused
  // Where new goods go; empty: as the table has them, by its column or the rows that head others.
  QString group = {};
  // Where sale prices go; nowhere without a list.
  QString warehouse = {};
  int price_list = -1;

  bool TakesSale() const { return price_list >= 0 && layout[GoodsField::kSale] != kNoColumn; }
};

enum class Fate { kNew, kChanged, kSame, kRefused, kHeading };

struct BroughtRow {
  int number = 0;  // of the row in the table
  Fate fate = Fate::kRefused;
  QString told;  // what changes, or why the row is refused
  GoodsRecord goods;
  GoodsExtras extras;
  QString sale;   // "#0.00"; empty: stays as it is
  QString group;  // of new goods
  int at = -1;    // which record of the directory it is
};

struct BringPlan {
  BringChoice choice;
  std::vector<BroughtRow> rows;
  FileState price_file;  // as the price list was read for it

  int Count(Fate fate) const;
  bool ChangesAnything() const { return Count(Fate::kNew) + Count(Fate::kChanged) > 0; }
};

}  // namespace kladez
