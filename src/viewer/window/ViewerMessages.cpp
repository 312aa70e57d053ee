#include "viewer/window/ViewerMessages.h"

#include <QMessageBox>

namespace kladez::viewer {
using namespace Qt::StringLiterals;

QString ReasonOf(const std::error_code& code) {
  static const std::pair<std::errc, QString> reasons[] = {
      {std::errc::no_such_file_or_directory, u"файла или папки нет"_s},
      {std::errc::permission_denied, u"нет прав"_s},
      {std::errc::operation_not_permitted, u"нет прав"_s},
      {std::errc::is_a_directory, u"это папка, а не файл"_s},
      {std::errc::no_space_on_device, u"на диске нет места"_s},
      {std::errc::read_only_file_system, u"диск только для чтения"_s},
      {std::errc::filename_too_long, u"слишком длинное имя файла"_s},
      {std::errc::io_error, u"ошибка диска"_s}};
  for (const auto& [reason, text] : reasons) {
    if (code == reason) {
      return text;
    }
  }
  return QString::fromStdString(code.message());
}

QString ReadErrorText(const QDir& directory, const QString& name, PageKind kind,
                      const std::error_code& code) {
  const QString path = QDir::toNativeSeparators(directory.absoluteFilePath(name));
  const bool missing = code == std::errc::no_such_file_or_directory;
  if (kind == PageKind::kGuide) {
    return missing ? u"Нет страницы справки: файл\n%1\nне найден."_s.arg(path)
                   : u"Страницу справки прочитать не удалось: файл\n%1\n(%2)."_s.arg(
                         path, ReasonOf(code));
  }
  if (missing) {
    return u"Нет печатной формы: файл\n%1\nне найден.\n\nВыведите документ на печать из программы "
           "еще раз."_s.arg(path);
  }
  return u"Печатную форму прочитать не удалось: файл\n%1\n(%2).\n\nЗакройте программы, которые "
         "держат этот файл, и выведите документ на печать еще раз."_s.arg(path, ReasonOf(code));
}

void ShowError(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, u"Внимание!"_s, text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace kladez::viewer
