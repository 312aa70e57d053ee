#include "books/printing/PageWriter.h"

#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

namespace {

QString CellHtml(const PageCell& cell, PageFont font, QStringView vertical = u"VALIGN") {
  QString html = u"<TD"_s;
  if (cell.width > 0) html += u" WIDTH="_s + GeneralText(cell.width) + u'%';
  html += u' ' + vertical + u"=TOP"_s;
  if (cell.align == CellAlign::kRight) html += u" ALIGN=right"_s;
  if (cell.align == CellAlign::kCenter) html += u" ALIGN=center"_s;
  return html + u'>' + FontHtml(font, cell.html) + u"</TD>"_s;
}

}  // namespace

PageCell NameCell(const QString& text, int width) { return {u"&nbsp;"_s + text, width}; }

PageCell NumberCell(const QString& text, int width) {
  return {text + u"&nbsp;"_s, width, CellAlign::kRight};
}

PageCell TextCell(const QString& text, int width) { return {text, width}; }

PageCell CenterCell(const QString& text, int width) { return {text, width, CellAlign::kCenter}; }

QString FontHtml(PageFont font, const QString& text) {
  const QString size = font.points > 0
                           ? QString(u"style=font-size:"_s + GeneralText(font.points) + u"pt"_s)
                           : QString(u"SIZE="_s + GeneralText(font.size));
  const QString open = u"<FONT FACE=Arial "_s + size + u'>';
  if (font.bold) return open + u"<b>"_s + text + u"</b></FONT>"_s;
  return open + text + u"</FONT>"_s;
}

QString CellsHtml(const std::vector<PageCell>& cells, PageFont font) {
  QString html;
  for (const PageCell& cell : cells) html += CellHtml(cell, font);
  return html;
}

PageWriter::PageWriter(const QString& title, LineWriter lines) : lines_(std::move(lines)) {
  Line(
      uR"(<HTML><HEAD><meta http-equiv="Content-Type" content="text/html; )"
      uR"(charset=windows-1251"><TITLE>)"_s +
      title + u"</TITLE></HEAD><BODY BGCOLOR=#ffffff>"_s);
}

void PageWriter::OpenTable(bool border) {
  Line(
      u"<TABLE style=border-Collapse:Collapse bgcolor=#ffffff bordercolor=#000000 "
      u"cellspacing=0 cellpadding=0 BORDER="_s +
      (border ? u'1' : u'0') + u" WIDTH=100%>"_s);
}

void PageWriter::Row(const std::vector<PageCell>& cells, PageFont font) {
  Line(u"<tr>"_s + CellsHtml(cells, font) + u"</tr>"_s);
}

void PageWriter::TotalRow(const std::vector<PageCell>& cells, PageFont font) {
  font.bold = true;
  QString html = u"<tr>"_s;
  for (size_t i = 0; i < cells.size(); ++i) {
    html += CellHtml(cells[i], font, i == 0 ? u"VALING"_s : u"VALIGN"_s);
  }
  Line(html + u"</tr>"_s);
}

}  // namespace kladez
