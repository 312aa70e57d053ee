// The two ways in which a screen shows goods, "Группы" and "Только товары", kept between runs by a
// pair of settings for each family of screens.
#pragma once

#include "books/store/SettingsStore.h"

namespace kladez {

enum class GoodsView {
  kGroups,     // groups and their goods, in the order of the file
  kGoodsOnly,  // goods alone, by name
};

// The view that a screen was left in, told by one of its two settings; both are written.
GoodsView ReadGoodsView(const SettingsStore& store, const Setting& goods_only);
void WriteGoodsView(SettingsStore& store, const Setting& groups, const Setting& goods_only,
                    GoodsView view);

}  // namespace kladez
