// What the system knows of a file or directory without opening it.
#pragma once

#include <QtGlobal>

namespace kladez {

struct FileStatus {
  enum class Kind { kFile, kDirectory, kLink, kOther };

  bool IsFile() const { return kind == Kind::kFile; }
  bool IsDirectory() const { return kind == Kind::kDirectory; }

  Kind kind = Kind::kOther;
  unsigned mode = 0;  // the rights of owner, group and others, 0644
  quint64 device = 0;
  quint64 inode = 0;
  qint64 size = 0;
  qint64 modified = 0;  // nanoseconds since 1970
  qint64 changed = 0;   // likewise, of the inode
};

}  // namespace kladez
