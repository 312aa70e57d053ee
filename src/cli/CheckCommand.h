// "kladez-books check [--stock] [DIR]": checks the books from a command line and writes nothing.
#pragma once

#include <QStringList>
#include <QTextStream>

namespace kladez {

// What the process ends with.
enum class ExitCode {
  kSound = 0,
  kFindings = 1,
  kNotDone = 2,  // wrong words, or a directory that can't be read
};

// `words` are those behind "check": a data directory, whose Databases are all checked, or the
// directory of one Database; that of the program where there is none. "--stock" adds, for each
// goods, what documents and ledger say, parted by tabs. Findings go to `out`, one a line
// ("0001\Главный склад\PRH\0012.prh:6: Сумма документа ..."), what went wrong to `errors`.
ExitCode RunCheck(const QStringList& words, QTextStream& out, QTextStream& errors);

}  // namespace kladez
