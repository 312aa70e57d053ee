#include "screens/prices/PriceRows.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "ui/controls/Look.h"
#include "ui/controls/RecordModel.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

QString PriceCell(const PriceRow& row, int column) {
  const std::array cells = {&row.name, &row.unit, &row.purchase, &row.sale};
  return *cells[column];
}

}  // namespace

RecordModel* NewPriceModel(PriceList& prices, bool with_purchase_price, QObject* parent) {
  const auto row = [&prices](int at) { return prices.Rows()[at]; };
  const int cost_twips = with_purchase_price ? 1500 : 0;
  return new RecordModel({{.title = u"Наименование"_s, .twips = 3100, .stretch = true},
                          {.title = u"Ед.изм."_s, .twips = 1000},
                          {.title = u"Цена закупа"_s, .twips = cost_twips, .number = true},
                          {.title = u"Цена реализации"_s, .twips = 2000, .number = true}},
                         {.count = [&prices] { return static_cast<int>(prices.Rows().size()); },
                          .text = [row](int at, int column) { return PriceCell(row(at), column); },
                          .is_group = [row](int at) { return row(at).IsGroup() || row(at).picked; },
                          .checked = [&prices](int at) { return prices.IsTicked(at); },
                          .set_checked = [&prices](int at, bool on) { prices.SetTick(at, on); },
                          .checkable = [row](int at) { return !row(at).IsGroup(); }},
                         parent);
}

int FirstRowToPick(const PriceList& prices, const QString& last_pick) {
  const int row = last_pick.isEmpty() ? -1 : prices.RowOfName(last_pick);
  return std::max(0, row < 0 ? prices.FirstGoods() : row);
}

// Ticks look like a choice of several rows, which they are for the print-out only.
QString WhatIsTaken(const PriceList& prices, int current_row, int picks) {
  QStringList words = {u"Выбрано строк: %1."_s.arg(picks)};
  if (current_row >= 0 && !prices.Rows()[current_row].IsGroup()) {
    words.append(u"«Выбрать» берёт строку под курсором: «%1»."_s.arg(
        prices.Rows()[current_row].name.left(look::kLongestText)));
  }
  const int ticked = prices.TickedCount();
  if (ticked > 0) {
    words.append(
        u"Галочки (%1) отмечают товары для печати прайс-листа, их «Выбрать» не берёт."_s.arg(
            ticked));
  }
  return words.join(u' ');
}

}  // namespace kladez
