// The main currency of the open Database: the words that money is written with (currency.usd), and
// the tax rates that its papers open with (TaxRatesFile.h).
#pragma once

#include "books/store/DataDir.h"
#include "books/store/FileState.h"
#include "books/store/Session.h"
#include "formats/CurrencyFile.h"
#include "formats/TaxRatesFile.h"

namespace kladez {

// A missing file gives roubles, as the next opening of the Database would write them. Throws
// filesystem_error for one that can't be read.
Currency LoadMainCurrency(const DataDir& data, const Session& session, FileState& file);

// The rates of the open Database, empty ones where it has none; nothing where their file is damaged
// or can't be read.
std::optional<TaxRates> LoadTaxRates(const DataDir& data, const Session& session, FileState& file);

// Writes the eight lines over the file that was loaded, and the rates over theirs where they are
// not those of the disk; gives the session the short form. Throws filesystem_error.
void SaveMainCurrency(const DataDir& data, Session& session, const Currency& currency,
                      FileState& file, const TaxRates& rates, FileState& rates_file);

}  // namespace kladez
