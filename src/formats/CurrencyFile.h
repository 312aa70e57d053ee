// The words of the main currency, currency.usd: exactly eight lines, the short form and the three
// plural forms of the major unit, then of the minor unit.
#pragma once

#include <QByteArray>
#include <QString>
#include <array>

namespace kladez {

struct Currency {
  // Short form, nominative singular, genitive singular, genitive plural; then the minor unit's.
  std::array<QString, 8> forms;

  // "руб."
  const QString& ShortForm() const { return forms[0]; }
  bool operator==(const Currency&) const = default;
};

// "руб.", "рубль", "рубля", "рублей", "коп.", "копейка", "копейки", "копеек".
Currency RoubleCurrency();
// Missing lines read as empty.
Currency ReadCurrency(QByteArrayView bytes);
QByteArray WriteCurrency(const Currency& currency);

}  // namespace kladez
