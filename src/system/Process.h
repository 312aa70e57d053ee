// What a program is to the system: its rights, other programs, a directory kept for itself.
#pragma once

#include <QByteArray>
#include <QFile>

namespace kladez::syscalls {

// Books are nobody else's business, unless the user has told the system otherwise.
void KeepToOwner();

// Where this user's programs keep what they can make anew or others never look into: copies, what
// is being looked into. Absolute; the folder of a program in it is its own.
QString StateHome();

// Whether a program of that number runs; true where it can't be known.
bool IsRunning(qint64 program);

// Opens a plain file, and waits for nobody: what hangs or never ends, such as a pipe or a device,
// is refused with ESPIPE, a directory with EISDIR. 0 or an errno.
int OpenToRead(const QString& path, QFile& file);

// Errors of what the toolkit does with files: it tells in words only. Forgotten before, asked
// after.
void ForgetErrors();
int LastError();  // an errno, EIO where the system has told none

// A lock on a directory against other programs; the system takes it off when the program ends,
// however it ends.
class LockHandle {
 public:
  LockHandle() = default;
  ~LockHandle();
  LockHandle(const LockHandle&) = delete;
  LockHandle& operator=(const LockHandle&) = delete;

  int Open(const QByteArray& directory);  // 0 or an errno
  // 0 where it is ours now, EBUSY where another holds it, else the errno of a system without locks.
  int TryLock();

 private:
  qintptr handle_ = -1;
  QByteArray directory_;
};

}  // namespace kladez::syscalls
