#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "system/OpenFile.h"
#include "system/StatusPosix.h"

namespace kladez::syscalls {
namespace {

// Without O_NONBLOCK a pipe in the place of a file would hang the program.
int OpenAt(int directory, const char* name) {
  return ::openat(directory, name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
}

FileStatus::Kind KindOf(int directory, const dirent& entry) {
  using Kind = FileStatus::Kind;
  switch (entry.d_type) {
    case DT_REG:
      return Kind::kFile;
    case DT_DIR:
      return Kind::kDirectory;
    case DT_LNK:
      return Kind::kLink;
    case DT_UNKNOWN: {
      struct stat found;
      const bool seen = ::fstatat(directory, entry.d_name, &found, AT_SYMLINK_NOFOLLOW) == 0;
      return seen ? StatusOf(found).kind : Kind::kOther;
    }
    default:
      return Kind::kOther;
  }
}

}  // namespace

OpenFile::~OpenFile() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

int OpenFile::Open(const QByteArray& path) {
  handle_ = OpenAt(AT_FDCWD, path.constData());
  return handle_ < 0 ? errno : 0;
}

int OpenFile::OpenIn(const OpenFile& directory, const char* name) {
  handle_ = OpenAt(static_cast<int>(directory.handle_), name);
  return handle_ < 0 ? errno : 0;
}

int OpenFile::Status(FileStatus* status) const {
  struct stat found;
  if (::fstat(static_cast<int>(handle_), &found) < 0) return errno;
  *status = StatusOf(found);
  return 0;
}

qint64 OpenFile::Read(char* into, qint64 size) const {
  while (true) {
    const ssize_t got = ::read(static_cast<int>(handle_), into, static_cast<size_t>(size));
    if (got >= 0) return got;
    if (errno != EINTR) return -errno;
  }
}

int OpenFile::ForEachEntry(const Visitor& visit) const {
  // Opened anew, as the place reached in a directory belongs to a descriptor.
  const int again =
      ::openat(static_cast<int>(handle_), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW);
  if (again < 0) return errno;
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(::fdopendir(again), &::closedir);
  if (!entries) {
    const int error = errno;
    ::close(again);
    return error;
  }
  while (true) {
    errno = 0;
    const dirent* entry = ::readdir(entries.get());
    if (entry == nullptr) return errno;
    const char* name = entry->d_name;
    if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
    visit(name, KindOf(again, *entry));
  }
}

qint64 WaitsOfThread() {
  struct rusage usage;
  return ::getrusage(RUSAGE_THREAD, &usage) == 0 ? usage.ru_nvcsw : 0;
}

}  // namespace kladez::syscalls
