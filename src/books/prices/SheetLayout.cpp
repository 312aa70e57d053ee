#include "books/prices/SheetLayout.h"

#include <QSet>
#include <algorithm>
#include <functional>

#include "books/directories/GoodsExtras.h"
#include "formats/tables/SheetNumbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using enum GoodsField;

struct FieldRow {
  GoodsField field;
  QStringView title;
};
constexpr FieldRow kFields[kGoodsFields] = {
    {kName, u"Наименование"},    {kUnit, u"Ед.изм."},    {kPurchase, u"Цена закупа"},
    {kSale, u"Цена реализации"}, {kCountry, u"Страна"},  {kDeclaration, u"N декларации"},
    {kBarcode, u"Штрихкод"},     {kMinimum, u"Минимум"}, {kGroup, u"Группа"},
};

// What headings are told by, the surest first: a column goes to the first row that it answers and
// whose field has none yet.
struct WordRow {
  GoodsField field;
  QStringView word;
};
constexpr WordRow kWords[] = {
    {kBarcode, u"штрих"},     {kBarcode, u"barcode"},
    {kBarcode, u"ean"},       {kName, u"наименование"},
    {kName, u"номенклатура"}, {kName, u"название"},
    {kName, u"товар"},        {kName, u"продукт"},
    {kName, u"name"},         {kUnit, u"ед.изм"},
    {kUnit, u"ед. изм"},      {kUnit, u"единиц"},
    {kUnit, u"ед"},           {kUnit, u"unit"},
    {kSale, u"реализац"},     {kSale, u"розн"},
    {kSale, u"продаж"},       {kSale, u"ррц"},
    {kSale, u"retail"},       {kPurchase, u"закуп"},
    {kPurchase, u"опт"},      {kPurchase, u"себестоим"},
    {kCountry, u"стран"},     {kCountry, u"происхожд"},
    {kCountry, u"country"},   {kDeclaration, u"деклар"},
    {kDeclaration, u"гтд"},   {kMinimum, u"миним"},
    {kMinimum, u"мин."},      {kGroup, u"группа"},
    {kGroup, u"категор"},     {kGroup, u"раздел"},
};

QString Folded(const QString& cell) { return cell.simplified().toLower().replace(u'ё', u'е'); }

// A short word counts at the beginning of a heading only: "ед" is not in "средняя".
bool Answers(const QString& heading, QStringView word) {
  return word.size() <= 3 ? heading.startsWith(word) : heading.contains(word);
}

SheetLayout ByHeadings(const Sheet& sheet, const SheetRow& row, PlainPrice plain_price) {
  SheetLayout layout;
  QStringList headings;
  for (const QString& cell : row.cells) headings << Folded(cell);
  const auto give = [&](GoodsField field, QStringView word) {
    for (int i = 0; i < sheet.columns && layout[field] == kNoColumn; ++i) {
      const bool free =
          std::find(layout.columns.begin(), layout.columns.end(), i) == layout.columns.end();
      if (free && Answers(headings.value(i), word)) layout[field] = i;
    }
  };
  for (const WordRow& known : kWords) give(known.field, known.word);
  const bool to_sale = plain_price == PlainPrice::kSale;
  for (const GoodsField field : {to_sale ? kSale : kPurchase, to_sale ? kPurchase : kSale}) {
    give(field, u"цена");
    give(field, u"price");
  }
  return layout;
}

size_t FieldsFound(const SheetLayout& layout) {
  return kGoodsFields -
         static_cast<size_t>(std::count(layout.columns.begin(), layout.columns.end(), kNoColumn));
}

// What the cells of a column are, of those that are not empty.
struct ColumnLook {
  int filled = 0;
  int barcodes = 0;
  int numbers = 0;
  qsizetype letters = 0;
  QSet<QString> different;
};

