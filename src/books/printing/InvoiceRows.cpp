#include "books/printing/InvoiceRows.h"

#include "books/printing/InputError.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

InvoiceRow RowOf(const DocumentLine& line, double factor, const QString& vat) {
  const double rate = TypedNumber(vat);
  const double price = FieldNumber(line.price) * factor;
  InvoiceRow row;
  row.name = line.name;
  row.unit = line.unit;
  row.quantity = line.quantity;
  row.rate = vat;
  row.gross = FormatMoney(price * FieldNumber(line.quantity));
  row.tax = FormatMoney(FieldNumber(row.gross) / (100 + rate) * rate);
  row.net_price = FormatMoney(price - price / (100 + rate) * rate);
  // From the rounded price: the row multiplies out on paper.
  row.net_sum = FormatMoney(FieldNumber(row.net_price) * FieldNumber(line.quantity));
  return row;
}

// Any line that equals the name counts, and the last of them wins, whatever it stands for: the
// directory has always been searched so.
void FindOrigin(const QStringList& goods, InvoiceRow& row) {
  for (qsizetype i = 0; i < goods.size(); ++i) {
    if (goods[i] != row.name) continue;
    row.country = goods.value(i + 1);
    row.declaration = goods.value(i + 2);
    i += 4;
  }
}

}  // namespace

double InvoiceFactor(InvoiceCurrency currency, const PrintParameters& parameters) {
  const double percent = TypedNumber(parameters.percent);
  const double rate = TypedNumber(parameters.rate);
  if (currency == InvoiceCurrency::kDollars) return percent / 100 * rate;
  return (percent - TypedNumber(parameters.discount)) / 100 * rate;
}

void FillInvoiceTotals(InvoiceCurrency currency, const QString& total,
                       const PrintParameters& parameters, const QString& rub, const Currency& words,
                       TotalTexts& totals) {
  totals.before = FormatMoney(InvoiceFactor(currency, parameters) * FieldNumber(total));
  const bool dollars = currency == InvoiceCurrency::kDollars;
  // The words name the main currency in both: a dollar amount reads in roubles.
  FillTotals(parameters, {.grouped = false, .currency = dollars ? u"$"_s : QString(u' ' + rub)},
             words, totals);
}

std::vector<InvoiceRow> InvoiceRows(const std::vector<DocumentLine>& lines, double factor,
                                    const QString& vat, QByteArrayView goods) {
  const QStringList goods_lines = DecodeLines(goods);
  std::vector<InvoiceRow> rows;
  for (const DocumentLine& line : lines) {
    rows.push_back(RowOf(line, factor, vat));
    FindOrigin(goods_lines, rows.back());
  }
  return rows;
}

InvoiceSums SumsOf(const std::vector<InvoiceRow>& rows) {
  double net = 0;
  double tax = 0;
  double gross = 0;
  for (const InvoiceRow& row : rows) {
    net += FieldNumber(row.net_sum);
    tax += FieldNumber(row.tax);
    gross += FieldNumber(row.gross);
  }
  return {FormatMoney(net), FormatMoney(tax), FormatMoney(gross)};
}

}  // namespace kladez
