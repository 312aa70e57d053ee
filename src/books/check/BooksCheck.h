// The check of the books: every file of a Database read strictly against its format and against the
// others. It writes nothing.
#pragma once

#include "books/check/Findings.h"
#include "books/store/DataDir.h"
#include "formats/Progress.h"

namespace kladez {

// Checks the Database at a path, "0001\". Files that can't be read are findings. Throws
// filesystem_error where the Database's own directory can't be read, and WorkCancelled.
CheckResult CheckBooks(const DataDir& data, const QString& base, const Progress& progress = {});

// "0001\Главный склад\PRH\0012.prh, строка 6": where a finding lies, for a person.
QString PlaceText(const Finding& finding);

}  // namespace kladez
