// What every waybill holds, written out: headings, a row, the lines to sign.
#pragma once

#include "books/printing/Pages.h"

namespace kladez {

inline const QString kWaybillHeadings = QStringLiteral(
    "<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=4>N</FONT></TD>"
    "<TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=4>&nbsp;Наименование</FONT></TD>"
    "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Кол-во&nbsp;</FONT></TD>"
    "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Цена&nbsp;</FONT></TD>"
    "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=4>Сумма&nbsp;</FONT></TD></tr>");

inline const QString kWaybillSignatures = QStringLiteral(
    "<p></p><br><br><br><p>&nbsp;&nbsp;&nbsp;<FONT FACE=Arial SIZE=3>Отпустил ___________ "
    "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;Получил ___________</FONT><BR></p><BR></body>"
    "</html>");

inline QString WaybillRow(const char* number, const char* name, const char* quantity,
                          const char* price, const char* sum) {
  return QStringLiteral(
             "<tr><TD WIDTH=5% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=3>%1</FONT></TD>"
             "<TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=3>%2</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>%3&nbsp;</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>%4&nbsp;</FONT></TD>"
             "<TD WIDTH=10% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=3>%5&nbsp;</FONT></TD>"
             "</tr>")
      .arg(QString::fromUtf8(number), QString::fromUtf8(name), QString::fromUtf8(quantity),
           QString::fromUtf8(price), QString::fromUtf8(sum));
}

}  // namespace kladez
