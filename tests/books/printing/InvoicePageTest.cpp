#include "books/printing/InputError.h"
#include "books/printing/InvoicePage.h"
#include "books/printing/Pages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

InvoiceParty PartyCalled(const QString& name) {
  InvoiceParty party;
  party[PartyField::kName].text = name;
  party[PartyField::kLegalAddress].text = name + u"-адрес"_s;
  party[PartyField::kAccount].text = name + u"-счет"_s;
  party[PartyField::kBank].text = name + u"-банк"_s;
  party[PartyField::kCorrespondent].text = name + u"-кор"_s;
  party[PartyField::kBankCode].text = name + u"-бик"_s;
  party[PartyField::kTaxNumber].text = name + u"-инн"_s;
  party[PartyField::kIndustryCode].text = name + u"-оконх"_s;
  party[PartyField::kFirmCode].text = name + u"-окпо"_s;
  party[PartyField::kShipper].text = name + u"-груз"_s;
  return party;
}

InvoiceForm Form(InvoiceKind kind, InvoiceCurrency currency) {
  InvoiceForm form;
  form.kind = kind;
  form.currency = currency;
  form.title = u"Счет-фактура N 5 от 12.03.2026"_s;
  form.seller = PartyCalled(u"А&<Б>"_s);
  form.buyer = PartyCalled(u"Кл"_s);
  form.payment_number.text = u"5"_s;
  form.payment_date.text = u"12.03.2026"_s;
  form.director = u"Иванов"_s;
  form.accountant = u"Петрова"_s;
  form.trader = u"Сидоров"_s;
  form.sums.parameters.discount = u"10"_s;
  form.sums.totals = {u"1000.00"_s, u"137.29$"_s, u"0.00$"_s, u"Девятьсот рублей 00 копеек"_s};
  form.sums.rub = u"руб."_s;
  form.rows = {{u"Чай <1>"_s, u"Индия"_s, u"ГТД/1"_s, u"пач."_s, u"0.125"_s, u"0.85"_s, u"0.11"_s,
                u"18"_s, u"0.02"_s, u"0.13"_s},
               {u"Кофе & Ко"_s, u""_s, u""_s, u"шт."_s, u"3"_s, u"100.00"_s, u"300.00"_s, u"18"_s,
                u"54.00"_s, u"354.00"_s}};
  return form;
}

// One table row: "w:text" is a cell of that width on the left, ">w:" right, "=w:" centred.
QString RowLine(const QString& font, const QStringList& cells) {
  QString row = u"<tr>"_s;
  for (const QString& cell : cells) {
    const QChar mark = cell[0];
    const bool marked = mark == u'>' || mark == u'=';
    const QString width = cell.section(u':', 0, 0).mid(marked ? 1 : 0);
    const QString align = mark == u'>'   ? u" ALIGN=right"_s
                          : mark == u'=' ? u" ALIGN=center"_s
                                         : u""_s;
    row += u"<TD WIDTH="_s + width + u"% VALIGN=TOP"_s + align + u"><FONT FACE=Arial "_s + font +
           u'>' + cell.section(u':', 1) + u"</FONT></TD>"_s;
  }
  return row + u"</tr>"_s;
}

QString Small(const QString& text) {
  return u"<FONT FACE=Arial SIZE=2>"_s + text + u"</FONT><br>"_s;
}