ColumnLook LookAt(const Sheet& sheet, int column) {
  constexpr size_t kRowsToAsk = 500;
  const SheetNumbers numbers(sheet, column);
  ColumnLook look;
  for (size_t i = 0; i < std::min(sheet.rows.size(), kRowsToAsk); ++i) {
    const QString cell = sheet.rows[i].cells.value(column).simplified();
    if (cell.isEmpty()) continue;
    ++look.filled;
    look.different.insert(cell);
    const bool long_code = cell.size() == 8 || cell.size() == 12 || cell.size() == 13;
    const bool number = numbers.Read(cell).has_value();
    if (long_code && number && BarcodeFault(cell).isEmpty()) {
      ++look.barcodes;
    } else if (number) {
      ++look.numbers;
    } else {
      look.letters += cell.size();
    }
  }
  return look;
}

SheetLayout ByContents(const Sheet& sheet, PlainPrice plain_price) {
  SheetLayout layout;
  std::vector<ColumnLook> looks;
  for (int i = 0; i < sheet.columns; ++i) looks.push_back(LookAt(sheet, i));
  const auto mostly = [](int some, int all) { return all > 0 && some * 5 >= all * 4; };
  qsizetype longest = 0;
  for (int i = 0; i < sheet.columns; ++i) {
    const ColumnLook& look = looks[static_cast<size_t>(i)];
    if (look.letters > longest) {
      longest = look.letters;
      layout[kName] = i;
    }
    if (layout[kBarcode] == kNoColumn && mostly(look.barcodes, look.filled)) layout[kBarcode] = i;
  }
  const bool to_sale = plain_price == PlainPrice::kSale;
  for (int i = 0; i < sheet.columns; ++i) {
    const ColumnLook& look = looks[static_cast<size_t>(i)];
    if (i == layout[kName] || i == layout[kBarcode] || look.filled == 0) continue;
    const int words = look.filled - look.numbers - look.barcodes;
    if (mostly(look.numbers, look.filled) && i > layout[kName]) {
      GoodsField field = to_sale ? kSale : kPurchase;
      if (layout[field] != kNoColumn) field = to_sale ? kPurchase : kSale;
      if (layout[field] == kNoColumn) layout[field] = i;
    } else if (layout[kUnit] == kNoColumn && mostly(words, look.filled) &&
               look.letters <= words * 6 && look.different.size() <= 20) {
      layout[kUnit] = i;
    }
  }
  return layout;
}

}  // namespace

void SheetLayout::Give(GoodsField field, int column) {
  if (column != kNoColumn) std::replace(columns.begin(), columns.end(), column, kNoColumn);
  (*this)[field] = column;
}

QString TitleOf(GoodsField field) { return kFields[static_cast<size_t>(field)].title.toString(); }

SheetLayout GuessLayout(const Sheet& sheet, PlainPrice plain_price) {
  // Above the headings suppliers write their name, address and the day.
  constexpr size_t kRowsAbove = 30;
  SheetLayout best;
  for (size_t i = 0; i < std::min(sheet.rows.size(), kRowsAbove); ++i) {
    SheetLayout layout = ByHeadings(sheet, sheet.rows[i], plain_price);
    layout.first_row = i + 1;
    const bool headings = layout[kName] != kNoColumn && FieldsFound(layout) > 1;
    if (headings && FieldsFound(layout) > FieldsFound(best)) best = layout;
  }
  if (FieldsFound(best) > 0) return best;
  SheetLayout layout = ByContents(sheet, plain_price);
  if (sheet.rows.empty() || layout[kName] == kNoColumn) return layout;
  const SheetLayout first = ByHeadings(sheet, sheet.rows[0], plain_price);
  layout.first_row = first[kName] == layout[kName] ? 1 : 0;
  return layout;
}

QString ColumnTitle(const Sheet& sheet, const SheetLayout& layout, int column) {
  constexpr int kLetters = 26;
  QString title;
  for (int rest = column; rest >= 0; rest = rest / kLetters - 1) {
    title.prepend(QChar(u'A' + rest % kLetters));
  }
  const size_t row = layout.first_row > 0 ? layout.first_row - 1 : 0;
  const QString heading =
      row < sheet.rows.size() ? sheet.rows[row].cells.value(column).simplified() : QString();
  return heading.isEmpty() ? title : title + u": "_s + heading;
}

}  // namespace kladez
