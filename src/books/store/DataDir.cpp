#include "books/store/DataDir.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <memory>

#include "books/store/Errors.h"
#include "books/store/FileNames.h"
#include "books/store/ReadAhead.h"
#include "formats/Ordering.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

Directory OpenDirectory(const QString& path) {
  return Directory(::opendir(QFile::encodeName(path).constData()), &::closedir);
}

bool IsPlainPart(QStringView part) {
  return !part.isEmpty() && part != u"." && part != u".." && !part.contains(u'/') &&
         !part.contains(u'\\') && !part.contains(QChar(0));
}

// Files are read whole; a larger one is no file of a shop, and memory might not hold it.
constexpr off_t kLargestFile = off_t{1} << 30;

// The spelling under which a name lies in a directory; the name itself where it does not.
QString SpellingIn(const QString& directory, const QString& name) {
  const Directory entries = OpenDirectory(directory);
  if (!entries) return name;
  const QString folded = FoldCase(name);
  QString found = name;
  while (const dirent* entry = ::readdir(entries.get())) {
    const QString spelling = QFile::decodeName(entry->d_name);
    // Of several that differ in case only, the first in order, so that all machines agree.
    if (FoldCase(spelling) == folded && (found == name || spelling < found)) found = spelling;
  }
  return found;
}

// The length of what is open, nothing with errno set for what can't be read whole.
std::optional<qsizetype> LengthOf(int fd) {
  struct stat status;
  if (::fstat(fd, &status) < 0) return std::nullopt;
  if (!S_ISREG(status.st_mode)) {
    errno = EISDIR;
    return std::nullopt;
  }
  if (status.st_size > kLargestFile) {
    errno = EFBIG;
    return std::nullopt;
  }
  return status.st_size;
}

// Fills the bytes from `done` on, and adds to it what came; less than room is the end of the file.
bool ReadOn(int fd, QByteArray& bytes, qsizetype& done) {
  while (done < bytes.size()) {
    const ssize_t got = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return false;
    done += got;
    if (got == 0) break;
  }
  return true;
}

bool ReadWhole(int fd, QByteArray& bytes) {
  const auto length = LengthOf(fd);
  if (!length) return false;
  bytes.resize(*length);
  qsizetype done = 0;
  if (!ReadOn(fd, bytes, done)) return false;
  bytes.truncate(done);
  return true;
}

// Without O_NONBLOCK a pipe in the place of a file would hang the program.
int OpenAt(int directory, const char* name) {
  return ::openat(directory, name, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
}

// Reads into a buffer that many files share, and gives how much came. Nearly all documents come in
// the one read: an answer shorter than the room is the whole of a file.
std::optional<qsizetype> ReadShared(int fd, QByteArray& buffer) {
  const ssize_t first = ::read(fd, buffer.data(), static_cast<size_t>(buffer.size()));
  if (0 < first && first < buffer.size()) return first;
  const auto length = LengthOf(fd);
  if (!length) return std::nullopt;
  qsizetype done = std::max<ssize_t>(0, first);
  if (*length >= buffer.size()) buffer.resize(*length + 1);
  if (!ReadOn(fd, buffer, done)) return std::nullopt;
  return done;
}

// Does `read` with the file open; errno is that of the read where it fails.
template <typename Read>
auto WithFile(int directory, const char* name, Read read) -> decltype(read(0)) {
  const int fd = OpenAt(directory, name);
  if (fd < 0) return {};
  const auto result = read(fd);
  const int error = errno;
  ::close(fd);
  errno = error;
  return result;
}

}  // namespace

DataDir::DataDir(const QString& root) : root_(QFileInfo(root).canonicalFilePath()) {
  if (root_.isEmpty()) ThrowFileError(u"Не удалось открыть каталог данных"_s, root, ENOENT);
}

