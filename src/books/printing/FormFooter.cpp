#include "books/printing/FormFooter.h"

#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

void WriteFooter(PageWriter& page, const FormFooter& footer) {
  const auto italic = [&](const QString& text) {
    page.Line(u"<br><FONT FACE=Arial SIZE=2><i>"_s + text + u"</FONT></i>"_s);
  };
  const auto amount = [&](const QString& text) {
    return QString(footer.before_amount + text + footer.after_amount);
  };
  const PaperSums& sums = footer.sums;
  const TotalTexts& totals = sums.totals;
  if (footer.tells_total) italic(u"Всего: "_s + amount(totals.before));
  if (footer.tells_discount) {
    const QString where = sums.parameters.discount_in_prices ? u" (учтена в ценах)"_s : QString();
    italic(u"Скидка: "_s + sums.parameters.discount + u'%' + where);
  }
  if (footer.tells_due) {
    const QString due = AmountDue(totals.before, sums.parameters);
    italic(u"Итого к оплате: "_s + amount(due) + u',');
    if (sums.with_vat) italic(u"включая НДС: "_s + totals.vat);
    if (sums.with_sales_tax) italic(u"              НСП: "_s + totals.sales_tax);
  } else {
    italic(u"Итого: "_s + totals.words);
  }
  page.Line();
  page.Line(u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: "_s +
            GeneralText(footer.row_count) + u"</FONT></b>"_s);
  if (footer.tells_due) {
    page.Line(u"<br><FONT FACE=Arial SIZE=2><b>Сумма: "_s + totals.words + u"</FONT></b><BR>"_s);
  }
}

}  // namespace kladez
