// The three waybills as pages: a shipment's, a receipt's and a transfer's. One layout, told apart
// by the kind of document.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "books/printing/DocumentTotals.h"
#include "formats/DocumentFile.h"

namespace kladez {

// What is printed: the screen's fields as they stand.
struct WaybillForm {
  DocumentKind kind = DocumentKind::kShipment;
  QString title;
  TickedText note;
  TickedText from;
  TickedText to;
  TickedText grounds;
  TickedText warehouse;  // not on a transfer's
  PrintParameters parameters;
  TotalTexts totals;
  bool with_vat = true;
  bool with_sales_tax = true;
  QString rub;                      // short name of the currency
  std::vector<DocumentLine> lines;  // prices before the discount
};

// The labels of the parties: "От кого:", "Кому:", "Откуда:", "Куда:".
struct WaybillLabels {
  QString from;
  QString to;
};
WaybillLabels WaybillLabelsOf(DocumentKind kind);

// The page, Windows-1251. Throws InputError, which names the line, for a quantity or price that is
// no number, and for a percentage, rate, total or discount that is none.
QByteArray WaybillPage(const WaybillForm& form);

}  // namespace kladez