TEST(InvoicePage, RoubleTaxInvoice) {
  ExpectPage(
      InvoicePage(Form(InvoiceKind::kTaxInvoice, InvoiceCurrency::kRoubles)),
      {PageHead(u"Счет-фактура"_s),
       u"<div align='Right'>"_s,
       u"<p><font size='1' face='Arial'>Приложение № 1<br>"_s,
       u"к Правилам ведения журналов учета полученных и выставленных счетов-фактур,<br>"_s,
       u"книг покупок и книг продаж при расчетах по налогу на добавленную стоимость,<br>"_s,
       u"утвержденным постановлением Правительства Российской Федерации от 2 декабря"_s,
       u"2000 г. № 914<br>"_s,
       u"(в ред. постановления Правительства Российской Федерации от 16 февраля 2004"_s,
       u"г. № 84)</font></p></div>"_s,
       u"<p>&nbsp;<center><FONT FACE=Arial SIZE=4>Счет-фактура N 5 от "
       u"12.03.2026</FONT><br><br></center></P>"_s,
       u"<FONT FACE=Arial SIZE=2>Продавец: А&<Б><br>"_s,
       u"Адрес: А&<Б>-адрес<br>"_s,
       u"ИНН продавца: А&<Б>-инн<br>"_s,
       u"Грузоотправитель и его адрес: А&<Б>-груз<br>"_s,
       u"Грузополучатель и его адрес: Кл-груз<br>"_s,
       u"К платежно-расчетному документу N 5 от 12.03.2026<br>"_s,
       u"Покупатель: Кл<br>"_s,
       u"Адрес: Кл-адрес<br>"_s,
       u"ИНН Покупателя: Кл-инн</font><br><br>"_s,
       u"<TABLE style=\"border-Collapse:Collapse; border-right-width:0; border-bottom-width:0\" "
       u"bgcolor=#ffffff bordercolor=#000000 cellspacing=0 cellpadding=0 BORDER=1 WIDTH=100% "
       u"height=92><TR>"_s,
       RowLine(u"SIZE=1"_s,
               {u"=23:Наименование товара"_s, u"=3:Единица измерения"_s, u"=3:Количество"_s,
                u"=5:Цена (тариф) за единицу измерения"_s,
                u"=5:Стоимость товаров (работ, услуг) всего без НДС"_s, u"=2:В т.числе акциз"_s,
                u"=3:Налоговая ставка"_s, u"=4:Сумма налога"_s,
                u"=7:Стоимость товаров (работ, услуг) всего с учетом налога"_s,
                u"=6:Страна происхожд."_s, u"=9:N груз. там. декларации"_s})
           .mid(4),
       RowLine(u"style=font-size:7pt"_s,
               {u"=23:1"_s, u"=3:2"_s, u"=3:3"_s, u"=5:4"_s, u"=5:5"_s, u"=2:6"_s, u"=3:7"_s,
                u"=4:8"_s, u"=7:9"_s, u"=6:10"_s, u"=9:11"_s}),
       RowLine(u"SIZE=2"_s,
               {u"23:&nbsp;Чай <1>"_s, u"3:пач."_s, u">3:0.125&nbsp;"_s, u">5:0.85&nbsp;"_s,
                u">5:0.11&nbsp;"_s, u">2:&nbsp;"_s, u">3:18&nbsp;"_s, u">4:0.02&nbsp;"_s,
                u">7:0.13&nbsp;"_s, u"=6:Индия"_s, u"9:ГТД/1"_s}),
       RowLine(u"SIZE=2"_s,
               {u"23:&nbsp;Кофе & Ко"_s, u"3:шт."_s, u">3:3&nbsp;"_s, u">5:100.00&nbsp;"_s,
                u">5:300.00&nbsp;"_s, u">2:&nbsp;"_s, u">3:18&nbsp;"_s, u">4:54.00&nbsp;"_s,
                u">7:354.00&nbsp;"_s, u"=6:"_s, u"9:"_s}),
       RowLine(u"SIZE=2"_s,
               {u"23:&nbsp;Всего"_s, u"3:"_s, u"3:"_s, u"5:"_s, u">5:300.11&nbsp;"_s, u"2:"_s,
                u"3:"_s, u">4:54.02&nbsp;"_s, u">7:354.13&nbsp;"_s, u"6:"_s, u"9:"_s}),
       u"</center></table><br><br>"_s,
       u"<table width='100%' border='0' cellspacing='0' cellpadding='1'>"_s,
       u"<tr>"_s,
       u"<td width='50%' valign='top'><font size='2' face='Arial'>Руководитель организации"_s,
       u"______________ Иванов</font></td>"_s,
       u"<td width='50%' valign='top'><font size='2' face='Arial'>Главный бухгалтер _____________ "
       u"Петрова</font></td>"_s,
       u"</tr>"_s,
       u"<tr><td>&nbsp;</td><td>&nbsp;</td></tr>"_s,
       u"<tr>"_s,
       u"<td width='50%' valign='top'><font size='2' face='Arial'>Индивидуальный предприниматель"_s,
       u"_____________ Сидоров</font></td>"_s,
       u"<td width='50%' valign='top'><font size='2' face='Arial'>(реквизиты свидетельства"_s,
       u"о государственной регистрации<br>"_s,
       u"индивидуального предпринимателя)</font></td>"_s,
       u"</tr>"_s,
       u"</table>"_s,
       u"<p>&nbsp;</p>"_s,
       u"<p align='left'><font size='1' face='Arial, Helvetica, sans-serif'>Без печати"_s,
       u"недействительно. Первый экземпляр (оригинал) - покупателю. Второй экзепляр"_s,
       u"(копия) - продавцу.</font></p>"_s,
       u"</div>"_s,
       u"</body>"_s,
       u"</html>"_s});
}

