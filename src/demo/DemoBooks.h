// The demonstration books: a year in the life of a small wholesaler, for a newcomer to look around
// in. Made by the program's own working copies, so that ledgers, sums and numbers follow from the
// documents as they would from a person's work. The same day always gives the same books.
#pragma once

#include <QDate>

#include "books/store/DataDir.h"

namespace kladez {

// Adds the Database "Демонстрационная база" under the next free number, in one save; gives its
// path. Documents are spread over the twelve months up to `today`. Throws filesystem_error.
QString WriteDemonstrationBooks(const DataDir& data, QDate today);

}  // namespace kladez
