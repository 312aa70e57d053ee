// Tables whose rows are found by the number of an enum: the compiler checks their order.
#pragma once

#include <array>
#include <cstddef>

namespace kladez {

// Whether row i of a table is the row of the i-th value of the enum, which each row holds in `key`:
//
//   static_assert(IsInOrder(kPlaces, &PlaceRow::place));
template <typename Row, std::size_t count, typename Key>
constexpr bool IsInOrder(const std::array<Row, count>& table, Key Row::*key) {
  for (std::size_t i = 0; i < count; ++i) {
    if (static_cast<std::size_t>(table[i].*key) != i) return false;
  }
  return true;
}

}  // namespace kladez
