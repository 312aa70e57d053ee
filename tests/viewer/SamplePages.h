// Print-outs as the program writes them, deliberate oddities included: the bytes of out.htm.
#pragma once

#include <QByteArray>
#include <QString>

namespace kladez::viewer {

QByteArray ToWindows1251(const QString& text);

// A shipment's waybill with `rows` lines; the party is called `party`.
QString WaybillPage(int rows, const QString& party);

// The tax invoice: eleven columns, two heading rows, height=92, a signature table.
QString InvoicePage(int rows);

// The bill for payment, signed in a preformatted block.
QString BillPage(int rows);

// A price list with a table of its own for the head, each group and each group's rows.
QString PricePage(int groups, int rows_of_group);

// The sales report, with its last row opened by the literal VALING.
QString ReportPage(int rows);

// A chart's page: a title and the picture temp.gif.
QString ChartPage();

}  // namespace kladez::viewer