const QStringList kDollarParties = {
    u"<br><br>"_s,
    u"<TABLE WIDTH=100% BORDER=0><TR><TD WIDTH=50% VALIGN=TOP>"_s,
    Small(u"Поставщик: А&<Б>"_s),
    Small(u"Адрес: А&<Б>-адрес"_s),
    Small(u"Расч.счет: А&<Б>-счет в А&<Б>-банк"_s),
    Small(u"Кор.счет: А&<Б>-кор"_s),
    Small(u"БИК: А&<Б>-бик"_s),
    Small(u"ИНН: А&<Б>-инн"_s),
    Small(u"ОКОНХ: А&<Б>-оконх"_s),
    Small(u"ОКПО: А&<Б>-окпо"_s),
    Small(u"Грузоотправитель и его адрес: А&<Б>-груз"_s),
    u"</TD><TD WIDTH=50% VALIGN=TOP>"_s,
    Small(u"К платежно-расчетному документу N: 5"_s),
    Small(u"от: 12.03.2026"_s),
    Small(u"Покупатель: Кл"_s),
    Small(u"Адрес: Кл-адрес"_s),
    Small(u"Расч.счет: Кл-счет в Кл-банк"_s),
    Small(u"Кор.счет: Кл-кор"_s),
    Small(u"БИК: Кл-бик"_s),
    Small(u"ИНН: Кл-инн"_s),
    Small(u"ОКОНХ: Кл-оконх"_s),
    Small(u"ОКПО: Кл-окпо"_s),
    Small(u"Грузополучатель и его адрес: Кл-груз"_s),
    u"</TD></TR></TABLE>"_s,
};

const QString kDirectors = QStringLiteral(
    "       Руководитель предприятия _____________________        Главный бухгалтер "
    "_____________________");
const QString kIssued = QStringLiteral(
    "                                                                         Выдал "
    "_____________________");
const QString kStamp = QStringLiteral("                            М.П.");

