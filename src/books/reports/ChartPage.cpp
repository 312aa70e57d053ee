#include "books/reports/ChartPage.h"

#include "books/printing/PageWriter.h"
#include "formats/Dates.h"

namespace kladez {

using namespace Qt::StringLiterals;

QByteArray ChartPage(const QString& title, QDate today) {
  PageWriter page(u"Отчет от "_s + LongDateText(today));
  page.Line(u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>"_s + title +
            u"</FONT></B><br><br><br>"_s);
  page.Line(u"<img src="_s + kChartPicture + u'>');
  // Closes a table that nothing opened, as all reports end.
  page.Line(u"</center></table><p></p>"_s);
  page.Line(u"</body></html>"_s);
  return page.Take();
}

}  // namespace kladez
