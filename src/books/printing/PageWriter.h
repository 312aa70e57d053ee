// Writes print-outs: HTML pages in Windows-1251 whose lines end in CR LF. All pages of the system
// (forms, reports, price list, stock on hand) come from here, so that they have one head and one
// form of cells. What people typed goes in as it stands, with no escaping: the viewer knows.
//
//   <tr><TD WIDTH=65% VALIGN=TOP><FONT FACE=Arial SIZE=3>&nbsp;Чай</FONT></TD>...</tr>
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "formats/TextLines.h"

namespace kladez {

enum class CellAlign { kLeft, kCenter, kRight };

struct PageCell {
  QString html;
  int width = 0;  // percent of the table; 0 leaves it to the viewer
  CellAlign align = CellAlign::kLeft;
};

// The kinds of cells: a name begins with "&nbsp;", a number stands right and is followed by it.
PageCell NameCell(const QString& text, int width = 0);
PageCell NumberCell(const QString& text, int width = 0);
PageCell TextCell(const QString& text, int width = 0);
PageCell CenterCell(const QString& text, int width = 0);

struct PageFont {
  int size = 3;  // of HTML, 1 to 5
  bool bold = false;
  int points = 0;  // instead of the size
};

// "<FONT FACE=Arial SIZE=3>text</FONT>", with <b> inside when bold.
QString FontHtml(PageFont font, const QString& text);
// The cells of a row without its <tr>.
QString CellsHtml(const std::vector<PageCell>& cells, PageFont font);

class PageWriter {
 public:
  // Writes the head, up to the opened BODY.
  explicit PageWriter(const QString& title) : PageWriter(title, LineWriter()) {}
  // A long page goes where the lines go.
  PageWriter(const QString& title, LineWriter lines);

  // One line of the file. Throws std::system_error for what Windows-1251 lacks.
  void Line(const QString& html = {}) { lines_.Add(html); }

  // The opening of a line table, over the whole width; without border for rows that have none.
  void OpenTable(bool border = true);
  // A row is one line of the file.
  void Row(const std::vector<PageCell>& cells, PageFont font);
  // The last row of a report, bold. Its first cell opens with "VALING=TOP", which is meant.
  void TotalRow(const std::vector<PageCell>& cells, PageFont font);

  // The page so far; where a sink takes the lines, what has not gone to it.
  QByteArray Take() { return lines_.Take(); }

 private:
  LineWriter lines_;
};

}  // namespace kladez
