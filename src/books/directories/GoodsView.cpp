#include "books/directories/GoodsView.h"

namespace kladez {

GoodsView ReadGoodsView(const SettingsStore& store, const Setting& goods_only) {
  // Of two options set one after the other the second keeps the mark, so it alone decides.
  return store.ReadBool(goods_only) ? GoodsView::kGoodsOnly : GoodsView::kGroups;
}

void WriteGoodsView(SettingsStore& store, const Setting& groups, const Setting& goods_only,
                    GoodsView view) {
  store.WriteBool(groups, view == GoodsView::kGroups);
  store.WriteBool(goods_only, view == GoodsView::kGoodsOnly);
}

}  // namespace kladez
