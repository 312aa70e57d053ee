#include "books/printing/InvoicePage.h"

#include <array>

#include "books/printing/FormFooter.h"
#include "books/printing/InvoiceTable.h"
#include "books/printing/PageWriter.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using F = PartyField;

constexpr PageFont kTinyFont{.size = 1};

void WriteLegalNote(PageWriter& page) {
  for (const QStringView line :
       {u"<div align='Right'>", u"<p><font size='1' face='Arial'>Приложение № 1<br>",
        u"к Правилам ведения журналов учета полученных и выставленных счетов-фактур,<br>",
        u"книг покупок и книг продаж при расчетах по налогу на добавленную стоимость,<br>",
        u"утвержденным постановлением Правительства Российской Федерации от 2 декабря",
        u"2000 г. № 914<br>",
        u"(в ред. постановления Правительства Российской Федерации от 16 февраля 2004",
        u"г. № 84)</font></p></div>"}) {
    page.Line(line.toString());
  }
}

void WriteInvoiceParties(PageWriter& page, const InvoiceForm& form) {
  const std::array<QString, 9> lines = {
      u"Продавец: "_s + form.seller[F::kName].text,
      u"Адрес: "_s + form.seller[F::kLegalAddress].text,
      u"ИНН продавца: "_s + form.seller[F::kTaxNumber].text,
      u"Грузоотправитель и его адрес: "_s + form.seller[F::kShipper].text,
      u"Грузополучатель и его адрес: "_s + form.buyer[F::kShipper].text,
      u"К платежно-расчетному документу N "_s + form.payment_number.text + u" от "_s +
          form.payment_date.text,
      u"Покупатель: "_s + form.buyer[F::kName].text,
      u"Адрес: "_s + form.buyer[F::kLegalAddress].text,
      u"ИНН Покупателя: "_s + form.buyer[F::kTaxNumber].text,
  };
  page.Line(u"<FONT FACE=Arial SIZE=2>"_s + lines.front() + u"<br>"_s);
  for (size_t i = 1; i + 1 < lines.size(); ++i) page.Line(lines[i] + u"<br>"_s);
  page.Line(lines.back() + u"</font><br><br>"_s);
}

void WriteInvoiceSignatures(PageWriter& page, const InvoiceForm& form) {
  const QString cell = u"<td width='50%' valign='top'><font size='2' face='Arial'>"_s;
  page.Line(u"<table width='100%' border='0' cellspacing='0' cellpadding='1'>"_s);
  page.Line(u"<tr>"_s);
  page.Line(cell + u"Руководитель организации"_s);
  page.Line(u"______________ "_s + form.director + u"</font></td>"_s);
  page.Line(cell + u"Главный бухгалтер _____________ "_s + form.accountant + u"</font></td>"_s);
  page.Line(u"</tr>"_s);
  page.Line(u"<tr><td>&nbsp;</td><td>&nbsp;</td></tr>"_s);
  page.Line(u"<tr>"_s);
  page.Line(cell + u"Индивидуальный предприниматель"_s);
  page.Line(u"_____________ "_s + form.trader + u"</font></td>"_s);
  page.Line(cell + u"(реквизиты свидетельства"_s);
  page.Line(u"о государственной регистрации<br>"_s);
  page.Line(u"индивидуального предпринимателя)</font></td>"_s);
  page.Line(u"</tr>"_s);
  page.Line(u"</table>"_s);
  page.Line(u"<p>&nbsp;</p>"_s);
  page.Line(u"<p align='left'><font size='1' face='Arial, Helvetica, sans-serif'>Без печати"_s);
  // The misspelt "экзепляр" is the form's own.
  page.Line(u"недействительно. Первый экземпляр (оригинал) - покупателю. Второй экзепляр"_s);
  page.Line(u"(копия) - продавцу.</font></p>"_s);
  page.Line(u"</div>"_s);
  page.Line(u"</body>"_s);
  page.Line(u"</html>"_s);
}

