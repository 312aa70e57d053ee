#include "ui/controls/PeriodLists.h"

#include "formats/Dates.h"

namespace kladez {

QStringList MonthNames() {
  QStringList names;
  for (int month = 1; month <= 12; ++month) names << MonthName(month);
  return names;
}

QStringList YearsAround(int year) {
  constexpr int kBack = 30;
  QStringList years;
  for (int y = year - kBack; y <= year + 1; ++y) years << QString::number(y);
  return years;
}

}  // namespace kladez
