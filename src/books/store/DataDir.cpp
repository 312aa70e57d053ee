#include "books/store/DataDir.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>

#include "books/store/Errors.h"
#include "books/store/FileNames.h"
#include "books/store/ReadAhead.h"
#include "formats/Ordering.h"
#include "system/OpenFile.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

using syscalls::OpenFile;

bool IsPlainPart(QStringView part) {
  return !part.isEmpty() && part != u"." && part != u".." && !part.contains(u'/') &&
         !part.contains(u'\\') && !part.contains(QChar(0));
}

// Files are read whole; a larger one is no file of a shop, and memory might not hold it.
constexpr qint64 kLargestFile = qint64{1} << 30;

// The spelling under which a name lies in a directory; the name itself where it does not.
QString SpellingIn(const QString& directory, const QString& name) {
  OpenFile open;
  if (open.Open(EncodePath(directory)) != 0) return name;
  const QString folded = FoldCase(name);
  QString found = name;
  open.ForEachEntry([&](const char* entry, FileStatus::Kind) {
    const QString spelling = DecodePath(entry);
    // Of several that differ in case only, the first in order, so that all machines agree.
    if (FoldCase(spelling) == folded && (found == name || spelling < found)) found = spelling;
  });
  return found;
}

// Reads into a buffer that many files share, and gives how much came. Nearly all documents come in
// the one read: an answer shorter than the room is the whole of a file.
std::optional<qsizetype> ReadShared(const OpenFile& directory, const char* name,
                                    QByteArray& buffer) {
  OpenFile file;
  if (file.OpenIn(directory, name) != 0) return std::nullopt;
  qsizetype done = std::max<qint64>(0, file.Read(buffer.data(), buffer.size()));
  if (0 < done && done < buffer.size()) return done;
  FileStatus status;
  if (file.Status(&status) != 0 || !status.IsFile() || status.size > kLargestFile) {
    return std::nullopt;
  }
  if (status.size >= buffer.size()) buffer.resize(status.size + 1);
  if (file.ReadOn(buffer, done) != 0) return std::nullopt;
  return done;
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
  const QString staged = FoldCase(QString::fromLatin1(kStagingName)) + u'.';
  if (QString(FoldCase(parts.first()) + u'.').startsWith(staged)) refuse(EINVAL);
  for (QStringView part : parts) {
    if (!IsPlainPart(part)) refuse(EINVAL);
    const QString parent = resolved;
    resolved += u'/' + part.toString();
    if (!exists) continue;
    FileStatus status;
    const auto look = [&] {
      return syscalls::LookThroughLinks(EncodePath(resolved), &status) == 0;
    };
    if (!look()) {
      resolved = parent + u'/' + SpellingIn(parent, part.toString());
      exists = look();
    }
    if (exists && status.kind == FileStatus::Kind::kLink) {
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
  OpenFile open;
  int error = open.Open(EncodePath(file));
  if (error == 0) error = open.ReadWhole(kLargestFile, bytes);
  if (error != 0) ThrowFileError(u"Не удалось прочитать файл"_s, file, error);
  return bytes;
}

std::optional<QByteArray> DataDir::ReadIfAny(const QString& path) const {
  QByteArray bytes;
  if (!IgnoreErrors([&] { bytes = Read(path); })) return std::nullopt;
  return bytes;
}

namespace {

// Opens a directory and lists its files. An empty path is the data directory itself.
void OpenListed(const DataDir& data, const QString& directory, QStringView extension,
                OpenFile& open, FileNames& names) {
  const QString path = directory.isEmpty() ? data.Root() : data.Resolve(directory);
  int error = open.Open(EncodePath(path));
  if (error == 0) error = names.Read(open, extension);
  if (error != 0) ThrowFileError(u"Не удалось прочитать каталог"_s, path, error);
}

}  // namespace

QStringList DataDir::List(const QString& directory, QStringView extension) const {
  OpenFile open;
  FileNames found;
  OpenListed(*this, directory, extension, open, found);
  QStringList names(found.Count());
  for (qsizetype i = 0; i < found.Count(); ++i) found.ToText(i, names[i]);
  return names;
}

void DataDir::ForEachFile(const QString& directory, QStringView extension, const Visitor& visit,
                          const Wanted& wanted) const {
  OpenFile open;
  FileNames names;
  OpenListed(*this, directory, extension, open, names);
  ReadAhead ahead(open, names.Count(), [&](qsizetype place) { return names.At(place); });
  constexpr qsizetype kRoom = 1 << 14;
  QByteArray buffer(kRoom, Qt::Uninitialized);
  QString name;
  for (qsizetype i = 0; i < names.Count(); ++i) {
    names.ToText(i, name);
    if (wanted && !wanted(name)) continue;
    ahead.Reached(i);
    const auto size = ReadShared(open, names.At(i), buffer);
    std::optional<QByteArrayView> bytes;
    if (size) bytes = QByteArrayView(buffer).first(*size);
    if (!visit({name, bytes, i, names.Count()})) return;
  }
}

bool IsPlainTreePath(const QString& path) {
  return path.endsWith(u'\\') && IsPlainPart(QStringView(path).chopped(1));
}

}  // namespace kladez
