// The two orders in which lists of goods are shown and printed: by name, and by group with the
// names ordered inside each. A row is any struct with a `QString name`; a name that begins with a
// blank is a group.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "formats/GoodsFile.h"
#include "formats/Ordering.h"

namespace kladez {

// Equal names keep their order.
template <typename Row>
std::vector<Row> SortedByName(std::vector<Row> rows) {
  std::vector<Row> sorted;
  sorted.reserve(rows.size());
  const auto name = [&](size_t place) { return QStringView(rows[place].name); };
  for (const size_t place : PlacesInOrder(rows.size(), name)) {
    sorted.push_back(std::move(rows[place]));
  }
  return sorted;
}

// A group without goods vanishes; goods before the first group stay at the top, without a row of a
// group above them; groups of one name become one.
template <typename Row>
std::vector<Row> SortedInGroups(const std::vector<Row>& rows) {
  struct Placed {
    QString group;
    std::pair<QString, QString> key;
    const Row* row;
  };
  std::vector<Placed> goods;
  QString group;
  QString group_key;
  for (const Row& row : rows) {
    if (IsGroupName(row.name)) {
      group = row.name.mid(1);
      group_key = OrderKey(group);
    } else {
      goods.push_back({group, {group_key, OrderKey(row.name)}, &row});
    }
  }
  std::stable_sort(goods.begin(), goods.end(),
                   [](const Placed& a, const Placed& b) { return a.key < b.key; });
  std::vector<Row> sorted;
  QString previous;
  for (const Placed& placed : goods) {
    if (placed.group != previous) {
      Row heading;
      heading.name = u' ' + placed.group;
      sorted.push_back(std::move(heading));
      previous = placed.group;
    }
    sorted.push_back(*placed.row);
  }
  return sorted;
}

}  // namespace kladez
