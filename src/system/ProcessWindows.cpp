#include <fcntl.h>
#include <io.h>

#include <QDir>
#include <QStandardPaths>
#include <cerrno>

#include "system/HandlesWindows.h"
#include "system/PathNames.h"
#include "system/Process.h"

namespace kladez::syscalls {

void KeepToOwner() {}  // a user's own folders are nobody else's already

// Beside the books and not among them: what lies with them is taken for theirs.
QString StateHome() {
  const QString set = qEnvironmentVariable("XDG_STATE_HOME");  // as tests do
  if (QDir::isAbsolutePath(set)) return QDir::fromNativeSeparators(set);
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/kladez-state");
}

bool IsRunning(qint64 program) {
  if (program <= 0) return true;
  const HANDLE opened = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(program));
  if (opened == nullptr) return ::GetLastError() != ERROR_INVALID_PARAMETER;
  const Handle process(opened);
  return ::WaitForSingleObject(process.Get(), 0) == WAIT_TIMEOUT;
}

int OpenToRead(const QString& path, QFile& file) {
  // Links are followed: it is a file that the user has named.
  const Handle opened(::CreateFileW(WidePath(EncodePath(path)).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!opened) return LastSystemError();
  FileStatus status;
  if (const int error = StatusOf(opened.Get(), &status)) return error;
  if (!status.IsFile()) return status.IsDirectory() ? EISDIR : ESPIPE;
  HANDLE own = INVALID_HANDLE_VALUE;
  if (!::DuplicateHandle(::GetCurrentProcess(), opened.Get(), ::GetCurrentProcess(), &own, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
    return LastSystemError();
  }
  const int descriptor = ::_open_osfhandle(reinterpret_cast<intptr_t>(own), _O_RDONLY | _O_BINARY);
  if (descriptor < 0) {
    ::CloseHandle(own);
    return EMFILE;
  }
  if (file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) return 0;
  ::_close(descriptor);
  return EIO;
}

void ForgetErrors() {
  errno = 0;
  ::SetLastError(0);
}

int LastError() {
  if (errno != 0) return errno;
  return ::GetLastError() != 0 ? LastSystemError() : EIO;
}

LockHandle::~LockHandle() {
  if (handle_ != -1) ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

int LockHandle::Open(const QByteArray& directory) {
  const DWORD attributes = ::GetFileAttributesW(WidePath(directory).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastSystemError();
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return ENOTDIR;
  directory_ = directory;
  return 0;
}

// A directory can't be locked here, so a file in it is held that nobody else may open, and that
// goes with its handle.
int LockHandle::TryLock() {
  const std::wstring path = WidePath(directory_ + "/.kladez-lock");
  const HANDLE opened =
      ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (opened != INVALID_HANDLE_VALUE) {
    handle_ = reinterpret_cast<qintptr>(opened);
    return 0;
  }
  const DWORD error = ::GetLastError();
  // One that is going away at this moment is refused, as is one in a directory without the right.
  const bool going = error == ERROR_ACCESS_DENIED &&
                     (::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES ||
                      ::GetLastError() != ERROR_FILE_NOT_FOUND);
  return error == ERROR_SHARING_VIOLATION || going ? EBUSY : ErrorOf(error);
}

}  // namespace kladez::syscalls
