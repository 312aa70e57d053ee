// The file of the settings, lines of UTF-8 ended by LF:
//
//   [Kladez4]
//   Main\basename1="Лавка; двор"
//   Sorting\Sort=AZ
//
// A text with a semicolon, comma, equals sign or a blank at its ends stands in quotation marks;
// backslash, quotation mark and control characters are escaped as in C. A text that begins with "@"
// has a second one before it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

namespace kladez {

using IniLines = QList<QByteArray>;

// Reads never fail: what is no line of a value says nothing.
IniLines ReadIni(const QByteArray& bytes);
QByteArray WriteIni(const IniLines& lines);

// Nothing where the section lacks the key, or has a list or something else than a text there.
std::optional<QString> IniText(const IniLines& lines, const QString& section, const QString& key);
// Changes or adds the one value; every other line stays as it is.
void SetIniText(IniLines& lines, const QString& section, const QString& key, const QString& text);

}  // namespace kladez
