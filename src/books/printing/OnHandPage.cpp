#include "books/printing/OnHandPage.h"

#include "books/directories/GoodsOrder.h"
#include "books/printing/GoodsTable.h"
#include "formats/Dates.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The rows by group and name. With the goods alone on the screen there are no rows of groups, so
// each item brings its own, which sorting makes one; a nameless one stands for none.
std::vector<OnHandRow> PrintOrder(const OnHandList& list) {
  std::vector<OnHandRow> rows;
  rows.reserve(2 * list.Rows().size());
  for (const OnHandRow& row : list.Rows()) {
    if (row.IsGroup()) continue;
    OnHandRow group;
    group.name = row.group.isEmpty() ? u" "_s : row.group;
    rows.push_back(std::move(group));
    rows.push_back(row);
  }
  return SortedInGroups(rows);
}

}  // namespace

QByteArray OnHandPage(const OnHandList& list, QDate today) {
  PageWriter page(u"Наличие товаров"_s);
  page.Line(u"<p align=CENTER>"_s +
            FontHtml({.size = 4, .bold = true}, u"Состояние склада от "_s + DateText(today)) +
            u"</p>"_s);
  GoodsTable table(page, {u"Кол-во"_s, u"Ед.изм."_s, u"Цена зак."_s}, {});
  for (const OnHandRow& row : PrintOrder(list)) {
    if (row.IsGroup()) {
      table.Group(row.name.mid(1));
    } else {
      table.Goods({row.name, row.quantity, row.unit, row.price});
    }
  }
  table.End();
  page.Line(u"</body></html>"_s);
  return page.Take();
}

}  // namespace kladez
