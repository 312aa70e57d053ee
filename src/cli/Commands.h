// The commands of kladez-books. Each takes the words behind its name, writes what was asked for to
// `out`, and throws WrongWords, or what the books throw.
#pragma once

#include <QStringList>
#include <QTextStream>

#include "cli/Words.h"

namespace kladez {

// What the process ends with.
enum class ExitCode {
  kSound = 0,
  kFindings = 1,  // of a check; rows of a table that were refused
  kNotDone = 2,   // wrong words, or something that can't be read or written
};

// "kladez-books check ...": gives the command its words, and tells in Russian what went wrong.
ExitCode RunCommand(const QStringList& words, QTextStream& out, QTextStream& errors);

// Checks the books and writes nothing: those of a data directory, or of one Database. "--stock"
// adds, for each goods, what documents and ledger say, parted by tabs. Findings go to `out`, one a
// line ("0001\Главный склад\PRH\0012.prh:6: Сумма документа ...").
ExitCode RunCheck(Words& words, QTextStream& out);

// Brings a table of goods and prices into a Database as the command "Загрузить таблицу…" does, and
// tells of each row that changes something or is refused, parted by tabs.
ExitCode RunImport(Words& words, QTextStream& out);

// Writes a list or a report (Lists.h) as CSV or, with "--json", as JSON; into a file with "--out".
ExitCode RunList(Words& words, QTextStream& out);

// Reads a password from the first line of the standard input and tells the line that bases.psw may
// hold in its place.
ExitCode RunPassword(Words& words, QTextStream& out);

}  // namespace kladez