TEST(InvoicePage, DollarTaxInvoice) {
  ExpectPage(
      InvoicePage(Form(InvoiceKind::kTaxInvoice, InvoiceCurrency::kDollars)),
      QStringList{PageHead(u"Счет-фактура"_s),
                  u"<p align=CENTER><b><FONT FACE=Arial SIZE=3>Счет-фактура N 5 от "
                  u"12.03.2026</FONT></B><br><br></p>"_s} +
          kDollarParties +
          QStringList{
              u"<br>"_s,
              u"<CENTER>"_s,
              kLineTable,
              RowLine(u"SIZE=1"_s, {u"=1:N"_s, u"=15:Наименование товара"_s,
                                    u"=4:Страна происхожд."_s, u"=4:N груз. там. декларации"_s,
                                    u"=3:Ед. изм."_s, u"=5:Кол-во"_s, u"=6:Цена"_s,
                                    u"=3:В т.числе акциз"_s, u"=6:Сумма"_s, u"=3:В т.числе акциз"_s,
                                    u"=4:Ставка НДС"_s, u"=6:Сумма НДС"_s, u"=6:Всего с НДС"_s}),
              RowLine(u"style=font-size:7pt"_s,
                      {u"=1:1"_s, u"=15:2"_s, u"=4:3"_s, u"=4:4"_s, u"=3:5"_s, u"=5:6"_s, u"=6:7"_s,
                       u"=3:8"_s, u"=6:9"_s, u"=3:10"_s, u"=4:11"_s, u"=6:12"_s, u"=6:13"_s}),
              RowLine(u"SIZE=2"_s,
                      {u"=1:1"_s, u"15:&nbsp;Чай <1>"_s, u"=4:Индия"_s, u"4:ГТД/1"_s, u"3:пач."_s,
                       u">5:0.125&nbsp;"_s, u">6:0.85&nbsp;"_s, u">3:&nbsp;"_s, u">6:0.11&nbsp;"_s,
                       u">3:&nbsp;"_s, u">4:18&nbsp;"_s, u">6:0.02&nbsp;"_s, u">6:0.13&nbsp;"_s}),
              RowLine(u"SIZE=2"_s, {u"=1:2"_s, u"15:&nbsp;Кофе & Ко"_s, u"=4:"_s, u"4:"_s,
                                    u"3:шт."_s, u">5:3&nbsp;"_s, u">6:100.00&nbsp;"_s,
                                    u">3:&nbsp;"_s, u">6:300.00&nbsp;"_s, u">3:&nbsp;"_s,
                                    u">4:18&nbsp;"_s, u">6:54.00&nbsp;"_s, u">6:354.00&nbsp;"_s}),
              RowLine(u"SIZE=2"_s, {u"1:"_s, u">15:Всего&nbsp;"_s, u"4:"_s, u"4:"_s, u"3:"_s,
                                    u"5:"_s, u"6:"_s, u"3:"_s, u">6:300.11&nbsp;"_s, u"3:"_s,
                                    u"4:"_s, u">6:54.02&nbsp;"_s, u">6:354.13&nbsp;"_s}),
              u"</center></table>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>Всего: $1000.00</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: $900.00,</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 137.29$</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>              НСП: 0.00$</FONT></i>"_s,
              u""_s,
              u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>"_s,
              u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Девятьсот рублей 00 копеек</FONT></b><BR>"_s,
              u"<pre>"_s,
              kDirectors,
              kIssued,
              kStamp,
              u"</pre>"_s,
              u"</body></html>"_s});
}

const QStringList kBillTable = {
    u"<CENTER>"_s,
    kLineTable,
    RowLine(u"SIZE=2"_s,
            {u"=1:<b>N</b>"_s, u"15:<b>&nbsp;Наименование</b>"_s, u"3:<b>Ед. изм.</b>"_s,
             u">5:<b>Кол-во&nbsp;</b>"_s, u">6:<b>Цена&nbsp;</b>"_s, u">6:<b>Сумма&nbsp;</b>"_s}),
    RowLine(u"SIZE=2"_s, {u"=1:1"_s, u"15:&nbsp;Чай <1>"_s, u"3:пач."_s, u">5:0.125&nbsp;"_s,
                          u">6:0.85&nbsp;"_s, u">6:0.11&nbsp;"_s}),
    RowLine(u"SIZE=2"_s, {u"=1:2"_s, u"15:&nbsp;Кофе & Ко"_s, u"3:шт."_s, u">5:3&nbsp;"_s,
                          u">6:100.00&nbsp;"_s, u">6:300.00&nbsp;"_s}),
    RowLine(u"SIZE=2"_s,
            {u"1:"_s, u">15:Всего&nbsp;"_s, u"3:"_s, u"5:"_s, u"6:"_s, u">6:300.11&nbsp;"_s}),
    u"</center></table>"_s,
};

