#include "books/printing/InputError.h"
#include "books/printing/WaybillPage.h"
#include "books/printing/WaybillParts.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// A line with a fraction of a kopeck in its price, and one whose name looks like markup.
WaybillForm Form(DocumentKind kind) {
  WaybillForm form;
  form.kind = kind;
  form.title = u"Накладная N 5 от 12.03.2026"_s;
  form.note = {u"срочно"_s, false};
  form.from = {u"Фирма <А> & Ко"_s, true};
  form.to = {u"Ромашка"_s, true};
  form.grounds = {u"договор"_s, false};
  form.warehouse = {u"Главный склад"_s, true};
  form.sums.totals = {u"150.00"_s, u"20.59 руб."_s, u"6.75 руб."_s,
                      u"Сто тридцать пять рублей 00 копеек"_s};
  form.sums.parameters.discount = u"10"_s;
  form.sums.rub = u"руб."_s;
  form.lines = {{u"Чай <чёрный> & \"белый\""_s, u"0.125"_s, u"кг"_s, u"1"_s, u"1.005"_s, {}},
                {u"Кофе"_s, u"3"_s, u"шт."_s, u"1"_s, u"49.95"_s, {}}};
  return form;
}

TEST(WaybillPage, ShipmentPrintsPricesBeforeTheDiscountAndTheAmountAfterIt) {
  ExpectPage(
      WaybillPage(Form(DocumentKind::kShipment)),
      {PageHead(u"Накладная"_s),
       u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от 12.03.2026</FONT></B><br></p>"_s,
       u"<FONT FACE=Arial SIZE=3>От кого:Фирма <А> & Ко</U></b></FONT><br>"_s,
       u"<FONT FACE=Arial SIZE=3>Кому:Ромашка</U></b></FONT><br>"_s,
       u"<FONT FACE=Arial SIZE=3>Склад:Главный склад</U></b></FONT><br>"_s,
       u"<br>"_s,
       u"<CENTER>"_s,
       kLineTable,
       kWaybillHeadings,
       WaybillRow("1", "&nbsp;Чай <чёрный> & \"белый\"&nbsp;", "0.125", "1.01", "0.13"),
       u""_s,
       WaybillRow("2", "&nbsp;Кофе&nbsp;", "3", "49.95", "149.85"),
       u""_s,
       u"</center></table><p></p>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Всего: 150.00 руб.</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 135.00 руб.,</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 20.59 руб.</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>              НСП: 6.75 руб.</FONT></i>"_s,
       u""_s,
       u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>"_s,
       u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Сто тридцать пять рублей 00 "
       u"копеек</FONT></b><BR>"_s,
       kWaybillSignatures});
}

TEST(WaybillPage, ReceiptAboveRateOneTellsTheRateAndEveryTickedLine) {
  WaybillForm form = Form(DocumentKind::kReceipt);
  form.sums.parameters.rate = u"31.50"_s;
  form.sums.parameters.percent = u"50"_s;
  form.note.ticked = form.grounds.ticked = true;
  form.sums.with_vat = form.sums.with_sales_tax = false;
  ExpectPage(WaybillPage(form),
             {PageHead(u"Накладная"_s),
              u"<FONT FACE=Arial SIZE=1>Курс USD: 31.50 руб.</FONT><br><br>"_s,
              u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от "
              u"12.03.2026</FONT></B><br><br></p>"_s,
              u"<FONT FACE=Arial SIZE=3>срочно</FONT><br><br>"_s,
              u"<FONT FACE=Arial SIZE=3>От кого:Фирма <А> & Ко</U></b></FONT><br>"_s,
              u"<FONT FACE=Arial SIZE=3>Кому:Ромашка</U></b></FONT><br>"_s,
              u"<FONT FACE=Arial SIZE=3>Основание:договор</U></b></FONT><br>"_s,
              u"<FONT FACE=Arial SIZE=3>Склад:Главный склад</U></b></FONT><br>"_s,
              u"<br>"_s,
              u"<CENTER>"_s,
              kLineTable,
              kWaybillHeadings,
              WaybillRow("1", "&nbsp;Чай <чёрный> & \"белый\"", "0.125", "15.83", "1.98"),
              u""_s,
              WaybillRow("2", "&nbsp;Кофе", "3", "786.71", "2360.14"),
              u""_s,
              u"</center></table><p></p>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 135.00 руб.,</FONT></i>"_s,
              u""_s,
              u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>"_s,
              u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Сто тридцать пять рублей 00 "
              u"копеек</FONT></b><BR>"_s,
              kWaybillSignatures});
}

TEST(WaybillPage, TransferWithoutLinesPrintsItsHeadingsAndACountOfZero) {
  WaybillForm form = Form(DocumentKind::kTransfer);
  form.sums.parameters.rate = u"1"_s;
  form.to.ticked = false;
  form.lines.clear();
  ExpectPage(
      WaybillPage(form),
      {PageHead(u"Накладная"_s),
       u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от 12.03.2026</FONT></B><br></p>"_s,
       u"<FONT FACE=Arial SIZE=3>Откуда:Фирма <А> & Ко</U></b></FONT><br>"_s, u"<br>"_s,
       u"<CENTER>"_s, kLineTable, kWaybillHeadings, u"</center></table><p></p>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Всего: 150.00 руб.</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Итого: Сто тридцать пять рублей 00 копеек</FONT></i>"_s,
       u""_s, u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 0</FONT></b>"_s,
       kWaybillSignatures});
}

TEST(WaybillPage, AQuantityThatIsNoNumberStopsThePrintAndNamesItsLine) {
  WaybillForm form = Form(DocumentKind::kShipment);
  form.lines[1].quantity = u"2,5"_s;
  try {
    WaybillPage(form);
    FAIL() << "a page was made";
  } catch (const InputError& error) {
    EXPECT_STREQ(error.what(),
                 "Накладная не напечатана: в строке 2 («Кофе») количество «2,5» - не число.");
  }
}

TEST(WaybillPage, QuantitiesPrintAsTyped) {
  WaybillForm form = Form(DocumentKind::kTransfer);
  form.lines = {{u"Сахар"_s, u" 1 000.50"_s, u"кг"_s, u"1"_s, u"2"_s, {}}};
  const QStringList lines = DecodeLines(WaybillPage(form));
  EXPECT_TRUE(lines.contains(WaybillRow("1", "&nbsp;Сахар&nbsp;", " 1 000.50", "2.00", "2001.00")));
}

}  // namespace
}  // namespace kladez
