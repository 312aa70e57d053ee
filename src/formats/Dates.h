// Dates as text, under the fixed regional profile: day, month and year parted by points.
#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QString>
#include <optional>

namespace kladez {

// d.M.yyyy with one or two digits for day and month and four for the year; one blank at the end is
// passed over, as old files carry it. Nothing for anything else.
std::optional<QDate> ParseDate(QStringView text);
std::optional<QDate> ParseDate(QByteArrayView bytes);

QString DateText(QDate date);        // "dd.MM.yyyy": files and fields
QString ShortDateText(QDate date);   // "dd.mm.yy": report rows, the register's filter of one day
QString BackupDateText(QDate date);  // "dd-mm-yy"
QString LongDateText(QDate date);    // "dd mmmm yyyy": "05 марта 2026"
QString MonthName(int month);        // "Март", 1 to 12

}  // namespace kladez
