#include "books/store/OutsideFile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

#include "books/store/Errors.h"
#include "system/PathNames.h"
#include "system/Process.h"
#include "system/SystemCalls.h"

namespace kladez {

void WriteOutside(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  syscalls::ForgetErrors();
  const bool done =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  if (!done) {
    ThrowFileError(QStringLiteral("Не удалось записать файл"), path, syscalls::LastError());
  }
}

QByteArray ReadOutside(const QString& path, qint64 most) {
  const QString file = QFileInfo(path).canonicalFilePath();
  QByteArray bytes;
  const int error =
      file.isEmpty() ? ENOENT : syscalls::ReadPlainFile(EncodePath(file), most, &bytes);
  if (error != 0) ThrowFileError(QStringLiteral("Не удалось прочитать файл"), path, error);
  return bytes;
}

}  // namespace kladez
