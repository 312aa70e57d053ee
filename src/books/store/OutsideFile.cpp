#include "books/store/OutsideFile.h"

#include <QSaveFile>
#include <cerrno>

#include "books/store/Errors.h"

namespace kladez {

void WriteOutside(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  errno = 0;
  const bool done =
      file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
  if (!done) {
    ThrowFileError(QStringLiteral("Не удалось записать файл"), path, errno != 0 ? errno : EIO);
  }
}

}  // namespace kladez
