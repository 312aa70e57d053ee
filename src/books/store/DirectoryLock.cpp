#include "books/store/DirectoryLock.h"

#include <QThread>
#include <cerrno>

#include "books/store/Errors.h"
#include "system/PathNames.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

[[noreturn]] void Refuse(const QByteArray& directory, int error) {
  ThrowFileError(u"Не удалось занять каталог для записи"_s, DecodePath(directory), error);
}

}  // namespace

DirectoryLock::DirectoryLock(const QByteArray& directory, milliseconds patience) {
  if (const int error = handle_.Open(directory)) Refuse(directory, error);
  constexpr milliseconds kPause(10);
  // Any other error: no locks here.
  while (handle_.TryLock() == EBUSY) {
    if (patience <= milliseconds::zero()) Refuse(directory, EBUSY);
    QThread::msleep(kPause.count());
    patience -= kPause;
  }
}

}  // namespace kladez
