// A year of trade for the demonstration books: receipts from the suppliers, shipments to the
// clients, some transfers to the shop. Closed shipments never take more than there is.
#pragma once

#include <QDate>
#include <array>

#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez::demo {

// Mark-ups of the three price lists, retail first.
inline constexpr std::array<double, 3> kMarkUps = {0.35, 0.22, 0.14};

// The sale price of a list, in steps of ten kopecks.
QString SalePrice(double purchase, int list);

void Trade(const DataDir& data, const Session& session, QDate today);

}  // namespace kladez::demo
