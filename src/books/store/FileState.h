// What a working copy was read from. A command that writes a whole file out of a working copy gives
// the state back to the SaveSet: where the file is another one by then, be it another window, a
// second program or a person with an editor that has changed it, nothing is written.
//
//   FileState state;
//   rows = ReadGoods(ReadWithState(data, path, state));
//   ...
//   save.Write(path, WriteGoods(rows), state);
//   save.Commit();  // throws StaleFile; afterwards `state` is that of what was written
#pragma once

#include <QByteArray>
#include <QString>
#include <filesystem>

#include "books/store/DataDir.h"

namespace kladez {

// Equal contents are the same file, whoever wrote them. A state that was never read stands for
// a file that nobody has seen: no file is as it says.
struct FileState {
  // The state of a file that was looked for and is not there.
  static FileState Missing() { return {.known = true}; }

  bool known = false;
  bool exists = false;
  quint64 inode = 0;
  qint64 size = 0;
  qint64 modified = 0;  // nanoseconds
  qint64 changed = 0;   // nanoseconds, the inode's
  quint64 fingerprint = 0;
};

// A number for the bytes, the same on every machine and in every version; chance alone makes two
// contents share one.
quint64 Fingerprint(QByteArrayView bytes);

// Reads as DataDir::Read does and remembers the state. Throws filesystem_error, the state unknown
// then.
QByteArray ReadWithState(const DataDir& data, const QString& path, FileState& state);
// The same where a missing file is an empty one, which may be made; one that can't be read is not
// taken for empty, and throws.
QByteArray ReadIfThere(const DataDir& data, const QString& path, FileState& state);

// Whether the file is still what it was. `file` is absolute, in the file system's encoding.
// Throws filesystem_error where that can't be seen.
bool IsStill(const FileState& state, const QByteArray& file);
// The same for a path of the system; false where it can't be seen.
bool IsStill(const FileState& state, const DataDir& data, const QString& path);
// The state of a file that holds these bytes now.
FileState StateOfWritten(const QByteArray& file, quint64 fingerprint);

// Thrown by a commit that would have written over something newer: ESTALE, or EEXIST where nothing
// had been there. Nothing has changed.
class StaleFile : public std::filesystem::filesystem_error {
 public:
  // `file` is the path of the system; `appeared`: nothing had been there.
  StaleFile(const QString& file, bool appeared);
};

}  // namespace kladez
