#include "books/copies/CopyFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <cerrno>
#include <set>

#include "books/store/Errors.h"
#include "system/PathNames.h"
#include "system/Process.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kCopyExtension = u".tar.zst"_s;
// A day and a week are kept whole weeks of, months for ten years.
constexpr qint64 kDaysOfDays = 7;
constexpr qint64 kDaysOfWeeks = 31;
constexpr qint64 kDaysOfMonths = 3653;

// Of all copies with the same number in the same span one stays.
enum class Span { kToday, kDay, kWeek, kMonth, kOver };

std::pair<Span, qint64> SpanOf(QDate day, QDate today) {
  const qint64 age = day.daysTo(today);
  if (age <= 0) return {Span::kToday, 0};
  if (age <= kDaysOfDays) return {Span::kDay, day.toJulianDay()};
  if (age <= kDaysOfWeeks) return {Span::kWeek, day.toJulianDay() / 7};
  if (age <= kDaysOfMonths) return {Span::kMonth, day.year() * 12 + day.month()};
  return {Span::kOver, 0};
}

QByteArray Made(const QString& directory) {
  if (!QDir().mkpath(directory)) {
    ThrowFileError(u"Не удалось создать каталог для копий"_s, directory, EACCES);
  }
  return EncodePath(QFileInfo(directory).canonicalFilePath());
}

// The end of a plain file; nothing of anything else.
QByteArray EndOf(const QFileInfo& file) {
  QFile in(file.filePath());
  if (!file.isFile() || file.isSymLink() || file.size() < kNoteFrame) return {};
  if (!in.open(QIODevice::ReadOnly) || !in.seek(file.size() - kNoteFrame)) return {};
  return in.read(kNoteFrame);
}

void CheckCopied(int error, const QByteArray& path) {
  if (error != 0) {
    ThrowFileError(u"Не удалось записать копию базы во второе место"_s, DecodePath(path), error);
  }
}

}  // namespace

QByteArray StateDirectory() { return Made(syscalls::StateHome() + u"/kladez"_s); }

QByteArray CopiesFolder(const DataDir& data) {
  QString folder = DecodePath(StateDirectory()) + u"/copies"_s;
  const QString usual =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/kladez"_s;
  if (data.Root() != QFileInfo(usual).canonicalFilePath()) {
    const QByteArray own =
        QCryptographicHash::hash(EncodePath(data.Root()), QCryptographicHash::Sha256);
    folder += u"/%1-%2"_s.arg(QFileInfo(data.Root()).fileName(),
                              QString::fromLatin1(own.toHex().first(8)));
  }
  return Made(folder);
}

std::vector<StoredCopy> ListCopies(const QByteArray& folder) {
  std::vector<StoredCopy> copies;
  const QDir directory(DecodePath(folder));
  for (const QFileInfo& file : directory.entryInfoList({u'*' + kCopyExtension}, QDir::Files)) {
    if (auto note = ReadNote(EndOf(file))) {
      copies.push_back({EncodePath(file.filePath()), file.size(), *std::move(note)});
    }
  }
  std::stable_sort(copies.begin(), copies.end(), [](const StoredCopy& a, const StoredCopy& b) {
    // Of one second the second is named "(2)".
    return std::pair(a.note.time, a.file.size()) < std::pair(b.note.time, b.file.size());
  });
  return copies;
}

std::optional<QDateTime> LastCopyOf(const DataDir& data, const Session& session) {
  std::optional<QDateTime> last;
  for (const StoredCopy& copy : ListCopies(CopiesFolder(data))) {
    if (copy.note.base + u'\\' == session.base_path) last = copy.note.time;
  }
  return last;
}

QByteArray NewCopyFile(const QByteArray& folder, const CopyNote& note) {
  const QString name =
      DecodePath(folder) + u'/' + note.base + u' ' + note.time.toString(u"yyyy-MM-dd HH-mm-ss"_s);
  QString file = name + kCopyExtension;
  for (int number = 2; QFileInfo::exists(file); ++number) {
    file = u"%1 (%2)%3"_s.arg(name, QString::number(number), kCopyExtension);
  }
  return EncodePath(file);
}

std::vector<size_t> OutlivedCopies(std::span<const StoredCopy> copies, QDate today, qint64 room) {
  std::set<std::tuple<QString, Span, qint64>> taken;
  std::set<size_t> outlived;
  std::map<QString, int> left;  // of each Database
  qint64 size = 0;
  for (size_t i = 0; i < copies.size(); ++i) {
    const auto [span, number] = SpanOf(copies[i].note.time.date(), today);
    const bool first = taken.insert({copies[i].note.base, span, number}).second;
    if (span == Span::kOver || (span != Span::kToday && !first)) {
      outlived.insert(i);
      continue;
    }
    size += copies[i].size;
    ++left[copies[i].note.base];
  }
  for (size_t i = 0; i < copies.size() && size > room; ++i) {
    const CopyNote& note = copies[i].note;
    if (outlived.contains(i) || left[note.base] == 1) continue;
    if (SpanOf(note.time.date(), today).first == Span::kToday) break;
    outlived.insert(i);
    size -= copies[i].size;
    --left[note.base];
  }
  return {outlived.begin(), outlived.end()};
}

void RemoveOutlivedCopies(const QByteArray& folder, QDate today, qint64 room) {
  const std::vector<StoredCopy> copies = ListCopies(folder);
  for (const size_t place : OutlivedCopies(copies, today, room)) {
    const int error = syscalls::Unlink(copies[place].file);
    if (error != 0 && error != ENOENT) {
      ThrowFileError(u"Не удалось удалить старую копию базы"_s, DecodePath(copies[place].file),
                     error);
    }
  }
}

bool FillSecondPlace(const QByteArray& folder, const QByteArray& second, QDate today, qint64 room) {
  const QFileInfo place(DecodePath(second));
  if (second.isEmpty() || !place.isDir()) return false;
  const QByteArray target = EncodePath(place.canonicalFilePath());
  for (const StoredCopy& copy : ListCopies(folder)) {
    const QByteArray file = target + copy.file.mid(copy.file.lastIndexOf('/'));
    if (syscalls::Exists(file)) continue;
    const QByteArray part = file + ".part";
    if (syscalls::Exists(part)) CheckCopied(syscalls::Unlink(part), part);  // a pulled stick
    CheckCopied(syscalls::CopyNewFile(copy.file, part), part);
    CheckCopied(syscalls::SyncFileSystem(target), part);
    CheckCopied(syscalls::RenameToNew(part, file), file);
  }
  syscalls::SyncDirectory(target);
  RemoveOutlivedCopies(target, today, room);
  return true;
}

}  // namespace kladez
