#include "books/store/Errors.h"

#include <QFile>
#include <array>
#include <cerrno>

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

struct Reason {
  int number;
  QStringView text;
};

constexpr std::array kReasons = {
    Reason{ENOENT, u"нет такого файла или каталога"},
    Reason{EACCES, u"нет доступа"},
    Reason{EPERM, u"действие не разрешено"},
    Reason{EROFS, u"диск доступен только для чтения"},
    Reason{ENOSPC, u"на диске нет места"},
    Reason{EDQUOT, u"исчерпана квота диска"},
    Reason{EEXIST, u"такое имя уже есть"},
    Reason{ENOTEMPTY, u"каталог не пуст"},
    Reason{ENOTDIR, u"на этом пути лежит файл, а не каталог"},
    Reason{EISDIR, u"на этом месте лежит каталог, а не файл"},
    Reason{ENAMETOOLONG, u"слишком длинное имя"},
    Reason{EINVAL, u"недопустимое имя"},
    Reason{ELOOP, u"ссылка ведёт за пределы каталога данных"},
    Reason{EIO, u"ошибка чтения или записи диска"},
    Reason{EBADMSG, u"файл повреждён"},
    Reason{EBUSY, u"занято другой программой"},
    Reason{ESTALE, u"прочитайте его заново и повторите"},
    Reason{ECANCELED, u"действие не выполнено"},
    Reason{EFBIG, u"файл слишком велик"},
    Reason{EILSEQ, u"знака нет в кодировке файла"},
};

QString ReasonText(const std::error_code& code) {
  for (const Reason& reason : kReasons) {
    if (code.value() == reason.number) return reason.text.toString();
  }
  return QString::fromLocal8Bit(code.message());
}

// The message of a system_error ends in the system's own reason; only what stands before is ours.
QString Doing(const std::system_error& error) {
  QString text = QString::fromUtf8(error.what());
  if (text.startsWith("filesystem error: "_L1)) text.remove(0, 18);
  const qsizetype reason = text.indexOf(": "_L1 + QString::fromLocal8Bit(error.code().message()));
  return reason < 0 ? text : text.left(reason);
}

}  // namespace

void ThrowFileError(const QString& doing, const QString& path, int error_number) {
  throw std::filesystem::filesystem_error(
      doing.toStdString(), std::filesystem::path(QFile::encodeName(path).toStdString()),
      std::error_code(error_number, std::generic_category()));
}

QString ErrorText(const std::exception& error) {
  const auto* system = dynamic_cast<const std::system_error*>(&error);
  if (system == nullptr) return QString::fromUtf8(error.what());
  QString text = Doing(*system);
  if (const auto* file = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
    text += u'\n' + QFile::decodeName(file->path1().c_str());
  }
  return text + u'\n' + ReasonText(system->code());
}

}  // namespace kladez
