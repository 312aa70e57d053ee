// Keeps two programs that work in one data directory from saving at the same moment. The system
// takes the lock off when the program ends, however it ends.
#pragma once

#include <QByteArray>
#include <chrono>

#include "system/Process.h"

namespace kladez {

class DirectoryLock {
 public:
  // Waits for the lock of another program that long. Throws filesystem_error: "busy" after that, or
  // when the directory can't be opened. A file system without locks is worked on without.
  explicit DirectoryLock(const QByteArray& directory,
                         std::chrono::milliseconds patience = std::chrono::seconds(5));

 private:
  syscalls::LockHandle handle_;
};

}  // namespace kladez
