#include "books/prices/SheetFile.h"

#include <cerrno>

#include "books/store/Errors.h"
#include "books/store/OutsideFile.h"

namespace kladez {

using namespace Qt::StringLiterals;

Sheet ReadSheetFile(const QString& path) {
  constexpr qint64 kMostBytes = qint64{64} << 20;
  const QByteArray bytes = ReadOutside(path, kMostBytes);
  if (bytes.startsWith("PK\x03\x04") || bytes.startsWith("\xD0\xCF\x11\xE0")) {
    ThrowFileError(
        u"Это книга программы таблиц. Откройте её там, скопируйте строки и нажмите «Из "
        u"буфера» или сохраните их как CSV"_s,
        path, EINVAL);
  }
  return ReadSheet(DecodeSheet(bytes));
}

}  // namespace kladez
