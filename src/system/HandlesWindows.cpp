#include "system/HandlesWindows.h"

#include <QDir>
#include <cerrno>
#include <iterator>

#include "system/ErrorNumbers.h"
#include "system/PathNames.h"

namespace kladez::syscalls {
namespace {

// Not in every compiler's headers.
constexpr DWORD kVirusFound = 225;
constexpr DWORD kVirusDeleted = 226;
constexpr DWORD kQuotaExceeded = 1295;

struct Meaning {
  DWORD error;
  int number;
};

constexpr Meaning kMeanings[] = {
    {ERROR_FILE_NOT_FOUND, ENOENT},
    {ERROR_PATH_NOT_FOUND, ENOENT},
    {ERROR_TOO_MANY_OPEN_FILES, EMFILE},
    {ERROR_ACCESS_DENIED, EACCES},
    {kVirusFound, EACCES},
    {kVirusDeleted, EACCES},
    {ERROR_PRIVILEGE_NOT_HELD, EPERM},
    {ERROR_NOT_ENOUGH_MEMORY, ENOMEM},
    {ERROR_OUTOFMEMORY, ENOMEM},
    {ERROR_INVALID_DRIVE, ENODEV},
    {ERROR_NOT_READY, ENODEV},
    {ERROR_BAD_NETPATH, ENODEV},
    {ERROR_BAD_NET_NAME, ENODEV},
    {ERROR_DEV_NOT_EXIST, ENODEV},
    {ERROR_NETNAME_DELETED, ENODEV},
    {ERROR_DEVICE_NOT_CONNECTED, ENODEV},
    {ERROR_NOT_SAME_DEVICE, EXDEV},
    {ERROR_WRITE_PROTECT, EROFS},
    {ERROR_SHARING_VIOLATION, EBUSY},
    {ERROR_LOCK_VIOLATION, EBUSY},
    {ERROR_DELETE_PENDING, EBUSY},
    {ERROR_HANDLE_DISK_FULL, ENOSPC},
    {ERROR_DISK_FULL, ENOSPC},
    {kQuotaExceeded, EDQUOT},
    {ERROR_INVALID_FUNCTION, ENOSYS},
    {ERROR_NOT_SUPPORTED, EOPNOTSUPP},
    {ERROR_FILE_EXISTS, EEXIST},
    {ERROR_ALREADY_EXISTS, EEXIST},
    {ERROR_INVALID_NAME, EINVAL},
    {ERROR_BAD_PATHNAME, EINVAL},
    {ERROR_INVALID_PARAMETER, EINVAL},
    {ERROR_DIR_NOT_EMPTY, ENOTEMPTY},
    {ERROR_FILENAME_EXCED_RANGE, ENAMETOOLONG},
    {ERROR_DIRECTORY, ENOTDIR},
    {ERROR_TOO_MANY_LINKS, EMLINK},
    {ERROR_FILE_TOO_LARGE, EFBIG},
    {ERROR_SEM_TIMEOUT, ETIMEDOUT},
    {ERROR_CANCELLED, ECANCELED},
};

// Windows counts tenths of microseconds since 1601.
constexpr qint64 kFrom1601To1970 = 116'444'736'000'000'000;

qint64 FromSystemTime(const LARGE_INTEGER& time) { return (time.QuadPart - kFrom1601To1970) * 100; }

}  // namespace

void SetModified(HANDLE file, qint64 nanoseconds) {
  FILE_BASIC_INFO times = {};  // what is 0 stays as it is
  times.LastWriteTime.QuadPart = nanoseconds / 100 + kFrom1601To1970;
  ::SetFileInformationByHandle(file, FileBasicInfo, &times, sizeof times);
}

std::wstring WidePath(const QByteArray& path) {
  const QString native = QDir::toNativeSeparators(QDir::cleanPath(DecodePath(path)));
  if (native.startsWith(u"\\\\")) return L"\\\\?\\UNC\\" + native.mid(2).toStdWString();
  return L"\\\\?\\" + native.toStdWString();
}

int ErrorOf(DWORD error) {
  for (const Meaning& meaning : kMeanings) {
    if (meaning.error == error) return meaning.number;
  }
  return EIO;
}

int LastSystemError() { return ErrorOf(::GetLastError()); }

int OpenHandle(const QByteArray& path, DWORD access, DWORD disposition, Handle* handle) {
  const std::wstring wide = WidePath(path);
  HANDLE opened = INVALID_HANDLE_VALUE;
  const int error = Patiently([&] {
    opened = ::CreateFileW(
        wide.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        disposition, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    return opened != INVALID_HANDLE_VALUE ? 0 : ::GetLastError();
  });
  std::destroy_at(handle);
  std::construct_at(handle, opened);
  return error;
}

bool LeadsElsewhere(DWORD attributes, DWORD tag) {
  return (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(tag);
}

int StatusOf(HANDLE handle, FileStatus* status) {
  using Kind = FileStatus::Kind;
  if (::GetFileType(handle) != FILE_TYPE_DISK) {
    *status = {};
    return 0;
  }
  BY_HANDLE_FILE_INFORMATION about;
  FILE_BASIC_INFO times;
  FILE_ATTRIBUTE_TAG_INFO tag = {};
  if (!::GetFileInformationByHandle(handle, &about) ||
      !::GetFileInformationByHandleEx(handle, FileBasicInfo, &times, sizeof times)) {
    return LastSystemError();
  }
  const DWORD attributes = about.dwFileAttributes;
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
      !::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &tag, sizeof tag)) {
    return LastSystemError();
  }
  const bool directory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const bool read_only = !directory && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  *status = {.kind = LeadsElsewhere(attributes, tag.ReparseTag) ? Kind::kLink
                     : directory                                ? Kind::kDirectory
                                                                : Kind::kFile,
             .mode = directory   ? 0777u
                     : read_only ? 0444u
                                 : 0666u,
             .device = about.dwVolumeSerialNumber,
             .inode = quint64{about.nFileIndexHigh} << 32 | about.nFileIndexLow,
             .size = qint64{about.nFileSizeHigh} << 32 | about.nFileSizeLow,
             .modified = FromSystemTime(times.LastWriteTime),
             .changed = FromSystemTime(times.ChangeTime)};
  return 0;
}

int RefuseLinks(const QByteArray& path) {
  for (qsizetype slash = path.indexOf('/', path.startsWith("//") ? path.indexOf('/', 2) + 1 : 3);
       slash > 0; slash = path.indexOf('/', slash + 1)) {
    const QByteArray part = path.left(slash);
    const DWORD attributes = ::GetFileAttributesW(WidePath(part).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return LastSystemError();
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return ENOTDIR;
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) continue;
    Handle directory;
    FileStatus status;
    int error = OpenHandle(part, FILE_READ_ATTRIBUTES, OPEN_EXISTING, &directory);
    if (error == 0) error = StatusOf(directory.Get(), &status);
    if (error != 0) return error;
    if (status.kind == FileStatus::Kind::kLink) return ELOOP;
  }
  return 0;
}

}  // namespace kladez::syscalls
