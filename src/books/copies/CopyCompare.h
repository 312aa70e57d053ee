// What a copy holds otherwise than the one before it, in a shop's words: documents, goods, stock.
#pragma once

#include <QString>
#include <vector>

#include "books/copies/CopyFolder.h"
#include "formats/Progress.h"

namespace kladez {

struct CopyChange {
  QString what;  // "Приход 48, Главный склад", "Товар «Чай»", "Остаток «Чай», Главный склад"
  QString was;   // a sum, price or quantity; empty where there was none
  QString now;

  bool operator==(const CopyChange&) const = default;
};

// Nobody reads more of them.
inline constexpr size_t kMostCopyChanges = 5000;

// Documents first, then goods, then stock; at most kMostCopyChanges. Throws filesystem_error where
// a copy can't be read, and WorkCancelled.
std::vector<CopyChange> CompareCopies(const StoredCopy& before, const StoredCopy& after,
                                      const Progress& progress = {});

}  // namespace kladez
