// The lines of a report's page, spelled out apart from the writer.
#pragma once

#include <QString>
#include <QStringList>

namespace kladez {

// Widths in percent; the first `texts` columns stand left, the others right.
struct ReportTable {
  QList<int> widths;
  int texts;

  QString Heads(const QStringList& values) const { return Line(values, 4, false); }
  QString Row(const QStringList& values) const { return Line(values, 3, false); }
  QString Total(const QStringList& values) const { return Line(values, 3, true); }

 private:
  QString Line(const QStringList& values, int size, bool total) const {
    QString line = QStringLiteral("<tr>");
    for (int i = 0; i < values.size(); ++i) {
      const bool text = i < texts;
      line += QStringLiteral("<TD WIDTH=%1% ").arg(widths[i]);
      line += total && i == 0 ? QStringLiteral("VALING=TOP") : QStringLiteral("VALIGN=TOP");
      line += QStringLiteral("%1><FONT FACE=Arial SIZE=%2>%3%4%5%6%7</FONT></TD>")
                  .arg(text ? QString() : QStringLiteral(" ALIGN=right"))
                  .arg(size)
                  .arg(total ? QStringLiteral("<b>") : QString(),
                       text ? QStringLiteral("&nbsp;") : QString(), values[i],
                       text ? QString() : QStringLiteral("&nbsp;"),
                       total ? QStringLiteral("</b>") : QString());
    }
    line += QStringLiteral("</tr>");
    return line;
  }
};

inline QString PageHead() {
  return QStringLiteral(
      "<HTML><HEAD><meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1251\">"
      "<TITLE>Отчет от 22 ноября 2026</TITLE></HEAD><BODY BGCOLOR=#ffffff>");
}

// From the head to the opened table; a period of "Все" has no line.
inline QStringList ReportStart(const QString& heading, const QString& warehouse,
                               const QString& period = {}) {
  const QString small = QStringLiteral("<FONT FACE=Arial SIZE=3>%1</FONT><br>");
  QStringList lines = {
      PageHead(),
      QStringLiteral("<p align=CENTER><B><FONT FACE=Arial SIZE=5>%1 от 22 ноября 2026</FONT></B>"
                     "<br></p>")
          .arg(heading),
      small.arg(warehouse)};
  if (!period.isEmpty()) lines << small.arg(period);
  lines << QStringLiteral("<br>") << QStringLiteral("<CENTER>")
        << QStringLiteral(
               "<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 "
               "cellspacing=0 cellpadding=0 BORDER=1 WIDTH=100%>");
  return lines;
}

inline QStringList ReportEnd() {
  return {QStringLiteral("<tr>"), QStringLiteral("</center></table><p></p>"),
          QStringLiteral("</body></html>")};
}

}  // namespace kladez
