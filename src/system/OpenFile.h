// A file or directory held open to be read. What lies in a directory is taken by its name in the
// open one: nothing that is put in its place meanwhile leads elsewhere, and no path is looked up
// again for each of 100,000 files.
#pragma once

#include <QByteArray>
#include <functional>

#include "system/FileStatus.h"

namespace kladez::syscalls {

class OpenFile {
 public:
  OpenFile() = default;
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  // Each returns 0 or an errno. Nobody is waited for, as a pipe would have it; a link is refused
  // with ELOOP, though directories on the way to it may be links.
  int Open(const QByteArray& path);
  int OpenIn(const OpenFile& directory, const char* name);

  int Status(FileStatus* status) const;
  // How many bytes came, 0 at the end; below 0, the errno with a minus.
  qint64 Read(char* into, qint64 size) const;
  // Fills the bytes from `done` on and adds to it what came; less than room is the end.
  int ReadOn(QByteArray& bytes, qsizetype& done) const;
  // All of a plain file: EISDIR for anything else, EFBIG where there is more of it.
  int ReadWhole(qint64 most, QByteArray& bytes) const;

  // What a directory holds, in no order, "." and ".." left out.
  using Visitor = std::function<void(const char* name, FileStatus::Kind kind)>;
  int ForEachEntry(const Visitor& visit) const;

 private:
  qintptr handle_ = -1;
};

// How often this thread has given way of itself, which in reading files is to wait for the disk; 0
// where the system does not tell.
qint64 WaitsOfThread();

}  // namespace kladez::syscalls
