#include "formats/SystemReasons.h"

#include <array>

#include "system/ErrorNumbers.h"

namespace kladez {
namespace {

struct Reason {
  int number;  // errno
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
    Reason{ESPIPE, u"это не файл, а канал или устройство"},
    Reason{EINVAL, u"недопустимое имя"},
    Reason{ELOOP, u"ссылка ведёт за пределы каталога данных"},
    Reason{EIO, u"ошибка чтения или записи диска"},
    Reason{EBADMSG, u"файл повреждён"},
    Reason{EBUSY, u"занято другой программой"},
    Reason{ECANCELED, u"действие не выполнено"},
    Reason{EFBIG, u"файл слишком велик"},
    Reason{EILSEQ, u"знака нет в кодировке файла"},
    Reason{ENOSYS, u"на этом диске такое действие невозможно"},
    Reason{EOPNOTSUPP, u"на этом диске такое действие невозможно"},
    Reason{EXDEV, u"места лежат на разных дисках"},
    Reason{EMLINK, u"у файла слишком много ссылок"},
    Reason{EMFILE, u"открыто слишком много файлов"},
    Reason{ENFILE, u"открыто слишком много файлов"},
    Reason{ENOMEM, u"не хватает памяти"},
    Reason{ENODEV, u"устройство отключено"},
    Reason{ENXIO, u"устройство отключено"},
    Reason{ESTALE, u"прочитайте его заново и повторите"},
    Reason{ETIMEDOUT, u"устройство не отвечает"},
};

}  // namespace

QString ReasonText(const std::error_code& code) {
  for (const Reason& reason : kReasons) {
    // Either category holds an errno; std::errc is one too.
    if (code.value() == reason.number) return reason.text.toString();
  }
  return QString::fromLocal8Bit(code.message());
}

}  // namespace kladez
