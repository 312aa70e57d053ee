// What the pickers of goods ask about the row that was chosen.
#pragma once

#include <optional>

#include "books/directories/GoodsPick.h"
#include "books/stock/LineNotes.h"

class QWidget;

namespace kladez {

// Asks the quantity of goods, and their purchase price where the pick has one; a group, and the
// goods of a chart, are handed over unasked. Nothing when cancelled, or when the quantity is no
// number. `on_hand`, where somebody knows it, is told beside the quantity.
std::optional<GoodsPick> AskPick(QWidget* parent, const GoodsRecord& record, PickFor pick_for,
                                 const StockAfter& on_hand = {});

}  // namespace kladez
