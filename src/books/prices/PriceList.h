// The working copy of a price list: every goods row of the directory with its purchase price and
// the sale price that the list gives it, and the ticks that choose goods for the print-out. It
// changes nothing on the disk; PriceStore loads and saves it.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <limits>
#include <optional>

#include "books/directories/GoodsPick.h"
#include "books/directories/GoodsView.h"
#include "books/store/FileState.h"
#include "formats/FileRows.h"
#include "formats/GoodsRows.h"
#include "formats/PriceFile.h"
#include "formats/Progress.h"

namespace kladez {

// Prices are number texts, "#0.00" where they were loaded.
struct PriceRow : PriceRecord {
  bool ticked = false;
  bool picked = false;  // put in by a pick: shown like a group until the list is loaded again
};

// Where a row's goods and its sale price stand in the two files, and its tick.
struct PricePlace {
  static constexpr quint32 kNone = std::numeric_limits<quint32>::max();

  quint32 goods;
  quint32 sale = kNone;  // none: the purchase price
  bool ticked = false;

  // Ticks make no difference, as between records.
  bool operator==(const PricePlace& other) const {
    return goods == other.goods && sale == other.sale;
  }
};

struct PriceSource {
  using Record = PriceRow;
  using Place = PricePlace;

  GoodsSource goods;
  QByteArray prices;

  // The row of a place in the two files.
  PriceRow Make(const PricePlace& place) const;
  bool operator==(const PriceSource& other) const {
    return goods == other.goods && prices.isSharedWith(other.prices);
  }
};

using PriceRows = FileRows<PriceSource>;

class PriceList {
 public:
  PriceList() = default;
  // The bytes are those of spr\товар.spr, of the list's .prc and of `marked`. Goods that the .prc
  // lacks get their purchase price for sale price; what the directory lacks is dropped. Of several
  // rows of one name the first gets price and tick. `progress` is told up to a hundred times how
  // much of the .prc is read.
  PriceList(const QByteArray& goods, const QByteArray& prices, QByteArrayView marked,
            GoodsView view, const Progress& progress = {});

  // What the view shows, groups among goods.
  const PriceRows& Rows() const { return rows_; }
  // What is asked of many rows: without taking all of one apart.
  bool IsTicked(int row) const;
  int TickedCount() const;
  // The first row of a name, and the first that is no group; -1 where there is none.
  int RowOfName(const QString& name) const;
  int FirstGoods() const;

  // Whether rows or prices are not as they were read or saved last; ticks do not count.
  bool IsChanged() const;
  void TakeAsSaved() { saved_.reset(); }

  // Ticks a row that exists, for the print-out; SaveTicks writes it.
  void SetTick(int row, bool on);
  // `price` is a number text. False for a group, which has none, and for what is no number.
  bool SetSalePrice(int row, const QString& price);
  // The same of many, by name; of several rows of one name the first gets it.
  void SetSalePrices(QHash<QString, QString> prices);
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
  FileState goods_file;

 private:
  void BeforeChange();
  template <typename OfRaw, typename OfRow>
  int FirstRow(OfRaw of_raw, OfRow of_row) const;

  PriceRows rows_;
  std::optional<PriceRows> saved_;  // the rows before the first change to them
};

}  // namespace kladez
