#pragma once

#include <sys/stat.h>

#include "system/FileStatus.h"

namespace kladez::syscalls {

inline qint64 Nanoseconds(const timespec& time) {
  return qint64{time.tv_sec} * 1'000'000'000 + qint64{time.tv_nsec};
}

inline FileStatus StatusOf(const struct stat& found) {
  using Kind = FileStatus::Kind;
  return {.kind = S_ISREG(found.st_mode)   ? Kind::kFile
                  : S_ISDIR(found.st_mode) ? Kind::kDirectory
                  : S_ISLNK(found.st_mode) ? Kind::kLink
                                           : Kind::kOther,
          .mode = found.st_mode & 07777,
          .device = found.st_dev,
          .inode = found.st_ino,
          .size = found.st_size,
          .modified = Nanoseconds(found.st_mtim),
          .changed = Nanoseconds(found.st_ctim)};
}

}  // namespace kladez::syscalls