QString DataDir::Resolve(const QString& path) const {
  const auto refuse = [&](int error) {
    ThrowFileError(u"Путь не может лежать в каталоге данных"_s, path, error);
  };
  QStringView plain(path);
  if (plain.endsWith(u'\\')) plain.chop(1);
  QString resolved = root_;
  bool exists = true;
  const QList<QStringView> parts = plain.split(u'\\');
  if (FoldCase(parts.first()) == FoldCase(QString::fromLatin1(kStagingName))) refuse(EINVAL);
  for (QStringView part : parts) {
    if (!IsPlainPart(part)) refuse(EINVAL);
    const QString parent = resolved;
    resolved += u'/' + part.toString();
    if (!exists) continue;
    struct stat status;
    const auto look = [&] {
      return ::lstat(QFile::encodeName(resolved).constData(), &status) == 0;
    };
    if (!look()) {
      resolved = parent + u'/' + SpellingIn(parent, part.toString());
      exists = look();
    }
    if (exists && S_ISLNK(status.st_mode)) {
      const QString target = QFileInfo(resolved).canonicalFilePath();
      if (!target.startsWith(root_ + u'/') || !QFileInfo::exists(resolved)) refuse(ELOOP);
      resolved = target;
    }
  }
  return resolved;
}

bool DataDir::FileExists(const QString& path) const {
  bool exists = false;
  return IgnoreErrors([&] { exists = QFileInfo(Resolve(path)).isFile(); }) && exists;
}

bool DataDir::DirectoryExists(const QString& path) const {
  bool exists = false;
  return IgnoreErrors([&] { exists = QFileInfo(Resolve(path)).isDir(); }) && exists;
}

QByteArray DataDir::Read(const QString& path) const {
  const QString file = Resolve(path);
  QByteArray bytes;
  const auto read = [&](int fd) { return ReadWhole(fd, bytes); };
  if (!WithFile(AT_FDCWD, QFile::encodeName(file).constData(), read)) {
    ThrowFileError(u"Не удалось прочитать файл"_s, file, errno);
  }
  return bytes;
}

std::optional<QByteArray> DataDir::ReadIfAny(const QString& path) const {
  QByteArray bytes;
  if (!IgnoreErrors([&] { bytes = Read(path); })) return std::nullopt;
  return bytes;
}

namespace {

// An empty path is the data directory itself.
Directory OpenListed(const DataDir& data, const QString& directory) {
  const QString path = directory.isEmpty() ? data.Root() : data.Resolve(directory);
  Directory entries = OpenDirectory(path);
  if (!entries) ThrowFileError(u"Не удалось прочитать каталог"_s, path, errno);
  return entries;
}

}  // namespace

QStringList DataDir::List(const QString& directory, QStringView extension) const {
  const Directory entries = OpenListed(*this, directory);
  const FileNames found(entries.get(), extension);
  QStringList names(found.Count());
  for (qsizetype i = 0; i < found.Count(); ++i) found.ToText(i, names[i]);
  return names;
}

void DataDir::ForEachFile(const QString& directory, QStringView extension, const Visitor& visit,
                          const Wanted& wanted) const {
  const Directory entries = OpenListed(*this, directory);
  const FileNames names(entries.get(), extension);
  const int fd = ::dirfd(entries.get());
  ReadAhead ahead(fd, names.Count(), [&](qsizetype place) { return names.At(place); });
  constexpr qsizetype kRoom = 1 << 14;
  QByteArray buffer(kRoom, Qt::Uninitialized);
  QString name;
  for (qsizetype i = 0; i < names.Count(); ++i) {
    names.ToText(i, name);
    if (wanted && !wanted(name)) continue;
    ahead.Reached(i);
    const auto size = WithFile(fd, names.At(i), [&](int file) { return ReadShared(file, buffer); });
    std::optional<QByteArrayView> bytes;
    if (size) bytes = QByteArrayView(buffer).first(*size);
    if (!visit({name, bytes, i, names.Count()})) return;
  }
}

bool IsPlainTreePath(const QString& path) {
  return path.endsWith(u'\\') && IsPlainPart(QStringView(path).chopped(1));
}

}  // namespace kladez
