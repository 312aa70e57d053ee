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

bool ReadWhole(int fd, QByteArray& bytes) {
  struct stat status;
  if (::fstat(fd, &status) < 0) return false;
  if (!S_ISREG(status.st_mode)) {
    errno = EISDIR;
    return false;
  }
  if (status.st_size > kLargestFile) {
    errno = EFBIG;
    return false;
  }
  bytes.resize(status.st_size);
  qsizetype done = 0;
  while (done < bytes.size()) {
    const ssize_t got = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
    if (got < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    if (got == 0) break;
    done += got;
  }
  bytes.truncate(done);
  return true;
}

bool ReadAt(int directory, const QByteArray& name, QByteArray& bytes) {
  // Without O_NONBLOCK a pipe in the place of a file would hang the program.
  const int fd =
      ::openat(directory, name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  if (fd < 0) return false;
  const bool good = ReadWhole(fd, bytes);
  const int error = errno;
  ::close(fd);
  errno = error;
  return good;
}

bool MayBeFile(int directory, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_REG;
  struct stat status;
  return ::fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISREG(status.st_mode);
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
  if (!ReadAt(AT_FDCWD, QFile::encodeName(file), bytes)) {
    ThrowFileError(u"Не удалось прочитать файл"_s, file, errno);
  }
  return bytes;
}

std::optional<QByteArray> DataDir::ReadIfAny(const QString& path) const {
  QByteArray bytes;
  if (!IgnoreErrors([&] { bytes = Read(path); })) return std::nullopt;
  return bytes;
}

QStringList DataDir::List(const QString& directory, QStringView extension) const {
  const QString path = directory.isEmpty() ? root_ : Resolve(directory);
  const Directory entries = OpenDirectory(path);
  if (!entries) ThrowFileError(u"Не удалось прочитать каталог"_s, path, errno);
  struct Entry {
    QString key;
    QString name;
  };
  std::vector<Entry> found;
  while (const dirent* entry = ::readdir(entries.get())) {
    QString name = QFile::decodeName(entry->d_name);
    if (!name.endsWith(extension, Qt::CaseInsensitive)) continue;
    if (!MayBeFile(::dirfd(entries.get()), *entry)) continue;
    found.push_back({FoldCase(name), std::move(name)});
  }
  std::sort(found.begin(), found.end(), [](const Entry& a, const Entry& b) {
    return a.key != b.key ? a.key < b.key : a.name < b.name;
  });
  QStringList names;
  names.reserve(static_cast<qsizetype>(found.size()));
  for (Entry& entry : found) names.append(std::move(entry.name));
  return names;
}

void DataDir::ForEachFile(const QString& directory, QStringView extension,
                          const Visitor& visit) const {
  const QStringList names = List(directory, extension);
  const QString path = directory.isEmpty() ? root_ : Resolve(directory);
  const Directory entries = OpenDirectory(path);
  if (!entries) ThrowFileError(u"Не удалось прочитать каталог"_s, path, errno);
  QByteArray bytes;  // one buffer for all files
  for (qsizetype i = 0; i < names.size(); ++i) {
    const bool good = ReadAt(::dirfd(entries.get()), QFile::encodeName(names[i]), bytes);
    const auto contents = good ? std::optional<QByteArrayView>(bytes) : std::nullopt;
    if (!visit({names[i], contents, i, names.size()})) return;
  }
}

bool IsPlainTreePath(const QString& path) {
  return path.endsWith(u'\\') && IsPlainPart(QStringView(path).chopped(1));
}

}  // namespace kladez
