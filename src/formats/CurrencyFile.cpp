#include "formats/CurrencyFile.h"

#include "formats/TextLines.h"

namespace kladez {

using namespace Qt::StringLiterals;

Currency RoubleCurrency() {
  return {{u"руб."_s, u"рубль"_s, u"рубля"_s, u"рублей"_s, u"коп."_s, u"копейка"_s, u"копейки"_s,
           u"копеек"_s}};
}

Currency ReadCurrency(QByteArrayView bytes) {
  Currency currency;
  LineReader reader(bytes);
  for (QString& form : currency.forms) form = reader.Next();
  return currency;
}

QByteArray WriteCurrency(const Currency& currency) {
  LineWriter writer;
  for (const QString& form : currency.forms) writer.Add(form);
  return writer.Take();
}

}  // namespace kladez
