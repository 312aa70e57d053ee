#include "books/printing/InvoiceTable.h"

#include <array>

#include "formats/Numbers.h"

namespace kladez {
namespace {

using Kind = InvoiceColumn::Kind;
using Row = InvoiceRow;
using Sums = InvoiceSums;

// Excise is not kept: its columns are on paper only.
constexpr std::array kRoubleInvoice = {
    InvoiceColumn{u"Наименование товара", 23, Kind::kName, &Row::name},
    InvoiceColumn{u"Единица измерения", 3, Kind::kText, &Row::unit},
    InvoiceColumn{u"Количество", 3, Kind::kNumber, &Row::quantity},
    InvoiceColumn{u"Цена (тариф) за единицу измерения", 5, Kind::kNumber, &Row::net_price},
    InvoiceColumn{u"Стоимость товаров (работ, услуг) всего без НДС", 5, Kind::kNumber,
                  &Row::net_sum, &Sums::net},
    InvoiceColumn{u"В т.числе акциз", 2, Kind::kNumber},
    InvoiceColumn{u"Налоговая ставка", 3, Kind::kNumber, &Row::rate},
    InvoiceColumn{u"Сумма налога", 4, Kind::kNumber, &Row::tax, &Sums::tax},
    InvoiceColumn{u"Стоимость товаров (работ, услуг) всего с учетом налога", 7, Kind::kNumber,
                  &Row::gross, &Sums::gross},
    InvoiceColumn{u"Страна происхожд.", 6, Kind::kCentred, &Row::country},
    InvoiceColumn{u"N груз. там. декларации", 9, Kind::kText, &Row::declaration},
};

constexpr std::array kDollarInvoice = {
    InvoiceColumn{u"N", 1, Kind::kRowNumber},
    InvoiceColumn{u"Наименование товара", 15, Kind::kName, &Row::name},
    InvoiceColumn{u"Страна происхожд.", 4, Kind::kCentred, &Row::country},
    InvoiceColumn{u"N груз. там. декларации", 4, Kind::kText, &Row::declaration},
    InvoiceColumn{u"Ед. изм.", 3, Kind::kText, &Row::unit},
    InvoiceColumn{u"Кол-во", 5, Kind::kNumber, &Row::quantity},
    InvoiceColumn{u"Цена", 6, Kind::kNumber, &Row::net_price},
    InvoiceColumn{u"В т.числе акциз", 3, Kind::kNumber},
    InvoiceColumn{u"Сумма", 6, Kind::kNumber, &Row::net_sum, &Sums::net},
    InvoiceColumn{u"В т.числе акциз", 3, Kind::kNumber},
    InvoiceColumn{u"Ставка НДС", 4, Kind::kNumber, &Row::rate},
    InvoiceColumn{u"Сумма НДС", 6, Kind::kNumber, &Row::tax, &Sums::tax},
    InvoiceColumn{u"Всего с НДС", 6, Kind::kNumber, &Row::gross, &Sums::gross},
};

constexpr std::array kBill = {
    InvoiceColumn{u"N", 1, Kind::kRowNumber},
    InvoiceColumn{u"Наименование", 15, Kind::kName, &Row::name},
    InvoiceColumn{u"Ед. изм.", 3, Kind::kText, &Row::unit},
    InvoiceColumn{u"Кол-во", 5, Kind::kNumber, &Row::quantity},
    InvoiceColumn{u"Цена", 6, Kind::kNumber, &Row::net_price},
    InvoiceColumn{u"Сумма", 6, Kind::kNumber, &Row::net_sum, &Sums::net},
};

PageCell CellOf(Kind kind, const QString& text, int width) {
  switch (kind) {
    case Kind::kName:
      return NameCell(text, width);
    case Kind::kNumber:
      return NumberCell(text, width);
    case Kind::kCentred:
    case Kind::kRowNumber:
      return CenterCell(text, width);
    default:
      return TextCell(text, width);
  }
}

}  // namespace

InvoiceColumns RoubleInvoiceColumns() { return kRoubleInvoice; }
InvoiceColumns DollarInvoiceColumns() { return kDollarInvoice; }
InvoiceColumns BillColumns() { return kBill; }

std::vector<PageCell> HeadingCells(InvoiceColumns columns, HeadingStyle style) {
  std::vector<PageCell> cells;
  for (const InvoiceColumn& column : columns) {
    const Kind kind = style == HeadingStyle::kCentred ? Kind::kCentred : column.kind;
    cells.push_back(CellOf(kind, column.heading.toString(), column.width));
  }
  return cells;
}

void WriteColumnNumbers(PageWriter& page, InvoiceColumns columns) {
  std::vector<PageCell> cells;
  for (const InvoiceColumn& column : columns) {
    cells.push_back(CenterCell(GeneralText(cells.size() + 1), column.width));
  }
  page.Row(cells, {.points = 7});
}

void WriteInvoiceRows(PageWriter& page, InvoiceColumns columns,
                      const std::vector<InvoiceRow>& rows) {
  size_t number = 0;
  for (const InvoiceRow& row : rows) {
    ++number;
    std::vector<PageCell> cells;
    for (const InvoiceColumn& column : columns) {
      const QString text = column.kind == Kind::kRowNumber ? GeneralText(number)
                           : column.field != nullptr       ? row.*column.field
                                                           : QString();
      cells.push_back(CellOf(column.kind, text, column.width));
    }
    page.Row(cells, kSmallFont);
  }
}

void WriteInvoiceTotal(PageWriter& page, InvoiceColumns columns,
                       const std::vector<InvoiceRow>& rows, const PageCell& caption) {
  const InvoiceSums sums = SumsOf(rows);
  std::vector<PageCell> cells;
  for (const InvoiceColumn& column : columns) {
    if (column.kind == Kind::kName) {
      cells.push_back(caption);
      cells.back().width = column.width;
    } else if (column.total != nullptr) {
      cells.push_back(NumberCell(sums.*column.total, column.width));
    } else {
      cells.push_back(TextCell({}, column.width));
    }
  }
  page.Row(cells, kSmallFont);
}

}  // namespace kladez
