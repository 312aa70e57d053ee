// The two series of numbers of the documents in a directory: the names of the files, which count
// them in the order in which they were made, and the numbers inside, which a person may change.
#pragma once

#include <QString>

#include "books/store/DataDir.h"
#include "formats/DocumentFile.h"

namespace kladez {

struct NewDocumentNumbers {
  QString file;    // "0013.prh"
  QString number;  // what the editor proposes
};

// The file's number is one above that of the last name of the listing, 1 when there is none or the
// name is no number. The listing is ordered by text: after 9999 it is 10000 again and again, as
// "10000" stands before "9999". The number proposed is one above the digits at the start of the
// first line of that last file. Throws filesystem_error.
NewDocumentNumbers NumbersForNew(const DataDir& data, DocumentKind kind, const QString& directory);

// The file name with the number above the highest of the directory: "10001.prh" beside "10000.prh"
// and "9999.prh". Throws filesystem_error.
QString FreeDocumentFile(const DataDir& data, DocumentKind kind, const QString& directory);
// The number in a file's name, as it is told to people: "13" of "0013.prh".
QString FileNumberText(const QString& file);

}  // namespace kladez
