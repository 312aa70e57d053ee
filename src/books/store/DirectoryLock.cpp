#include "books/store/DirectoryLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <QThread>
#include <cerrno>

#include "books/store/Errors.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

[[noreturn]] void Refuse(const QByteArray& directory, int error) {
  ThrowFileError(u"Не удалось занять каталог для записи"_s, QFile::decodeName(directory), error);
}

}  // namespace

DirectoryLock::DirectoryLock(const QByteArray& directory, milliseconds patience)
    : fd_(::open(directory.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (fd_ < 0) Refuse(directory, errno);
  constexpr milliseconds kPause(10);
  while (::flock(fd_, LOCK_EX | LOCK_NB) < 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return;  // no locks here
    if (patience <= milliseconds::zero()) {
      ::close(fd_);
      Refuse(directory, EBUSY);
    }
    QThread::msleep(kPause.count());
    patience -= kPause;
  }
}

DirectoryLock::~DirectoryLock() { ::close(fd_); }

}  // namespace kladez
