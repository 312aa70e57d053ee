// The director's password: the first line of bases.psw, which is put there by hand. It is the
// password itself, or in its place what nobody can read it from:
//
//   {kladez}50000$0f1e...$9a8b...   rounds, salt and PBKDF2-HMAC-SHA-256 of the password, in hex
#pragma once

#include "books/store/DataDir.h"

namespace kladez {

// The first line, empty where there is no file: no password then. A line feed alone ends the line
// too. From then on only the file's owner may read it, where that is who asks. Throws
// filesystem_error for a file that is there and can't be read.
QString ReadPasswordLine(const DataDir& data);

// Whether what was typed is the password of the line.
bool IsPassword(const QString& line, const QString& typed);

// A line of our own form, with a new salt.
QString HashedPasswordLine(const QString& password);

}  // namespace kladez
