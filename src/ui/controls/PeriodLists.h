// The lists from which a month or a year is chosen.
#pragma once

#include <QStringList>

namespace kladez {

QStringList MonthNames();           // "Январь" to "Декабрь"
QStringList YearsAround(int year);  // the years of the trade until then, and the next one

}  // namespace kladez
