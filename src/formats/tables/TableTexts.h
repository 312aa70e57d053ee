// A table as a text that other programs take in: rows parted by tabs for the clipboard, CSV, JSON.
//
//   Наименование;Ед.изм.;Цена закупа          CSV: UTF-8 with its mark, so that spreadsheets know
//   it
//    Чай и кофе;;                              for UTF-8 and part the columns without a question
//   "Чай ""Ассам""; 100 г";пач.;45,00
//   Итого;;45,00
#pragma once

#include <QByteArray>

#include "formats/tables/Table.h"

namespace kladez {

// Lines with LF, as a clipboard has them. Numbers have a comma for the point: with a point a
// spreadsheet of this country takes "1.50" for the first of May. Tabs and line breaks within a cell
// become blanks. `headings`: the titles of the columns stand in the first line.
QString TableAsTabs(const Table& table, bool headings);

// Lines with CR LF, columns parted by ";", decimal comma. A cell with ";", a quotation mark, a line
// break or a blank at an end stands in quotation marks. The name of a group keeps its leading
// blank, so that the file can be brought in again. Totals stand below the rows.
QByteArray TableAsCsv(const Table& table);

// {"title", "note", "columns": [titles], "rows": [{title: value}], "totals": {title: value}} in
// UTF-8: numbers as numbers, dates as "2026-11-23", the name of a row's group as "group" where the
// table has groups. Of columns of one title the later ones are told with a number: "Сумма 2".
QByteArray TableAsJson(const Table& table);

}  // namespace kladez