void WriteRoubleInvoice(PageWriter& page, const InvoiceForm& form) {
  WriteLegalNote(page);
  page.Line(u"<p>&nbsp;<center><FONT FACE=Arial SIZE=4>"_s + form.title +
            u"</FONT><br><br></center></P>"_s);
  WriteInvoiceParties(page, form);
  page.Line(
      u"<TABLE style=\"border-Collapse:Collapse; border-right-width:0; border-bottom-width:0\""
      u" bgcolor=#ffffff bordercolor=#000000 cellspacing=0 cellpadding=0 BORDER=1 WIDTH=100%"
      u" height=92><TR>"_s);
  const InvoiceColumns columns = RoubleInvoiceColumns();
  page.Line(CellsHtml(HeadingCells(columns, HeadingStyle::kCentred), kTinyFont) + u"</tr>"_s);
  WriteColumnNumbers(page, columns);
  WriteInvoiceRows(page, columns, form.rows);
  WriteInvoiceTotal(page, columns, form.rows, NameCell(u"Всего"_s));
  page.Line(u"</center></table><br><br>"_s);
  WriteInvoiceSignatures(page, form);
}

void WritePartyLine(PageWriter& page, const QString& label, const TickedText& field,
                    const QString& after = {}) {
  if (field.ticked) page.Line(FontHtml(kSmallFont, label + field.text + after) + u"<br>"_s);
}

// The lines of one party in dollars; they end in who ships or receives.
void WriteDollarParty(PageWriter& page, const InvoiceParty& party, const QString& name_label,
                      const QString& shipper_label) {
  WritePartyLine(page, name_label, party[F::kName]);
  WritePartyLine(page, u"Адрес: "_s, party[F::kLegalAddress]);
  WritePartyLine(page, u"Расч.счет: "_s, party[F::kAccount], u" в "_s + party[F::kBank].text);
  WritePartyLine(page, u"Кор.счет: "_s, party[F::kCorrespondent]);
  WritePartyLine(page, u"БИК: "_s, party[F::kBankCode]);
  WritePartyLine(page, u"ИНН: "_s, party[F::kTaxNumber]);
  WritePartyLine(page, u"ОКОНХ: "_s, party[F::kIndustryCode]);
  WritePartyLine(page, u"ОКПО: "_s, party[F::kFirmCode]);
  WritePartyLine(page, shipper_label, party[F::kShipper]);
}

void WriteTitle(PageWriter& page, const QString& title, int size) {
  page.Line(u"<p align=CENTER><b>"_s + FontHtml({.size = size}, title) + u"</B><br><br></p>"_s);
}

// The table of a bill, and of both forms in dollars.
void WriteNumberedTable(PageWriter& page, const InvoiceForm& form) {
  page.Line(u"<CENTER>"_s);
  page.OpenTable();
  if (form.kind == InvoiceKind::kBill) {
    page.Row(HeadingCells(BillColumns(), HeadingStyle::kAsColumns), {.size = 2, .bold = true});
    WriteInvoiceRows(page, BillColumns(), form.rows);
    WriteInvoiceTotal(page, BillColumns(), form.rows, NumberCell(u"Всего"_s));
  } else {
    const InvoiceColumns columns = DollarInvoiceColumns();
    page.Row(HeadingCells(columns, HeadingStyle::kCentred), kTinyFont);
    WriteColumnNumbers(page, columns);
    WriteInvoiceRows(page, columns, form.rows);
    WriteInvoiceTotal(page, columns, form.rows, NumberCell(u"Всего"_s));
  }
  page.Line(u"</center></table>"_s);
}

void WriteInvoiceFooter(PageWriter& page, const InvoiceForm& form) {
  const bool dollars = form.currency == InvoiceCurrency::kDollars;
  WriteFooter(page, {.sums = form.sums,
                     .before_amount = dollars ? u"$"_s : QString(),
                     .after_amount = dollars ? QString() : QString(u' ' + form.sums.rub),
                     .row_count = form.rows.size()});
}

constexpr QStringView kSignatures =
    u"       Руководитель предприятия _____________________        "
    u"Главный бухгалтер _____________________";
constexpr QStringView kIssued =
    u"                                                                         "
    u"Выдал _____________________";
constexpr QStringView kStamp = u"                            М.П.";

