#include "books/printing/InputError.h"

#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

double FieldNumber(QStringView text) {
  const auto number = ParseStrict(text);
  if (!number) throw InputError(u"Не число: «"_s + text + u'»');
  return *number;
}

double TypedNumber(const QString& text) { return FieldNumber(UngroupedNumber(text)); }

}  // namespace kladez
