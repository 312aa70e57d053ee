#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>

#include "system/Process.h"

namespace kladez::syscalls {

void KeepToOwner() {
  constexpr mode_t kUsual = 022;
  const mode_t mask = ::umask(077);
  if (mask != kUsual) ::umask(mask);
}

QString StateHome() {
  const QString set = qEnvironmentVariable("XDG_STATE_HOME");
  return set.startsWith(u'/') ? set : QDir::homePath() + QStringLiteral("/.local/state");
}

bool IsRunning(qint64 program) {
  return program <= 0 || ::kill(static_cast<pid_t>(program), 0) == 0 || errno != ESRCH;
}

int OpenToRead(const QString& path, QFile& file) {
  const int descriptor =
      ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (descriptor < 0) return errno;
  struct stat status = {};
  const int failure = ::fstat(descriptor, &status) != 0 ? errno
                      : S_ISDIR(status.st_mode)         ? EISDIR
                      : S_ISREG(status.st_mode)         ? 0
                                                        : ESPIPE;
  if (failure == 0 && file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) return 0;
  ::close(descriptor);
  return failure != 0 ? failure : EIO;
}

void ForgetErrors() { errno = 0; }

int LastError() { return errno != 0 ? errno : EIO; }

LockHandle::~LockHandle() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

int LockHandle::Open(const QByteArray& directory) {
  handle_ = ::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return handle_ < 0 ? errno : 0;
}

int LockHandle::TryLock() {
  while (::flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) < 0) {
    if (errno != EINTR) return errno == EWOULDBLOCK ? EBUSY : errno;
  }
  return 0;
}

}  // namespace kladez::syscalls
