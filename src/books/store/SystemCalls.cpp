#include "books/store/SystemCalls.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QString>
#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

namespace kladez::syscalls {
namespace {

FaultHook& Hook() {
  static FaultHook hook;
  return hook;
}

int Fault(std::string_view call, const QByteArray& path) { return Hook() ? Hook()(call, path) : 0; }

int Result(int returned) { return returned < 0 ? errno : 0; }

// Keeps a descriptor open for the length of a call.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return fd_; }
  explicit operator bool() const { return fd_ >= 0; }

 private:
  int fd_;
};

int WriteAll(int fd, QByteArrayView bytes, const QByteArray& path) {
  constexpr qsizetype kPiece = 1 << 20;
  do {
    if (const int error = Fault("write", path)) return error;
    const qsizetype size = std::min(bytes.size(), kPiece);
    const ssize_t written = ::write(fd, bytes.data(), static_cast<size_t>(size));
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) bytes = bytes.sliced(written);
  } while (!bytes.isEmpty());
  return 0;
}

int CopyBytes(int in, int out, const QByteArray& to) {
  std::array<char, 1 << 16> buffer;
  while (true) {
    const ssize_t got = ::read(in, buffer.data(), buffer.size());
    if (got < 0) return errno;
    if (got == 0) return 0;
    if (const int error = WriteAll(out, {buffer.data(), got}, to)) return error;
  }
}

int CopyFile(const QByteArray& from, const QByteArray& to) {
  const Descriptor in(::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
  if (!in) return errno;
  struct stat status;
  if (::fstat(in.Get(), &status) < 0) return errno;
  const Descriptor out(::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  if (!out) return errno;
  ::fchmod(out.Get(), status.st_mode & 0777);
  if (const int error = CopyBytes(in.Get(), out.Get(), to)) return error;
  return Result(::fsync(out.Get()));
}

}  // namespace

void SetFaultHook(FaultHook hook) { Hook() = std::move(hook); }

NewFile::~NewFile() {
  if (fd_ >= 0) ::close(fd_);
}

int NewFile::Create(unsigned mode) {
  if (const int error = Fault("create", path_)) return error;
  fd_ = ::open(path_.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666);
  if (fd_ < 0) return errno;
  if (mode != 0) ::fchmod(fd_, mode);  // file systems without modes refuse, and need none
  return 0;
}

int NewFile::Write(QByteArrayView bytes) { return WriteAll(fd_, bytes, path_); }

int NewFile::Sync() {
  if (const int error = Fault("fsync", path_)) return error;
  return Result(::fsync(fd_));
}

int WriteNewFile(const QByteArray& path, QByteArrayView bytes, unsigned mode) {
  NewFile file(path);
  if (const int error = file.Create(mode)) return error;
  if (const int error = file.Write(bytes)) return error;
  return file.Sync();
}

int SyncDirectory(const QByteArray& path) {
  if (const int error = Fault("fsync", path)) return error;
  const Descriptor directory(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!directory) return errno;
  const int error = Result(::fsync(directory.Get()));
  return error == EINVAL ? 0 : error;  // some file systems cannot sync a directory
}

int Rename(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("rename", to)) return error;
  return Result(::rename(from.constData(), to.constData()));
}

int RenameToNew(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("rename", to)) return error;
  const int error =
      Result(::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE));
  if (error != EINVAL) return error;
  // The file system knows no such flag: the test and the rename are two steps there.
  struct stat there;
  if (::lstat(to.constData(), &there) == 0) return EEXIST;
  return Result(::rename(from.constData(), to.constData()));
}

int MoveAway(const QByteArray& from, const QByteArray& to) {
  const int error = Rename(from, to);
  struct stat status;
  if (error != EACCES || ::lstat(from.constData(), &status) < 0 || !S_ISDIR(status.st_mode)) {
    return error;
  }
  // A directory's own entry of its parent is written by the move, which takes the right to write.
  if (::chmod(from.constData(), status.st_mode | 0700) < 0) return errno;
  const int again = Rename(from, to);
  if (again != 0) ::chmod(from.constData(), status.st_mode);
  return again;
}

int KeepCopy(const QByteArray& of, const QByteArray& as) {
  int error = Fault("link", as);
  if (error == 0) error = Result(::link(of.constData(), as.constData()));
  // Memory sticks have no links, and some systems allow none to files of others.
  const bool no_links = error == EPERM || error == EMLINK || error == ENOTSUP || error == EXDEV;
  return no_links ? CopyFile(of, as) : error;
}

int CopyNewFile(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("copy", from)) return error;
  // Without O_NONBLOCK a pipe put in the place of the file meanwhile would hang the program.
  const Descriptor in(::open(from.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
  if (!in) return errno;
  struct stat status;
  if (::fstat(in.Get(), &status) < 0) return errno;
  const Descriptor out(::open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!out) return errno;
  if (const int error = CopyBytes(in.Get(), out.Get(), to)) return error;
  const std::array<timespec, 2> times = {status.st_atim, status.st_mtim};
  ::futimens(out.Get(), times.data());  // a file system that keeps no times is no fault
  return 0;
}

int SyncFileSystem(const QByteArray& path) {
  if (const int error = Fault("syncfs", path)) return error;
  const Descriptor directory(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!directory) return errno;
  return Result(::syncfs(directory.Get()));
}

int Unlink(const QByteArray& path) {
  if (const int error = Fault("unlink", path)) return error;
  return Result(::unlink(path.constData()));
}

int MakeDirectory(const QByteArray& path) {
  if (const int error = Fault("mkdir", path)) return error;
  return Result(::mkdir(path.constData(), 0777));
}

int RemoveDirectory(const QByteArray& path) {
  if (const int error = Fault("rmdir", path)) return error;
  return Result(::rmdir(path.constData()));
}

bool Exists(const QByteArray& path) {
  struct stat status;
  return ::lstat(path.constData(), &status) == 0;
}

int WriteRefusal(const QByteArray& path) {
  struct stat status;
  if (::stat(path.constData(), &status) < 0) return errno;
  if ((status.st_mode & 0222) == 0) return EACCES;
  return ::access(path.constData(), W_OK) < 0 ? errno : 0;
}

int RemoveTree(const QByteArray& path) {
  struct stat status;
  if (::lstat(path.constData(), &status) < 0) return errno == ENOENT ? 0 : errno;
  if (!S_ISDIR(status.st_mode)) return Unlink(path);
  ::chmod(path.constData(), 0700);
  {
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(path.constData()), &::closedir);
    if (!directory) return errno;
    while (const dirent* entry = ::readdir(directory.get())) {
      const QByteArray name(entry->d_name);
      if (name == "." || name == "..") continue;
      if (const int error = RemoveTree(path + "/" + name)) return error;
    }
  }
  return RemoveDirectory(path);
}

}  // namespace kladez::syscalls
