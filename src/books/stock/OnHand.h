// What lies in a warehouse, or in all of them: the goods directory joined with the stock ledgers.
// A record of a ledger belongs to the first row of the list whose name begins with the record's
// name, letter case minded; a record without such a row is not seen here. Rows have no value of
// their own: stock is worth the purchase price that the directory gives at the moment.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <limits>
#include <vector>

#include "books/directories/GoodsView.h"
#include "books/stock/PrefixIndex.h"
#include "books/store/FileState.h"
#include "books/store/Session.h"
#include "formats/FileRows.h"
#include "formats/GoodsRows.h"

namespace kladez {

struct OnHandRow {
  QString name;      // of a group with its leading blank
  QString quantity;  // number text, "0" where no ledger has the goods; empty for a group
  QString unit;
  QString price;  // purchase price as the directory has it
  QString group;  // the directory's group above the item, with its blank; empty before the first

  // A heading of the list, which has no quantity.
  bool IsGroup() const { return IsGroupName(name); }
};

// Where a row's goods stand in the directory, and their stock.
struct OnHandPlace {
  static constexpr quint32 kNone = std::numeric_limits<quint32>::max();

  quint32 goods;
  quint32 group;         // the group above them, none before the first
  bool touched = false;  // some ledger has them
  double quantity = 0;
};

struct OnHandSource {
  using Record = OnHandRow;
  using Place = OnHandPlace;

  GoodsSource goods;

  // The row of a place; its quantity is a general number text.
  OnHandRow Make(const OnHandPlace& place) const;
};

using OnHandRows = FileRows<OnHandSource>;

class OnHandList {
 public:
  struct Totals {
    int names = 0;   // goods with a quantity other than 0
    double sum = 0;  // their worth at purchase prices
  };

  OnHandList() = default;
  // The rows in the order of the screen.
  explicit OnHandList(OnHandRows rows) : rows_(std::move(rows)) {}

  // What the view shows, in its order.
  const OnHandRows& Rows() const { return rows_; }
  // The first row of a name; -1 where there is none.
  int RowOfName(const QString& name) const;
  // Sums at the prices of the rows, which read as 0 where they are no number.
  Totals Total() const;
  // "Итого наименований: 12     на сумму: 3400.00"
  QString StatusText() const;

  // Puts a quantity into an item's row. False for a group and for a text that is no number or is
  // the row's text already: nothing is to be written then.
  bool ChangeQuantity(int row, const QString& quantity);

  // The ledger after a correction: all items but those whose quantity is the text "0".
  QByteArray LedgerBytes() const;
  // The ledger after zeroing: the same items, with "0" for quantity and unit.
  QByteArray ZeroedLedgerBytes() const;

  // What the list was read from: the directory too, as a name that it lacks leaves the ledger.
  FileState goods_file;
  std::vector<FileState> ledger_files;  // in the order of the warehouses

 private:
  // Whether a row goes into a ledger.
  bool IsKept(size_t row) const;

  OnHandRows rows_;
};

// Makes the list: the directory's rows with quantity "0", to which the records of the ledgers are
// added one after the other, each sum kept as text between two additions. Bytes are those of files.
class OnHandJoin {
 public:
  // `goods` is spr\товар.spr, `ledger` a товар.usl; Take gives the list once, when all are added.
  OnHandJoin(const QByteArray& goods, GoodsView view);
  void Add(QByteArrayView ledger);
  OnHandList Take();

 private:
  QByteArray goods_;
  std::vector<OnHandPlace> places_;
  PrefixIndex index_;
};

// Reads the directory and the ledgers of the named warehouses. Throws filesystem_error.
OnHandList LoadOnHand(const DataDir& data, const Session& session, const QStringList& warehouses,
                      GoodsView view);

// Whether the list is still that of the files. The warehouses are those that it was loaded with.
bool IsCurrent(const OnHandList& list, const DataDir& data, const Session& session,
               const QStringList& warehouses);

// Each writes the ledger of one warehouse. Throws filesystem_error; nothing has changed then.
void SaveOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse);
void ZeroOnHand(OnHandList& list, const DataDir& data, const Session& session,
                const QString& warehouse);

}  // namespace kladez
