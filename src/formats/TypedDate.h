// A date as people write it in a field: "31.12.2026", "31,12,26", "5/3/2026", "5 3", "0503", "5".
#pragma once

#include <QDate>
#include <QString>
#include <optional>

namespace kladez {

// Day, month and year, one or two digits for the first two, two or four for the year, parted by a
// point, comma, slash, dash or blanks; or without anything between them as two, four, six or eight
// digits. What is left out is of today: the year, or the month and the year. Two digits of a year
// are of the hundred years that began thirty years before today. "с", in either layout of the
// keyboard, is today; a "г." at the end is passed over. Nothing for what is no day of the calendar,
// what could be read in two ways, or is of a year beyond 1900 to 2199.
std::optional<QDate> ReadTypedDate(QStringView text, QDate today);

// The letter that stands for today, alone: Cyrillic or the Latin letter of the same key or shape.
bool IsTodayLetter(QStringView text);

}  // namespace kladez
