#include "books/store/Errors.h"

#include "formats/SystemReasons.h"
#include "system/PathNames.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// The message of a system_error ends in the system's own reason; only what stands before is ours.
QString Doing(const std::system_error& error) {
  QString text = QString::fromUtf8(error.what());
  if (text.startsWith("filesystem error: "_L1)) text.remove(0, 18);
  const qsizetype reason = text.indexOf(": "_L1 + QString::fromLocal8Bit(error.code().message()));
  return reason < 0 ? text : text.left(reason);
}

}  // namespace

void ThrowFileError(const QString& doing, const QString& path, int error_number) {
  throw std::filesystem::filesystem_error(doing.toStdString(),
                                          std::filesystem::path(EncodePath(path).toStdString()),
                                          std::error_code(error_number, std::generic_category()));
}

QString ErrorText(const std::exception& error) {
  const auto* system = dynamic_cast<const std::system_error*>(&error);
  if (system == nullptr) return QString::fromUtf8(error.what());
  QString text = Doing(*system);
  if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
    text += u'\n' + DecodePath(QByteArray::fromStdString(file->path1().string()));
  }
  return text + u'\n' + ReasonText(system->code());
}

}  // namespace kladez