TEST(InvoicePage, RoubleBill) {
  InvoiceForm form = Form(InvoiceKind::kBill, InvoiceCurrency::kRoubles);
  form.title = u"Счет N 5 от 12.03.2026"_s;
  form.sums.with_sales_tax = false;
  ExpectPage(
      InvoicePage(form),
      QStringList{PageHead(u"Счет"_s), u"<TABLE style=border-Collapse:Collapse width=100%>"_s,
                  u"<TR><TD VALIGN=TOP ALIGN=left>"_s, Small(u"<b>Продавец: </b>А&<Б>"_s),
                  Small(u"Адрес: А&<Б>-адрес"_s), Small(u"ИНН: А&<Б>-инн"_s),
                  Small(u"Расч.счет: А&<Б>-счет"_s), Small(u"Кор.счет: А&<Б>-кор"_s),
                  Small(u"Банк: А&<Б>-банк"_s), Small(u"БИК: А&<Б>-бик"_s),
                  Small(u"ОКПО: А&<Б>-окпо"_s), Small(u"ОКОНХ: А&<Б>-оконх"_s), u"<p></p>"_s,
                  Small(u"<b>Покупатель: </b>Кл"_s), Small(u"Адрес: Кл-адрес"_s), u"</TD></TR>"_s,
                  u"</table>"_s,
                  u"<p align=CENTER><b><FONT FACE=Arial SIZE=4>Счет N 5 от "
                  u"12.03.2026</FONT></B><br><br></p>"_s,
                  u"<br>"_s} +
          kBillTable +
          QStringList{u"<br><FONT FACE=Arial SIZE=2><i>Всего: 1000.00 руб.</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 900.00 руб.,</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 137.29$</FONT></i>"_s, u""_s,
                      u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Девятьсот рублей 00 "
                      u"копеек</FONT></b><BR>"_s,
                      u"<pre><FONT SIZE=3>"_s, kDirectors, u""_s, kIssued, kStamp,
                      u"</FONT></pre>"_s, u"</body></html>"_s});
}

TEST(InvoicePage, DollarBillWithEveryBoxOff) {
  InvoiceForm form = Form(InvoiceKind::kBill, InvoiceCurrency::kDollars);
  form.title = u"Счет N 5 от 12.03.2026"_s;
  for (InvoiceParty* party : {&form.seller, &form.buyer}) {
    for (const PartyField field : FieldsOf(PartyKind::kFirm)) (*party)[field].ticked = false;
  }
  form.payment_number.ticked = form.payment_date.ticked = false;
  form.sums.with_vat = form.sums.with_sales_tax = false;
  ExpectPage(
      InvoicePage(form),
      QStringList{PageHead(u"Счет"_s),
                  u"<p align=CENTER><b><FONT FACE=Arial SIZE=3>Счет N 5 от "
                  u"12.03.2026</FONT></B><br><br></p>"_s,
                  u"<br><br>"_s, u"<TABLE WIDTH=100% BORDER=0><TR><TD WIDTH=50% VALIGN=TOP>"_s,
                  u"</TD><TD WIDTH=50% VALIGN=TOP>"_s, u"</TD></TR></TABLE>"_s, u"<br>"_s} +
          kBillTable +
          QStringList{u"<br><FONT FACE=Arial SIZE=2><i>Всего: $1000.00</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: $900.00,</FONT></i>"_s,
                      u""_s,
                      u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 2</FONT></b>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Девятьсот рублей 00 "
                      u"копеек</FONT></b><BR>"_s,
                      u"<pre>"_s, kDirectors, kIssued, kStamp, u"</pre>"_s, u"</body></html>"_s});
}

TEST(InvoicePage, AFieldThatIsNoNumberMakesNoPage) {
  InvoiceForm form = Form(InvoiceKind::kBill, InvoiceCurrency::kRoubles);
  form.sums.parameters.discount = u"десять"_s;
  EXPECT_THROW(InvoicePage(form), InputError);
}

}  // namespace
}  // namespace kladez
