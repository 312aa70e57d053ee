#include "viewer/window/ViewerMessages.h"

#include <QMessageBox>

#include "formats/SystemReasons.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

QString ReadErrorText(const QDir& directory, const QString& name, PageKind kind,
                      const std::error_code& code) {
  const QString path = QDir::toNativeSeparators(directory.absoluteFilePath(name));
  const bool missing = code == std::errc::no_such_file_or_directory;
  if (kind == PageKind::kGuide) {
    return missing ? u"Нет страницы справки: файл\n%1\nне найден."_s.arg(path)
                   : u"Страницу справки прочитать не удалось: файл\n%1\n(%2)."_s.arg(
                         path, ReasonText(code));
  }
  if (missing) {
    return u"Нет печатной формы: файл\n%1\nне найден.\n\nВыведите документ на печать из программы "
           "еще раз."_s.arg(path);
  }
  return u"Печатную форму прочитать не удалось: файл\n%1\n(%2).\n\nЗакройте программы, которые "
         "держат этот файл, и выведите документ на печать еще раз."_s.arg(path, ReasonText(code));
}

void ShowError(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, u"Внимание!"_s, text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace kladez::viewer
