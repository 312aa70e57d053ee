// Which column of a foreign table is what: guessed from its headings and, where they say nothing,
// from what stands in the cells; the user may change it.
#pragma once

#include <QString>
#include <array>

#include "formats/tables/Sheet.h"

namespace kladez {

enum class GoodsField {
  kName,
  kUnit,
  kPurchase,
  kSale,
  kCountry,
  kDeclaration,
  kBarcode,
  kMinimum,
  kGroup,
};
inline constexpr size_t kGoodsFields = 9;
inline constexpr int kNoColumn = -1;

struct SheetLayout {
  std::array<int, kGoodsFields> columns;  // in the order of the fields
  size_t first_row = 0;                   // of the goods: what stands above are headings

  SheetLayout() { columns.fill(kNoColumn); }
  int& operator[](GoodsField field) { return columns[static_cast<size_t>(field)]; }
  int operator[](GoodsField field) const { return columns[static_cast<size_t>(field)]; }
  // A column is one thing: what it was before has none then.
  void Give(GoodsField field, int column);
};

// "Цена закупа", as the lists of the program have it.
QString TitleOf(GoodsField field);

// What a price without a word of its own ("Цена") is to be.
enum class PlainPrice { kPurchase, kSale };
SheetLayout GuessLayout(const Sheet& sheet, PlainPrice plain_price);

// The headings of the columns, "A", "B" and so on where there are none: "B: Цена, руб.".
QString ColumnTitle(const Sheet& sheet, const SheetLayout& layout, int column);

}  // namespace kladez
