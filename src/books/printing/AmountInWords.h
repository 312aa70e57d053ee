// Spells an amount of money in Russian: "1234.50" is "Одна тысяча двести тридцать четыре рубля 50
// копеек". The word forms of the currency come from currency.usd; its fraction stays in figures.
#pragma once

#include <QString>

#include "formats/CurrencyFile.h"

namespace kladez {

// `amount` is a number's text with a point, read by the lenient parse: what is no number is zero.
// Nine digits are spelled, a tenth and further ones are passed over, and so is a minus sign.
QString AmountInWords(const QString& amount, const Currency& currency);
// Whether digits of the amount are passed over: it is a thousand million or more.
bool WordsAreCut(const QString& amount);

// The words of a group of three digits with the name of its unit: `position` is 1 for millions, 2
// for thousands, 3 for the currency's main unit.
QString GroupToWords(QStringView group, int position, const Currency& currency);

}  // namespace kladez
