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
  PaperSums sums;
  std::vector<DocumentLine> lines;  // prices before the discount
};

// The labels of the parties: "От кого:", "Кому:", "Откуда:", "Куда:".
struct WaybillLabels {
  QString from;
  QString to;
};
// What the two parties of a waybill are called.
WaybillLabels WaybillLabelsOf(DocumentKind kind);

// Works the totals out of the document's sum. Throws InputError for a field that is no number; what
// was worked out until then stays.
void FillWaybillTotals(DocumentKind kind, const QString& total, const PrintParameters& parameters,
                       const QString& rub, const Currency& currency, TotalTexts& totals);

// The page, Windows-1251. Throws InputError, which names the line, for a quantity or price that is
// no number, and for a percentage, rate, total or discount that is none.
QByteArray WaybillPage(const WaybillForm& form);

}  // namespace kladez
