#include "viewer/window/Mail.h"

#include <QDir>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "viewer/page/PageName.h"
#include "viewer/paper/Output.h"
#include "viewer/window/Printing.h"
#include "viewer/window/ViewerMessages.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

void TellNoProgram(const QString& path, QWidget* parent) {
  ShowError(parent,
            u"Почтовая программа не найдена или не открыла письмо. Файл\n%1\nготов: приложите его "
            "к письму сами."_s.arg(QDir::toNativeSeparators(path)));
}

// "" when it was not written, which the person then knows.
QString WriteLetterPdf(std::shared_ptr<const Page> page, const QString& name, QWidget* parent) {
  QTemporaryDir folder(QDir::tempPath() + u"/kladez-XXXXXX"_s);
  if (!folder.isValid()) {
    ShowError(parent, u"Папку для файла создать не удалось: %1."_s.arg(folder.errorString()));
    return {};
  }
  const QString path = folder.filePath(PdfName(name));
  const bool written = SavePdfFile(std::move(page), path, parent);
  folder.setAutoRemove(!written);  // the mail program reads it when the letter is sent
  return written ? path : QString();
}

}  // namespace

void MailPage(std::shared_ptr<const Page> page, QWidget* parent) {
  const QString name = NameOf(*page);
  const QString path = WriteLetterPdf(std::move(page), name, parent);
  if (path.isEmpty()) return;
  const QString program = QStandardPaths::findExecutable(u"xdg-email"_s);
  if (program.isEmpty()) return TellNoProgram(path, parent);
  auto* letter = new QProcess(parent);
  const QPointer<QWidget> window(parent);
  const auto tell = [letter, window, path] {
    letter->deleteLater();
    if (window) TellNoProgram(path, window);
  };
  QObject::connect(letter, &QProcess::errorOccurred, letter, [tell](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) tell();
  });
  QObject::connect(letter, &QProcess::finished, letter,
                   [letter, tell](int code, QProcess::ExitStatus status) {
                     if (code != 0 || status != QProcess::NormalExit) return tell();
                     letter->deleteLater();
                   });
  letter->start(program, {u"--utf8"_s, u"--subject"_s, name, u"--body"_s,
                          u"Здравствуйте!\n\nВо вложении: "_s + name + u'.', u"--attach"_s, path});
}

}  // namespace kladez::viewer
