// The working copy of a price list: every goods row of the directory with its purchase price and
// the sale price that the list gives it, and the ticks that choose goods for the print-out. It
// changes nothing on the disk; PriceStore loads and saves it.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <vector>

#include "books/directories/GoodsPick.h"
#include "books/directories/GoodsView.h"
#include "books/store/FileState.h"
#include "books/store/Progress.h"
#include "formats/PriceFile.h"

namespace kladez {

// Prices are number texts, "#0.00" where they were loaded.
struct PriceRow : PriceRecord {
  bool ticked = false;
  bool picked = false;  // put in by a pick: shown like a group until the list is loaded again
};

class PriceList {
 public:
  PriceList() = default;
  // The bytes are those of spr\товар.spr, of the list's .prc and of `marked`. Goods that the .prc
  // lacks get their purchase price for sale price; what the directory lacks is dropped. Of several
  // rows of one name the first gets price and tick. `progress` is told up to a hundred times how
  // much of the .prc is read.
  PriceList(QByteArrayView goods, QByteArrayView prices, QByteArrayView marked, GoodsView view,
            const Progress& progress = {});

  const std::vector<PriceRow>& Rows() const { return rows_; }

  // Whether rows or prices are not as they were read or saved last; ticks do not count.
  bool IsChanged() const;
  void TakeAsSaved() { saved_.reset(); }

  void SetTick(int row, bool on) { rows_.at(row).ticked = on; }
  // `price` is a number text. False for a group, which has none, and for what is no number.
  bool SetSalePrice(int row, const QString& price);
  // Puts a picked line in below a row (-1, or an empty list: at the end) and gives its position.
  // The asked quantity goes where the sale price stands, as it always has.
  int InsertPick(int below, const GoodsPick& pick);
  void Remove(int row);
  // Replaces all rows by those of a .prc or of the clipboard, groups too in any view. Goods keep
  // the ticks they have.
  void Paste(QByteArrayView prices);

  QByteArray PriceBytes() const;   // a .prc, in the order of the rows
  QByteArray MarkedBytes() const;  // `marked`: the names of the ticked rows

  // What the list was read from.
  FileState price_file = FileState::Missing();
  FileState marks_file = FileState::Missing();

 private:
  void BeforeChange();

  std::vector<PriceRow> rows_;
  std::optional<std::vector<PriceRow>> saved_;  // the rows before the first change to them
};

}  // namespace kladez
