// The Database that a command works on, by its options: "--data DIR" is the data directory, that of
// the program without it; "--base 0001" the Database, by its directory or its name, which only one
// among several needs.
#pragma once

#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "cli/Words.h"

namespace kladez {

// The value of "--data", or the program's own directory.
QString DataDirectory(Words& words);

struct OpenedBooks {
  // Takes both options. Throws filesystem_error, or WrongWords where no one Database is meant.
  explicit OpenedBooks(Words& words);

  DataDir data;
  Session session;
};

}  // namespace kladez
