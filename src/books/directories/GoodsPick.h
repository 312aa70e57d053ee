// A goods line that was just picked or asked for: what a picker answers to the screen that opened
// it.
#pragma once

#include <QString>
#include <optional>

#include "formats/GoodsFile.h"

namespace kladez {

// What a goods line is picked for, which decides what the picker asks about it.
enum class PickFor {
  kReceipt,       // a line of a receipt: quantity and purchase price
  kPriceList,     // a row of a price list: quantity
  kOpeningStock,  // a row of opening balances: quantity and purchase price
  kGoodsChart,    // the goods of a chart: only their name
};

struct GoodsPick {
  QString name;
  QString quantity;  // of a group empty
  QString unit;
  QString cost;   // purchase price as the picked row shows it
  QString price;  // price asked for, "#0.00"; where none was asked for, the row's in that form
  bool is_group = false;
};

// The row as it is handed over before anything is asked: of a group the name alone.
GoodsPick PickOf(const GoodsRecord& record);
// Nothing when the quantity is no number: that ends the pick.
std::optional<GoodsPick> WithQuantity(GoodsPick pick, const QString& quantity);

}  // namespace kladez
