// Numbers as other programs and people write them in a column of a table: "1 234,50", "1,234.50",
// "1.234,50 руб.", "45".
#pragma once

#include <QString>
#include <optional>

#include "formats/tables/Sheet.h"

namespace kladez {

class SheetNumbers {
 public:
  // Looks through the column: where any of its numbers has both a point and a comma, the last of
  // the two is the decimal one in all of them. Otherwise either is.
  SheetNumbers(const Sheet& sheet, int column);

  // Nothing for what is no number, an empty cell among it.
  std::optional<double> Read(const QString& cell) const;

 private:
  QChar grouping_;  // null where the column shows none
};

}  // namespace kladez