void WriteDollarForm(PageWriter& page, const InvoiceForm& form) {
  WriteTitle(page, form.title, 3);
  page.Line(u"<br><br>"_s);
  page.Line(u"<TABLE WIDTH=100% BORDER=0><TR><TD WIDTH=50% VALIGN=TOP>"_s);
  WriteDollarParty(page, form.seller, u"Поставщик: "_s, u"Грузоотправитель и его адрес: "_s);
  page.Line(u"</TD><TD WIDTH=50% VALIGN=TOP>"_s);
  WritePartyLine(page, u"К платежно-расчетному документу N: "_s, form.payment_number);
  WritePartyLine(page, u"от: "_s, form.payment_date);
  WriteDollarParty(page, form.buyer, u"Покупатель: "_s, u"Грузополучатель и его адрес: "_s);
  page.Line(u"</TD></TR></TABLE>"_s);
  page.Line(u"<br>"_s);
  WriteNumberedTable(page, form);
  WriteInvoiceFooter(page, form);
  page.Line(u"<pre>"_s);
  page.Line(kSignatures.toString());
  page.Line(kIssued.toString());
  page.Line(kStamp.toString());
  page.Line(u"</pre>"_s);
  page.Line(u"</body></html>"_s);
}

// Beside the parties, where the table has room.
void WritePaymentCell(PageWriter& page, const QString& picture) {
  page.Line(u"</TD><TD VALIGN=TOP ALIGN=right>"_s);
  page.Line(u"<IMG SRC=\""_s + picture + u"\" WIDTH=150 HEIGHT=150><br>"_s);
  page.Line(FontHtml(kTinyFont, u"Оплата по QR-коду"_s));
}

void WriteRoubleBill(PageWriter& page, const InvoiceForm& form) {
  const auto line = [&](QStringView label, const QString& text) {
    page.Line(FontHtml(kSmallFont, label + text) + u"<br>"_s);
  };
  page.Line(u"<TABLE style=border-Collapse:Collapse width=100%>"_s);
  page.Line(u"<TR><TD VALIGN=TOP ALIGN=left>"_s);
  line(u"<b>Продавец: </b>", form.seller[F::kName].text);
  line(u"Адрес: ", form.seller[F::kLegalAddress].text);
  line(u"ИНН: ", form.seller[F::kTaxNumber].text);
  line(u"Расч.счет: ", form.seller[F::kAccount].text);
  line(u"Кор.счет: ", form.seller[F::kCorrespondent].text);
  line(u"Банк: ", form.seller[F::kBank].text);
  line(u"БИК: ", form.seller[F::kBankCode].text);
  line(u"ОКПО: ", form.seller[F::kFirmCode].text);
  line(u"ОКОНХ: ", form.seller[F::kIndustryCode].text);
  page.Line(u"<p></p>"_s);
  line(u"<b>Покупатель: </b>", form.buyer[F::kName].text);
  line(u"Адрес: ", form.buyer[F::kLegalAddress].text);
  if (!form.payment_picture.isEmpty()) WritePaymentCell(page, form.payment_picture);
  page.Line(u"</TD></TR>"_s);
  page.Line(u"</table>"_s);
  WriteTitle(page, form.title, 4);
  page.Line(u"<br>"_s);
  WriteNumberedTable(page, form);
  WriteInvoiceFooter(page, form);
  page.Line(u"<pre><FONT SIZE=3>"_s);
  page.Line(kSignatures.toString());
  page.Line();
  page.Line(kIssued.toString());
  page.Line(kStamp.toString());
  page.Line(u"</FONT></pre>"_s);
  page.Line(u"</body></html>"_s);
}

}  // namespace

QByteArray InvoicePage(const InvoiceForm& form) {
  const bool bill = form.kind == InvoiceKind::kBill;
  PageWriter page(bill ? u"Счет"_s : u"Счет-фактура"_s);
  if (form.currency == InvoiceCurrency::kDollars) {
    WriteDollarForm(page, form);
  } else if (bill) {
    WriteRoubleBill(page, form);
  } else {
    WriteRoubleInvoice(page, form);
  }
  return page.Take();
}

}  // namespace kladez
