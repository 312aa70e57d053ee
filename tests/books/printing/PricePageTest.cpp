#include <filesystem>

#include "SmallBooks.h"
#include "books/printing/Pages.h"
#include "books/printing/PricePage.h"

namespace kladez {
namespace {

const QString kOpenTable = QStringLiteral(
    "<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 cellspacing=0 "
    "cellpadding=0 BORDER=0 WIDTH=100%>");
const QString kTableEnd = u"</TABLE>"_s;
const QString kPageEnd = u"</body></html>"_s;

PriceRow Item(const QString& name, const QString& purchase, const QString& sale,
              bool ticked = false) {
  PriceRow row;
  row.name = name;
  row.unit = u"шт."_s;
  row.purchase = purchase;
  row.sale = sale;
  row.ticked = ticked;
  return row;
}

PriceRow GroupRow(const QString& name) {
  PriceRow row;
  row.name = name;
  return row;
}

// In the screen's order, which is not that of the names.
PricePageRows Screen() {
  return {
      {GroupRow(u" Чай"_s), Item(u"Улун"_s, u"10.00"_s, u"33.33"_s, true),
       Item(u"Ассам"_s, u"45.00"_s, u"60.00"_s), GroupRow(u" Пусто"_s), GroupRow(u" Кофе"_s),
       Item(u"абрикос <1>"_s, u"1.00"_s, u"нет"_s, true), Item(u"Арабика"_s, u"0.05"_s, u"7"_s)},
      {2, 5}};
}

const StockByName kStock = {{u"Улун"_s, u"5"_s},
                            {u"Ассам"_s, u"0"_s},
                            {u"абрикос <1>"_s, u"0.5"_s},
                            {u"Арабика"_s, u"1"_s}};

QString Cells(const QString& first, const QStringList& others, const QString& before,
              const QString& after) {
  QString line = u"<tr><TD WIDTH=60% VALIGN=TOP>"_s + before + first + after + u"</TD>"_s;
  for (const QString& text : others) {
    line += u"<TD WIDTH=10% VALIGN=TOP ALIGN=right>"_s + before + text + u"&nbsp;"_s + after +
            u"</TD>"_s;
  }
  return line + u"</tr>"_s;
}
QString Row(const QString& name, const QStringList& values) {
  return Cells(u"&nbsp;"_s + name, values, u"<FONT FACE=Arial SIZE=1>"_s, u"</FONT>"_s);
}
QString HeadRow(QStringList headings) {
  for (QString& heading : headings) heading.prepend(u"&nbsp;"_s);
  return Cells(u"&nbsp;Наименование&nbsp;"_s, headings, u"<FONT FACE=Arial SIZE=2><b>"_s,
               u"</b></FONT>"_s);
}
QString GroupLine(const QString& name) {
  return u"<tr><TD VALIGN=TOP><FONT FACE=Arial SIZE=2>&nbsp;&nbsp;&nbsp;"_s + name +
         u"</FONT></TD></tr>"_s;
}

TEST(PricePage, InGroupsWithEveryPartAndColumn) {
  PricePageOptions options;
  options.firm = u"ООО \"Ромашка\" & Ко"_s;
  options.address = u"Самара"_s;
  options.phone = u"Тел.:1-2, факс:3"_s;
  options.date = u"22 ноября 2026"_s;
  options.title = u"Прайс"_s;
  options.signature = u"Ждём вас"_s;
  options.stock = true;
  options.unit = u"Ед."_s;
  options.purchase = u"Закуп"_s;
  options.purchase_percent = 110;
  options.sale = u"Цена"_s;
  options.sale_percent = 50;
  options.borders = {.goods = false, .groups = true};
  ExpectPage(PricePage(Screen(), kStock, options),
             {PageHead(u"Прайс-лист"_s),
              u"<FONT FACE=Arial SIZE=3><b>ООО \"Ромашка\" & Ко</b></FONT><br>"_s,
              u"<FONT FACE=Arial SIZE=2>Самара</FONT><br>"_s,
              u"<FONT FACE=Arial SIZE=2>Тел.:1-2, факс:3</FONT><br>"_s,
              u"<p align=CENTER><FONT FACE=Arial SIZE=4><b><i>Прайс</i></b></FONT></p>"_s,
              u"<FONT FACE=Arial SIZE=1.5>22 ноября 2026</FONT><br>"_s,
              kLineTable,
              HeadRow(u"Склад|Ед.|Закуп|Цена"_lines),
              kTableEnd,
              kLineTable,
              GroupLine(u"Чай"_s),
              kTableEnd,
              kOpenTable,
              Row(u"Улун"_s, u"5|шт.|11.00|16.67"_lines),
              Row(u"Ассам"_s, u"0|шт.|49.50|30.00"_lines),
              kTableEnd,
              kLineTable,
              GroupLine(u"Пусто"_s),
              kTableEnd,
              kLineTable,
              GroupLine(u"Кофе"_s),
              kTableEnd,
              kOpenTable,
              Row(u"абрикос <1>"_s, u"0.5|шт.|1.10|0.00"_lines),
              Row(u"Арабика"_s, u"1|шт.|0.06|3.50"_lines),
              kTableEnd,
              u"<p align=CENTER><FONT FACE=Arial SIZE=2>Ждём вас</FONT></p>"_s,
              kPageEnd});
}

TEST(PricePage, ByNameWithGapsBetweenFirstLettersAsWritten) {
  PricePageOptions options;
  options.sale = u"Цена"_s;
  options.by_groups = false;
  options.gap = 2;
  const QString gap = u"<tr><TD COLSPAN=2>&nbsp;</TD></tr>"_s;
  ExpectPage(
      PricePage(Screen(), kStock, options),
      {PageHead(u"Прайс-лист"_s), kLineTable, HeadRow({u"Цена"_s}), kTableEnd, kLineTable,
       Row(u"абрикос <1>"_s, {u"0.00"_s}), gap, gap, Row(u"Арабика"_s, {u"7.00"_s}),
       Row(u"Ассам"_s, {u"60.00"_s}), gap, gap, Row(u"Улун"_s, {u"33.33"_s}), kTableEnd, kPageEnd});
}

TEST(PricePage, InGroupsTheGapIsIgnored) {
  PricePageOptions with_gap;
  with_gap.gap = 3;
  EXPECT_EQ(PricePage(Screen(), kStock, with_gap), PricePage(Screen(), kStock, {}));
}

// The names that a page shows, groups in brackets.
QStringList Printed(PrintedGoods goods, double at_most, bool by_groups) {
  PricePageOptions options;
  options.goods = goods;
  options.at_most = at_most;
  options.by_groups = by_groups;
  const QString begin = u"<FONT FACE=Arial SIZE=1>&nbsp;"_s;
  const QString group = u"&nbsp;&nbsp;&nbsp;"_s;
  QStringList names;
  for (const QString& line : DecodeLines(PricePage(Screen(), kStock, options))) {
    for (const QString& mark : {begin, group}) {
      const qsizetype at = line.indexOf(mark);
      if (at < 0) continue;
      const QString name = line.mid(at + mark.size()).section(u"</FONT>"_s, 0, 0);
      names.append(mark == group ? u'[' + name + u']' : name);
      break;
    }
  }
  return names;
}

TEST(PricePage, EachFilterLeavesItsGoodsAndEveryGroup) {
  const struct {
    PrintedGoods goods;
    double at_most;
    QStringList printed;
  } cases[] = {
      {PrintedGoods::kAll, 0, u"абрикос <1>|Арабика|Ассам|Улун"_lines},
      {PrintedGoods::kPresent, 5, {u"Арабика"_s, u"Улун"_s}},
      {PrintedGoods::kPresent, 4, {u"Арабика"_s}},
      {PrintedGoods::kPresent, 0, {}},
      {PrintedGoods::kAbsent, 0, {u"Ассам"_s}},
      {PrintedGoods::kSelected, 0, {u"абрикос <1>"_s, u"Ассам"_s}},
      {PrintedGoods::kTicked, 0, {u"абрикос <1>"_s, u"Улун"_s}},
      {PrintedGoods::kNotTicked, 0, {u"Арабика"_s, u"Ассам"_s}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Printed(c.goods, c.at_most, false), c.printed) << int(c.goods) << ' ' << c.at_most;
  }
  EXPECT_EQ(Printed(PrintedGoods::kPresent, 0, true), (u"[Чай]|[Пусто]|[Кофе]"_lines));
}

TEST(PricePage, GoodsThatTheDirectoryLacksAreAbsent) {
  PricePageOptions options;
  options.stock = true;
  options.goods = PrintedGoods::kAbsent;
  const PricePageRows rows{{Item(u"Потеря"_s, u"1.00"_s, u"2.00"_s)}, {}};
  ExpectPage(PricePage(rows, kStock, options),
             {PageHead(u"Прайс-лист"_s), kLineTable, HeadRow({u"Склад"_s}), kTableEnd, kLineTable,
              Row(u"Потеря"_s, {u"0"_s}), kTableEnd, kPageEnd});
}

TEST(PriceStock, SumsRecordsOfOneNameOverTheGivenWarehousesOnly) {
  TempData temp;
  Session session;
  SmallBooks(temp.Data(), session)
      .Goods(u" Чай|Чай чёрный||||1|Чай||||1"_lines)
      .Ledger(u"А"_s, u"Чай|0.1|| Чай|Чай|- 0.3||чай|9|"_lines)
      .Ledger(u"Б"_s, u"Чай|0.2||Чай чёрный|5.00|"_lines);
  EXPECT_EQ(LoadStockByName(temp.Data(), session, {u"А"_s}),
            (StockByName{{u"Чай"_s, u"-0.2"_s}, {u"Чай чёрный"_s, u"0"_s}}));
  EXPECT_EQ(LoadStockByName(temp.Data(), session, {u"А"_s, u"Б"_s}),
            (StockByName{{u"Чай"_s, u"0"_s}, {u"Чай чёрный"_s, u"5"_s}}));
  EXPECT_THROW(LoadStockByName(temp.Data(), session, {u"В"_s}), std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
