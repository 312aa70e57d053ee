#include <dirent.h>
#include <fcntl.h>
#include <linux/openat2.h>
#include <stdio.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QList>
#include <QString>
#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include "system/FaultHooks.h"
#include "system/StatusPosix.h"

namespace kladez::syscalls {
namespace {

int Of(qintptr handle) { return static_cast<int>(handle); }

int Result(int returned) { return returned < 0 ? errno : 0; }

// The result of a change, told to the recorder where it was made.
int Result(int returned, const Made& made) {
  if (returned < 0) return errno;
  TellMade(made);
  return 0;
}

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

bool& OldKernel() {
  static bool old = false;
  return old;
}

// Part by part, for kernels before 5.6.
int OpenByParts(const QByteArray& path, int flags, mode_t mode) {
  int directory = ::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
  const QList<QByteArray> parts = path.split('/');
  for (qsizetype i = 1; i < parts.size() && directory >= 0; ++i) {
    const bool last = i + 1 == parts.size();
    const int how = last ? flags : O_PATH | O_DIRECTORY;
    const int next = ::openat(directory, parts[i].constData(), how | O_NOFOLLOW | O_CLOEXEC, mode);
    const int error = errno;
    ::close(directory);
    directory = next;
    errno = error;
  }
  return directory;
}

// Opens what lies at a path that no link is a part of; -1 and errno.
int OpenPlain(const QByteArray& path, int flags, mode_t mode) {
  if (!OldKernel()) {
    open_how how = {};
    how.flags = static_cast<quint64>(flags | O_NOFOLLOW | O_CLOEXEC);
    how.mode = (flags & O_CREAT) != 0 ? mode : 0;
    how.resolve = RESOLVE_NO_SYMLINKS;
    const long fd = ::syscall(SYS_openat2, AT_FDCWD, path.constData(), &how, sizeof how);
    // Some sandboxes refuse what they don't know.
    if (fd >= 0 || (errno != ENOSYS && errno != EPERM)) return static_cast<int>(fd);
  }
  return OpenByParts(path, flags, mode);
}

// A name in the directory that it lies in.
class Place {
 public:
  explicit Place(const QByteArray& path)
      : slash_(path.lastIndexOf('/')),
        name_(path.mid(slash_ + 1)),
        directory_(
            OpenPlain(slash_ > 0 ? path.left(slash_) : QByteArray("/"), O_PATH | O_DIRECTORY, 0)),
        error_(directory_ ? 0 : errno) {}
  int Error() const { return error_; }
  int Directory() const { return directory_.Get(); }
  const char* Name() const { return name_.constData(); }

