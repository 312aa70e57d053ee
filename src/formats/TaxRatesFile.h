// The tax rates that the papers of a Database open with, kladez\ставки.usd: what a rate is called
// and its percent, one a line. An empty percent leaves the rate as the program has it.
//
//   НДС, %
//   20
//   НСП, %
//
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace kladez {

struct TaxRates {
  QString vat;        // percent
  QString sales_tax;  // percent

  bool operator==(const TaxRates&) const = default;
};

// Nothing where the file is cut or a percent is no number. What it holds beside the two is passed
// over.
std::optional<TaxRates> ReadTaxRates(QByteArrayView bytes);
QByteArray WriteTaxRates(const TaxRates& rates);

// A percent as a person types it, a comma for the point: as it is kept, or nothing for no number.
std::optional<QString> TaxPercent(const QString& typed);

}  // namespace kladez
