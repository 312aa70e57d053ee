// The printable price list, price.htm: the rows of the price screen as they stand there, in groups
// or by name, filtered by what is on hand or chosen, at a mark-up or a reduction.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <optional>
#include <vector>

#include "books/prices/PriceList.h"
#include "books/printing/GoodsTable.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez {

enum class PrintedGoods { kAll, kPresent, kAbsent, kSelected, kTicked, kNotTicked };

// What is absent is not printed.
struct PricePageOptions {
  // The head, and the signature under the table.
  std::optional<QString> firm;
  std::optional<QString> address;
  std::optional<QString> phone;
  std::optional<QString> date;
  std::optional<QString> title;
  std::optional<QString> signature;
  // The columns: headings, and the percentages of the prices that are printed.
  bool stock = false;
  std::optional<QString> unit;
  std::optional<QString> purchase;
  double purchase_percent = 100;
  std::optional<QString> sale;
  double sale_percent = 100;

  GoodsTable::Borders borders;
  bool by_groups = true;
  // Empty rows between names of different first letters, when not in groups.
  std::optional<int> gap;
  PrintedGoods goods = PrintedGoods::kAll;
  double at_most = 0;  // with kPresent: quantities from 1 to this
};

// The rows in the screen's order, and which of them are selected there.
struct PricePageRows {
  std::vector<PriceRow> rows;
  std::vector<int> selected;  // positions
};

// Quantities by name, as number texts. Names are joined exactly; only goods of the directory count.
using StockByName = QHash<QString, QString>;
// Throws filesystem_error.
StockByName LoadStockByName(const DataDir& data, const Session& session,
                            const QStringList& warehouses);

// The prices that are printed at another percentage than 100: "Цена закупа 150%, цена реализации
// 50%"; nothing where there are none.
QString PriceEffectText(const PricePageOptions& options);

// The bytes of price.htm.
QByteArray PricePage(const PricePageRows& rows, const StockByName& stock,
                     const PricePageOptions& options);

}  // namespace kladez
