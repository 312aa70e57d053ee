// The figures of a tax invoice and of a bill for payment: the factor of all prices, one computed
// row a goods line, the totals, and where the goods come from.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "books/printing/DocumentTotals.h"
#include "formats/DocumentFile.h"

namespace kladez {

// In roubles the discount stands in the prices, since an invoice must add up to what is paid; in
// dollars it does not.
enum class InvoiceCurrency { kRoubles, kDollars };

struct InvoiceRow {
  QString name;
  QString country;
  QString declaration;  // customs declaration number
  QString unit;
  QString quantity;
  QString net_price;  // without the tax
  QString net_sum;
  QString rate;  // of the tax, percent
  QString tax;
  QString gross;  // with the tax

  bool operator==(const InvoiceRow&) const = default;
};

struct InvoiceSums {
  QString net;
  QString tax;
  QString gross;
};

// What every price is multiplied by. Throws InputError.
double InvoiceFactor(InvoiceCurrency currency, const PrintParameters& parameters);

// The totals of a document's sum. Throws InputError as FillTotals, which keeps what stands.
void FillInvoiceTotals(InvoiceCurrency currency, const QString& total,
                       const PrintParameters& parameters, const QString& rub, const Currency& words,
                       TotalTexts& totals);

// One row a line, each figure from the texts of those before it. `goods` are the bytes of the goods
// directory. Throws InputError for a price, quantity or rate that is no number.
std::vector<InvoiceRow> InvoiceRows(const std::vector<DocumentLine>& lines, double factor,
                                    const QString& vat, QByteArrayView goods);

// The sums of the printed figures, "#0.00". Throws InputError.
InvoiceSums SumsOf(const std::vector<InvoiceRow>& rows);

}  // namespace kladez
