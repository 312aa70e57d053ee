// The repairs that a check offers. Each is one command that is saved whole or not at all.
#pragma once

#include <functional>

#include "books/check/Findings.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"

namespace kladez {

// Called before a repair writes, with the path of the Database: the place of a copy to go back to.
// What it throws stops the repair, nothing changed.
using CopyFirst = std::function<void(const QString& base)>;

// What the repair does, as a question for a person: "Переписать концы строк файла?"
QString RepairQuestion(const Finding& finding);

// Reads the file of the finding anew and writes it repaired; false where there is nothing to repair
// any more. The session's warehouses follow. Throws filesystem_error; nothing has changed then.
bool MakeRepair(const DataDir& data, Session& session, const Finding& finding,
                const CopyFirst& copy_first = {});

}  // namespace kladez
