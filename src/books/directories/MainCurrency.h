// The main currency of the open Database, currency.usd: the words that money is written with.
#pragma once

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/Session.h"
#include "formats/CurrencyFile.h"

namespace kladez {

// A missing file gives roubles, as the next opening of the Database would write them. Throws
// filesystem_error for one that can't be read.
Currency LoadMainCurrency(const DataDir& data, const Session& session, FileState& file);

// Writes the eight lines over the file that was loaded, and gives the session the short form.
// Throws filesystem_error.
void SaveMainCurrency(const DataDir& data, Session& session, const Currency& currency,
                      FileState& file);

}  // namespace kladez