 private:
  const qsizetype slash_;
  const QByteArray name_;
  const Descriptor directory_;
  const int error_;
};

int RenameBetween(const QByteArray& from, const QByteArray& to, unsigned flags) {
  const Place source(from), target(to);
  if (source.Error() != 0) return source.Error();
  if (target.Error() != 0) return target.Error();
  return Result(
      ::renameat2(source.Directory(), source.Name(), target.Directory(), target.Name(), flags),
      {.call = "rename", .path = to, .from = from});
}

int WriteAll(int fd, QByteArrayView bytes, const QByteArray& path) {
  constexpr qsizetype kPiece = 1 << 20;
  do {
    if (const int error = Fault("write", path)) return error;
    const qsizetype size = std::min(bytes.size(), kPiece);
    const ssize_t written = ::write(fd, bytes.data(), static_cast<size_t>(size));
    if (written < 0 && errno != EINTR) return errno;
    if (written <= 0) continue;
    Result(0, {.call = "write", .path = path, .bytes = bytes.first(written)});
    bytes = bytes.sliced(written);
  } while (!bytes.isEmpty());
  return 0;
}

int CopyBytes(int in, int out, const QByteArray& to) {
  std::array<char, 1 << 16> buffer;
  while (true) {
    const ssize_t got = ::read(in, buffer.data(), buffer.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return Result(static_cast<int>(got));
    if (const int error = WriteAll(out, {buffer.data(), got}, to)) return error;
  }
}

int CopyFile(const QByteArray& from, const QByteArray& to) {
  Descriptor in(OpenPlain(from, O_RDONLY | O_NONBLOCK, 0));
  if (!in) return errno;
  struct stat status;
  if (::fstat(in.Get(), &status) < 0) return errno;
  if (const int error = Fault("create", to)) return error;
  const Descriptor out(OpenPlain(to, O_WRONLY | O_CREAT | O_EXCL, 0600));
  if (const int error = Result(out.Get(), {.call = "create", .path = to})) return error;
  ::fchmod(out.Get(), status.st_mode & 0777);
  if (const int error = CopyBytes(in.Get(), out.Get(), to)) return error;
  if (const int error = Fault("fsync", to)) return error;
  return Result(::fsync(out.Get()), {.call = "fsync", .path = to});
}

int RemoveAt(int directory, const QByteArray& name, const QByteArray& path);

// All that a directory holds. It is opened before it is listed, and each entry taken by its name in
// it: nothing that is put in its place meanwhile leads out.
int Empty(int parent, const QByteArray& name, const QByteArray& path) {
  const int fd =
      ::openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (fd < 0) return errno;
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::fdopendir(fd), &::closedir);
  if (!directory) return errno;
  while (const dirent* entry = ::readdir(directory.get())) {
    const QByteArray inner(entry->d_name);
    if (inner == "." || inner == "..") continue;
    if (const int error = RemoveAt(fd, inner, path + '/' + inner)) return error;
  }
  return 0;
}

int RemoveAt(int directory, const QByteArray& name, const QByteArray& path) {
  struct stat status;
  if (::fstatat(directory, name.constData(), &status, AT_SYMLINK_NOFOLLOW) < 0) {
    return errno == ENOENT ? 0 : errno;
  }
  if (!S_ISDIR(status.st_mode)) {
    if (const int error = Fault("unlink", path)) return error;
    return Result(::unlinkat(directory, name.constData(), 0), {.call = "unlink", .path = path});
  }
  ::fchmodat(directory, name.constData(), 0700, AT_SYMLINK_NOFOLLOW);
  if (const int error = Empty(directory, name, path)) return error;
  if (const int error = Fault("rmdir", path)) return error;
  return Result(::unlinkat(directory, name.constData(), AT_REMOVEDIR),
                {.call = "rmdir", .path = path});
}

}  // namespace

void PretendOldKernel(bool old) { OldKernel() = old; }

NewFile::~NewFile() {
  if (handle_ >= 0) ::close(Of(handle_));
}

int NewFile::Create(unsigned mode) {
  if (const int error = Fault("create", path_)) return error;
  handle_ = OpenPlain(path_, O_WRONLY | O_CREAT | O_EXCL, 0666);
  if (const int error = Result(Of(handle_), {.call = "create", .path = path_})) return error;
  if (mode != 0) ::fchmod(Of(handle_), mode);  // file systems without modes refuse, and need none
  return 0;
}

int NewFile::Write(QByteArrayView bytes) { return WriteAll(Of(handle_), bytes, path_); }

int NewFile::Sync() {
  if (const int error = Fault("fsync", path_)) return error;
  return Result(::fsync(Of(handle_)), {.call = "fsync", .path = path_});
}

void NewFile::SetTime(qint64 seconds) {
  const timespec time = {.tv_sec = seconds, .tv_nsec = 0};
  const std::array<timespec, 2> times = {time, time};
  ::futimens(Of(handle_), times.data());
}

int SyncDirectory(const QByteArray& path) {
  if (const int error = Fault("fsync", path)) return error;
  const Descriptor directory(OpenPlain(path, O_RDONLY | O_DIRECTORY, 0));
  if (!directory) return errno;
  const int error = Result(::fsync(directory.Get()), {.call = "fsync", .path = path});
  return error == EINVAL ? 0 : error;  // some file systems cannot sync a directory
}

int Rename(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("rename", to)) return error;
  return RenameBetween(from, to, 0);
}

int RenameToNew(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("rename", to)) return error;
  const int error = RenameBetween(from, to, RENAME_NOREPLACE);
  if (error != EINVAL && error != ENOSYS) return error;
  // The file system knows no such flag: the test and the rename are two steps there.
  return Exists(to) ? EEXIST : RenameBetween(from, to, 0);
}

int MoveAway(const QByteArray& from, const QByteArray& to) {
  const int error = Rename(from, to);
  FileStatus status;
  if (error != EACCES || Look(from, &status) != 0 || !status.IsDirectory()) return error;
  // A directory's own entry of its parent is written by the move, which takes the right to write.
  const Place place(from);
  const auto set_mode = [&](mode_t mode) {
    return ::fchmodat(place.Directory(), place.Name(), mode & 07777, AT_SYMLINK_NOFOLLOW);
  };
  if (set_mode(status.mode | 0700) < 0) return errno;
  const int again = Rename(from, to);
  if (again != 0) set_mode(status.mode);
  return again;
}

