#include "books/printing/PageWriter.h"
#include "books/printing/Pages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

TEST(PageWriter, WritesEveryKindOfRowInOneForm) {
  PageWriter page(u"Отчёт <1>"_s);
  page.OpenTable();
  page.OpenTable(false);
  page.Row({CenterCell(u"1"_s, 5), NameCell(u"A & <B>"_s, 65), NumberCell(u"0.125"_s, 10),
            TextCell(u"шт."_s)},
           {.size = 3});
  page.Row({NumberCell({}, 2)}, {.size = 2, .bold = true});
  page.Row({TextCell(u"7"_s)}, {.points = 7});
  page.TotalRow({TextCell(u"ИТОГО:"_s, 5), NumberCell(u"7.00"_s, 10)}, {.size = 3});
  page.Line();
  ExpectPage(
      page.Take(),
      {PageHead(u"Отчёт <1>"_s), kLineTable,
       QString(kLineTable).replace(u"BORDER=1"_s, u"BORDER=0"_s),
       u"<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=3>1</FONT></TD>"
       "<TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=3>&nbsp;A & <B></FONT></TD>"
       "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>0.125&nbsp;</FONT></TD>"
       "<TD VALIGN=TOP><FONT FACE=Arial SIZE=3>шт.</FONT></TD></tr>"_s,
       u"<tr><TD WIDTH=2% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2><b>&nbsp;</b></FONT></TD>"
       "</tr>"_s,
       u"<tr><TD VALIGN=TOP><FONT FACE=Arial style=font-size:7pt>7</FONT></TD></tr>"_s,
       u"<tr><TD WIDTH=5% VALING=TOP><FONT FACE=Arial SIZE=3><b>ИТОГО:</b></FONT></TD>"
       "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3><b>7.00&nbsp;</b></FONT></TD>"
       "</tr>"_s,
       u""_s});
}

TEST(PageWriter, LinesEndInCarriageReturnAndLineFeedInWindows1251) {
  PageWriter page({});
  page.Take();
  page.Line(u"Ёж"_s);
  EXPECT_EQ(page.Take(), QByteArray("\xA8\xE6\r\n"));
}

}  // namespace
}  // namespace kladez
