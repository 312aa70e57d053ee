#include "books/printing/OnHandPage.h"
#include "books/printing/Pages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QString Row(const char* name, const char* quantity, const char* price) {
  return QStringLiteral(
             "<tr><TD WIDTH=60% VALIGN=TOP><FONT FACE=Arial SIZE=1>&nbsp;%1</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=1>%2&nbsp;</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=1>шт.&nbsp;</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=1>%3&nbsp;</FONT></TD>"
             "</tr>")
      .arg(QString::fromUtf8(name), QString::fromUtf8(quantity), QString::fromUtf8(price));
}

QStringList Group(const QString& name) {
  return {kLineTable,
          u"<tr><TD VALIGN=TOP><FONT FACE=Arial SIZE=2>&nbsp;&nbsp;&nbsp;"_s + name +
              u"</FONT></TD></tr>"_s,
          u"</TABLE>"_s};
}

// Groups out of order, one of them empty and one that comes twice; an item before the first.
const QStringList kGoods = {u"Пакет"_s,     u""_s, u""_s, u"шт."_s, u"2.00"_s,    //
                            u" Чай"_s,                                            //
                            u"Улун"_s,      u""_s, u""_s, u"шт."_s, u"нет"_s,     //
                            u"Ассам"_s,     u""_s, u""_s, u"шт."_s, u"45"_s,      //
                            u" Пусто"_s,                                          //
                            u" Кофе"_s,                                           //
                            u"Мокко <1>"_s, u""_s, u""_s, u"шт."_s, u"120.50"_s,  //
                            u" Чай"_s,                                            //
                            u"Кимун"_s,     u""_s, u""_s, u"шт."_s, u"60.00"_s};

class OnHandPages : public testing::TestWithParam<GoodsView> {};

TEST_P(OnHandPages, StandInGroupsByNameWhateverTheScreenShows) {
  OnHandJoin join(EncodeLines(kGoods), GetParam());
  join.Add(EncodeLines({u"Ассам"_s, u"5.50"_s, u"кор."_s, u"Пакет"_s, u"-3"_s, u"шт."_s}));
  const OnHandList list = join.Take();
  QStringList page = {
      PageHead(u"Наличие товаров"_s),
      u"<p align=CENTER><FONT FACE=Arial SIZE=4><b>Состояние склада от 22.11.2026</b></FONT></p>"_s,
      kLineTable,
      u"<tr><TD WIDTH=60% VALIGN=TOP><FONT FACE=Arial SIZE=2><b>&nbsp;Наименование&nbsp;</b></FONT>"
      u"</TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2><b>&nbsp;Кол-во&nbsp;</b>"
      u"</FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2><b>&nbsp;Ед.изм."
      u"&nbsp;</b></FONT></TD><TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial "
      u"SIZE=2><b>&nbsp;"
      u"Цена зак.&nbsp;</b></FONT></TD></tr>"_s,
      u"</TABLE>"_s,
      kLineTable,
      Row("Пакет", "-3", "2.00"),
      u"</TABLE>"_s};
  page += Group(u"Кофе"_s);
  page += {kLineTable, Row("Мокко <1>", "0", "120.50"), u"</TABLE>"_s};
  page += Group(u"Чай"_s);
  page +=
      {kLineTable,    Row("Ассам", "5.5", "45"), Row("Кимун", "0", "60.00"), Row("Улун", "0", "0"),
       u"</TABLE>"_s, u"</body></html>"_s};
  ExpectPage(OnHandPage(list, QDate(2026, 11, 22)), page);
}
INSTANTIATE_TEST_SUITE_P(Views, OnHandPages,
                         testing::Values(GoodsView::kGroups, GoodsView::kGoodsOnly));

}  // namespace
}  // namespace kladez