int KeepCopy(const QByteArray& of, const QByteArray& as) {
  int error = Fault("link", as);
  const Place source(of), target(as);
  for (const Place* place : {&source, &target}) {
    if (error == 0) error = place->Error();
  }
  if (error == 0) {
    error =
        Result(::linkat(source.Directory(), source.Name(), target.Directory(), target.Name(), 0),
               {.call = "link", .path = as, .from = of});
  }
  // Memory sticks have no links, and some systems allow none to files of others.
  const bool no_links =
      error == EPERM || error == EMLINK || error == EOPNOTSUPP || error == ENOSYS || error == EXDEV;
  return no_links ? CopyFile(of, as) : error;
}

int CopyNewFile(const QByteArray& from, const QByteArray& to) {
  if (const int error = Fault("copy", from)) return error;
  // Without O_NONBLOCK a pipe put in the place of the file meanwhile would hang the program.
  const Descriptor in(OpenPlain(from, O_RDONLY | O_NONBLOCK, 0));
  if (!in) return errno;
  struct stat status;
  if (::fstat(in.Get(), &status) < 0) return errno;
  const Descriptor out(OpenPlain(to, O_WRONLY | O_CREAT | O_EXCL, 0666));
  if (const int error = Result(out.Get(), {.call = "create", .path = to})) return error;
  if (const int error = CopyBytes(in.Get(), out.Get(), to)) return error;
  const std::array<timespec, 2> times = {status.st_atim, status.st_mtim};
  ::futimens(out.Get(), times.data());  // a file system that keeps no times is no fault
  return 0;
}

int SyncFileSystem(const QByteArray& path) {
  if (const int error = Fault("syncfs", path)) return error;
  const Descriptor directory(OpenPlain(path, O_RDONLY | O_DIRECTORY, 0));
  if (!directory) return errno;
  return Result(::syncfs(directory.Get()), {.call = "syncfs", .path = path});
}

int Unlink(const QByteArray& path) {
  if (const int error = Fault("unlink", path)) return error;
  const Place place(path);
  if (place.Error() != 0) return place.Error();
  return Result(::unlinkat(place.Directory(), place.Name(), 0), {.call = "unlink", .path = path});
}

int MakeDirectory(const QByteArray& path) {
  if (const int error = Fault("mkdir", path)) return error;
  const Place place(path);
  if (place.Error() != 0) return place.Error();
  return Result(::mkdirat(place.Directory(), place.Name(), 0777), {.call = "mkdir", .path = path});
}

int RemoveDirectory(const QByteArray& path) {
  if (const int error = Fault("rmdir", path)) return error;
  const Place place(path);
  if (place.Error() != 0) return place.Error();
  return Result(::unlinkat(place.Directory(), place.Name(), AT_REMOVEDIR),
                {.call = "rmdir", .path = path});
}

int RemoveTree(const QByteArray& path) {
  const Place place(path);
  if (place.Error() != 0) return place.Error() == ENOENT ? 0 : place.Error();
  return RemoveAt(place.Directory(), place.Name(), path);
}

int Look(const QByteArray& path, FileStatus* status) {
  const Place place(path);
  if (place.Error() != 0) return place.Error();
  struct stat found;
  if (::fstatat(place.Directory(), place.Name(), &found, AT_SYMLINK_NOFOLLOW) < 0) return errno;
  *status = StatusOf(found);
  return 0;
}

int LookThroughLinks(const QByteArray& path, FileStatus* status) {
  struct stat found;
  if (::lstat(path.constData(), &found) < 0) return errno;
  *status = StatusOf(found);
  return 0;
}

bool Exists(const QByteArray& path) {
  struct stat status;
  return ::lstat(path.constData(), &status) == 0;
}

int ReadPlainFile(const QByteArray& path, qint64 most, QByteArray* bytes) {
  // Without O_NONBLOCK a pipe would hang the program.
  const Descriptor in(OpenPlain(path, O_RDONLY | O_NONBLOCK, 0));
  if (!in) return errno;
  struct stat status;
  if (::fstat(in.Get(), &status) < 0) return errno;
  if (!S_ISREG(status.st_mode)) return EINVAL;
  if (status.st_size > most) return EFBIG;
  bytes->resize(status.st_size);
  qsizetype done = 0;
  while (done < bytes->size()) {
    const ssize_t got =
        ::read(in.Get(), bytes->data() + done, static_cast<size_t>(bytes->size() - done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno;
    if (got == 0) break;
    done += got;
  }
  bytes->truncate(done);
  return 0;
}

int WriteRefusal(const QByteArray& path) {
  FileStatus status;
  if (const int error = Look(path, &status)) return error;
  if (status.kind == FileStatus::Kind::kLink) return ELOOP;
  if ((status.mode & 0222) == 0) return EACCES;
  return ::access(path.constData(), W_OK) < 0 ? errno : 0;
}

}  // namespace kladez::syscalls
