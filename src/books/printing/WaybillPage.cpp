#include "books/printing/WaybillPage.h"

#include "books/printing/AmountInWords.h"
#include "books/printing/FormFooter.h"
#include "books/printing/InputError.h"
#include "books/printing/PageWriter.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// What tells the three apart; the rest is one layout.
struct WaybillKind {
  QStringView from;
  QStringView to;
  QStringView after_title;
  QStringView after_name;
  bool tells_total;     // "Всего:" in the footer
  bool tells_discount;  // "Скидка:"
  bool tells_due;       // "Итого к оплате:", the taxes and the words
};

const WaybillKind& KindOf(DocumentKind kind) {
  static constexpr WaybillKind kShipment = {
      u"От кого:", u"Кому:", u"</FONT></B><br></p>", u"&nbsp;", true, true, true};
  static constexpr WaybillKind kReceipt = {
      u"От кого:", u"Кому:", u"</FONT></B><br><br></p>", u"", false, false, true};
  static constexpr WaybillKind kTransfer = {
      u"Откуда:", u"Куда:", u"</FONT></B><br></p>", u"&nbsp;", true, false, false};
  switch (kind) {
    case DocumentKind::kReceipt:
      return kReceipt;
    case DocumentKind::kTransfer:
      return kTransfer;
    default:
      return kShipment;
  }
}

void WriteHead(PageWriter& page, const WaybillForm& form, const WaybillKind& kind) {
  if (TypedNumber(form.sums.parameters.rate) > 1) {
    page.Line(u"<FONT FACE=Arial SIZE=1>Курс USD: "_s + form.sums.parameters.rate + u' ' +
              form.sums.rub + u"</FONT><br><br>"_s);
  }
  page.Line(u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>"_s + form.title + kind.after_title);
  if (form.note.ticked) {
    page.Line(u"<FONT FACE=Arial SIZE=3>"_s + form.note.text + u"</FONT><br><br>"_s);
  }
  const auto labelled = [&](QStringView label, const TickedText& field) {
    if (!field.ticked) return;
    // The closing tags close nothing, on purpose.
    page.Line(u"<FONT FACE=Arial SIZE=3>"_s + label + field.text + u"</U></b></FONT><br>"_s);
  };
  labelled(kind.from, form.from);
  labelled(kind.to, form.to);
  labelled(u"Основание:", form.grounds);
  if (form.kind != DocumentKind::kTransfer) labelled(u"Склад:", form.warehouse);
}

// A number of a goods line; the message says which line is at fault.
double LineNumber(const QString& text, QStringView what, size_t row, const DocumentLine& line) {
  if (const auto number = ParseStrict(text)) return *number;
  throw InputError(u"Накладная не напечатана: в строке "_s + GeneralText(row) + u" («"_s +
                   line.name + u"») "_s + what + u" «"_s + text + u"» - не число."_s);
}

void WriteLines(PageWriter& page, const WaybillForm& form, const WaybillKind& kind) {
  page.Row({CenterCell(u"N"_s, 5), NameCell(u"Наименование"_s, 65), NumberCell(u"Кол-во"_s, 10),
            NumberCell(u"Цена"_s, 10), NumberCell(u"Сумма"_s, 10)},
           {.size = 4});
  const double percent = TypedNumber(form.sums.parameters.percent);
  const double rate = TypedNumber(form.sums.parameters.rate);
  size_t row = 0;
  for (const DocumentLine& line : form.lines) {
    ++row;
    const double price = LineNumber(line.price, u"цена", row, line);
    const double quantity = LineNumber(line.quantity, u"количество", row, line);
    page.Row(
        {CenterCell(GeneralText(row), 5), NameCell(line.name + kind.after_name, 65),
         NumberCell(line.quantity, 10), NumberCell(FormatMoney(percent / 100 * price * rate), 10),
         NumberCell(FormatMoney(percent / 100 * price * quantity * rate), 10)},
        {.size = 3});
    page.Line();
  }
}

}  // namespace

WaybillLabels WaybillLabelsOf(DocumentKind kind) {
  return {KindOf(kind).from.toString(), KindOf(kind).to.toString()};
}

void FillWaybillTotals(DocumentKind kind, const QString& total, const PrintParameters& parameters,
                       const QString& rub, const Currency& currency, TotalTexts& totals) {
  totals.before = TotalBefore(total, parameters);
  if (KindOf(kind).tells_due) {
    FillTotals(parameters, {.grouped = true, .currency = u' ' + rub}, currency, totals);
  } else {
    totals.words = AmountInWords(totals.before, currency);
  }
}

QByteArray WaybillPage(const WaybillForm& form) {
  const WaybillKind& kind = KindOf(form.kind);
  PageWriter page(u"Накладная"_s);
  WriteHead(page, form, kind);
  page.Line(u"<br>"_s);
  page.Line(u"<CENTER>"_s);
  page.OpenTable();
  WriteLines(page, form, kind);
  page.Line(u"</center></table><p></p>"_s);
  WriteFooter(page, {.sums = form.sums,
                     .before_amount = {},
                     .after_amount = u' ' + form.sums.rub,
                     .row_count = form.lines.size(),
                     .tells_total = kind.tells_total,
                     .tells_discount = kind.tells_discount,
                     .tells_due = kind.tells_due});
  page.Line(
      u"<p></p><br><br><br><p>&nbsp;&nbsp;&nbsp;<FONT FACE=Arial SIZE=3>Отпустил ___________ "
      u"&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;Получил ___________</FONT><BR></p><BR>"
      u"</body></html>"_s);
  return page.Take();
}

}  // namespace kladez
