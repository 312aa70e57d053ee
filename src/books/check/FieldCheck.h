// One field of a record as its format wants it.
#pragma once

#include <QByteArrayView>
#include <algorithm>
#include <cmath>

#include "books/check/Findings.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {

// The number that readers take from the field; `otherwise` counts, and a finding says so, where it
// is none. `what` is the field in front of the verb: "Цена", "Количество".
inline double CheckNumber(QByteArrayView field, QStringView what, const QString& file, int line,
                          FindingList& findings) {
  const double number = NumberOr(field, std::nan(""));
  if (!std::isnan(number)) return number;
  constexpr qsizetype kMostShown = 40;
  const QString text = DecodeText(field.first(std::min(field.size(), kMostShown)));
  findings.Add(
      {file, line,
       QStringLiteral("%1 «%2» не читается как число и считается нулём.").arg(what, text)});
  return 0;
}

}  // namespace kladez
