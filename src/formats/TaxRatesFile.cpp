#include "formats/TaxRatesFile.h"

#include <array>

#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

struct NamedRate {
  QStringView name;
  QString TaxRates::*percent;
};

constexpr std::array kNamedRates = {NamedRate{u"НДС, %", &TaxRates::vat},
                                    NamedRate{u"НСП, %", &TaxRates::sales_tax}};

}  // namespace

std::optional<TaxRates> ReadTaxRates(QByteArrayView bytes) {
  const QStringList lines = DecodeLines(bytes);
  TaxRates rates;
  size_t found = 0;
  for (const auto& [name, percent] : kNamedRates) {
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
      if (lines[i] != name) continue;
      rates.*percent = lines[i + 1];
      ++found;
      break;
    }
    if (TaxPercent(rates.*percent) != rates.*percent) return std::nullopt;
  }
  return found == kNamedRates.size() ? std::optional(rates) : std::nullopt;
}

std::optional<QString> TaxPercent(const QString& typed) {
  const QString number = UngroupedNumber(typed.trimmed());
  return number.isEmpty() || ParseStrict(number) ? std::optional(number) : std::nullopt;
}

QByteArray WriteTaxRates(const TaxRates& rates) {
  LineWriter writer;
  for (const auto& [name, percent] : kNamedRates) {
    writer.Add(name);
    writer.Add(rates.*percent);
  }
  return writer.Take();
}

}  // namespace kladez
