#include "books/store/SettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>
#include <cmath>

#include "books/store/DirectoryLock.h"
#include "books/store/Errors.h"
#include "formats/Numbers.h"
#include "system/PathNames.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kLongestSettings = 1 << 20;

QString UserFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         u"/kladez/settings.ini"_s;
}

QString KeyOf(const Setting& setting) {
  return setting.section.toString() + u'\\' + setting.key.toString();
}

// Where the file really lies: a user may keep it, or its directory, elsewhere by a link.
QByteArray PlainPath(const QString& file) {
  const QFileInfo there(file);
  if (there.exists()) return EncodePath(there.canonicalFilePath());
  const QString directory = QFileInfo(there.absolutePath()).canonicalFilePath();
  return EncodePath(directory + u'/' + there.fileName());
}

void CheckWritten(int error, const QByteArray& path) {
  if (error != 0) {
    ThrowFileError(u"Не удалось записать настройки"_s, DecodePath(path), error);
  }
}

// The old file or the new one, whole, whatever happens.
void Replace(const QByteArray& path, const QByteArray& bytes) {
  const QByteArray directory = path.left(path.lastIndexOf('/'));
  const DirectoryLock lock(directory, std::chrono::milliseconds(200));
  const QByteArray draft = path + ".new";
  FileStatus status;
  const unsigned mode = syscalls::Look(path, &status) == 0 ? status.mode & 0777 : 0600;
  if (syscalls::Exists(draft)) CheckWritten(syscalls::Unlink(draft), draft);  // a crash left it
  try {
    CheckWritten(syscalls::WriteNewFile(draft, bytes, mode), draft);
    CheckWritten(syscalls::Rename(draft, path), path);
  } catch (...) {
    syscalls::Unlink(draft);
    throw;
  }
  syscalls::SyncDirectory(directory);
}

}  // namespace

SettingsStore::SettingsStore(const QString& file) : file_(file.isEmpty() ? UserFile() : file) {
  Load();
}

// What can't be read, or is no plain file, is not written either.
bool SettingsStore::Load() {
  QByteArray bytes;
  const QByteArray path = PlainPath(file_);
  const int error =
      QFileInfo::exists(file_) ? syscalls::ReadPlainFile(path, kLongestSettings, &bytes) : ENOENT;
  if (error == 0) lines_ = ReadIni(bytes);
  return error == 0 || error == ENOENT;
}

QString SettingsStore::Read(const Setting& setting) const {
  return IniText(lines_, setting.root.toString(), KeyOf(setting))
      .value_or(setting.otherwise.toString());
}

bool SettingsStore::ReadBool(const Setting& setting) const {
  const QString text = Read(setting);
  if (const auto number = ParseStrict(text)) return *number != 0;
  return text.compare("True"_L1, Qt::CaseInsensitive) == 0;
}

int SettingsStore::ReadInt(const Setting& setting) const {
  const double number = NumberOr(Read(setting), NumberOr(setting.otherwise));
  return std::fabs(number) < 1e9 ? static_cast<int>(std::lround(number)) : 0;
}

void SettingsStore::Write(const Setting& setting, const QString& text) {
  // Another window of the program may have written since.
  const bool readable = Load();
  const IniLines before = lines_;
  SetIniText(lines_, setting.root.toString(), KeyOf(setting), text);
  if (!readable || (lines_ == before && QFileInfo::exists(file_))) return;
  // A place that can't be written must keep nobody from working.
  IgnoreErrors([&] {
    QDir().mkpath(QFileInfo(file_).absolutePath());
    Replace(PlainPath(file_), WriteIni(lines_));
  });
}

void SettingsStore::WriteBool(const Setting& setting, bool on) {
  Write(setting, on ? u"True"_s : u"False"_s);
}

}  // namespace kladez
