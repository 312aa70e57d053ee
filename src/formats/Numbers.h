// Numbers as text, under one fixed regional profile: decimal point, blank between thousands. The
// machine's locale is never asked, so that a file reads the same on every machine.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

namespace kladez {

// The strict parse: blanks (code 32) around; a sign before the digits, blanks between it and them
// allowed ("- 5" is -5); blanks between digits of the integer part group; one point, ".5" and "5."
// are numbers; an exponent is allowed. Nothing for anything else, overflow included.
std::optional<double> ParseStrict(QStringView text);
std::optional<double> ParseStrict(QByteArrayView bytes);

// The lenient parse: drops all blanks, takes sign, digits, one point and an exponent, and stops at
// anything else; 0 when there is no number or it overflows.
double ParseLenient(QStringView text);

// The conversion of every reader of a file: the text itself if it is a number, else the text with
// its first "." made "," (or, without a ".", its first "," made ".") if that is a number, else
// `otherwise`; an empty `otherwise` means "0".
QString ToNumberOr(const QString& text, const QString& otherwise = {});
// The same as a number.
double NumberOr(QStringView text, double otherwise = 0);
double NumberOr(QByteArrayView bytes, double otherwise = 0);

// A number as people paste it, "1 234,50": without its blanks, of whatever kind and width, and with
// the comma as the point. The text itself where that makes no number of the strict parse.
QString UngroupedNumber(const QString& text);

// The pictures round half away from zero on the decimal digits of the number's text of 15
// significant digits (1.005 gives "1.01"); what rounds to zero has no sign.
QString FormatMoney(double value);       // "#0.00"
QString MoneyText(const QString& text);  // the same of a file's number text; "0.00" for no number
QString FormatGrouped(double value);     // "##,##0.00": grouped by one blank, "1 234.50"
QString FormatLedger(double value);      // "#0.#0": always two decimals, as ledgers keep them

// The picture "#0.00" taken back as a number.
double RoundMoney(double value);

// The general text: up to 15 significant digits, no trailing zeros, no grouping, no exponent
// between 1e-15 and 1e15.
QString GeneralText(double value);

// The general text taken back as a number: what a sum is that lies in a list or file as text
// between two additions, so that 0.1 and 0.2 less 0.3 leave nothing.
double RoundGeneral(double value);

}  // namespace kladez
