// The former way to make small books, for as long as a test uses it.
#pragma once

#include "SmallBooks.h"

namespace kladez {

inline void SeedBooks(const TempData& temp, Session& session) {
  SmallBooks(temp.Data(), session)
      .Warehouses(u"Склад|Магазин"_lines)
      .Parties(PartyKind::kSupplier, {u"ООО Заря"_s})
      .Parties(PartyKind::kClient, u"ИП Петров|ООО Свет"_lines);
}

}  // namespace kladez
