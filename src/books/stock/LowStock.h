// Goods of which there is less than their minimum, in all warehouses together: for the list
// "Заказать" and the home screen.
#pragma once

#include <QString>
#include <vector>

#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez {

struct LowStock {
  QString name;
  QString unit;
  QString price;  // purchase price of the directory, number text
  double on_hand;
  double minimum;

  // What is to be ordered to have the minimum; above 0.
  double Missing() const;
};

// In the order of the directory; goods that it lacks do not count, nor do those without a minimum.
// Nothing where the file of minima is missing or damaged. Throws filesystem_error where the
// directory or a ledger can't be read; that is looked for only when there are minima.
std::vector<LowStock> CollectLowStock(const DataDir& data, const Session& session);

}  // namespace kladez
