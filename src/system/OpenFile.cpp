#include "system/OpenFile.h"

#include <cerrno>

namespace kladez::syscalls {

int OpenFile::ReadOn(QByteArray& bytes, qsizetype& done) const {
  while (done < bytes.size()) {
    const qint64 got = Read(bytes.data() + done, bytes.size() - done);
    if (got < 0) return static_cast<int>(-got);
    if (got == 0) break;
    done += got;
  }
  return 0;
}

int OpenFile::ReadWhole(qint64 most, QByteArray& bytes) const {
  FileStatus status;
  if (const int error = Status(&status)) return error;
  if (!status.IsFile()) return EISDIR;
  if (status.size > most) return EFBIG;
  bytes.resize(status.size);
  qsizetype done = 0;
  if (const int error = ReadOn(bytes, done)) return error;
  bytes.truncate(done);
  return 0;
}

}  // namespace kladez::syscalls
