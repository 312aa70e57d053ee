#include "shell/Help.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QUrl>

#include "shell/controls/Commands.h"
#include "shell/controls/Messages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

std::function<bool(const QUrl&)>& Opener() {
  static std::function<bool(const QUrl&)> opener = &QDesktopServices::openUrl;
  return opener;
}

void OpenFile(QWidget* parent, const DataDir& data, const QString& path) {
  if (!data.FileExists(path)) {
    ShowInformation(
        parent, u"Нет файла справки «"_s + path + u"».\nПоложите его в каталог "_s + data.Root());
    return;
  }
  if (Opener()(QUrl::fromLocalFile(data.Resolve(path)))) return;
  ShowInformation(parent,
                  u"Не найдена программа, которая показала бы файл\n"_s + data.Resolve(path));
}

}  // namespace

void OpenHelpPage(QWidget* parent, const DataDir& data, QStringView page) {
  OpenFile(parent, data, u"help\\"_s + page);
}

QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView page) {
  QPushButton* command = NewCommand(screen, u"help"_s, u"Справка"_s, look::IconName::kHint);
  command->setShortcut(QKeySequence::HelpContents);
  QObject::connect(command, &QPushButton::clicked, screen,
                   [screen, &data, page = page.toString()] { OpenHelpPage(screen, data, page); });
  return command;
}

void OpenHelpFile(QWidget* parent, const DataDir& data) {
  OpenFile(parent, data, kHelpFile.toString());
}

void OpenAddress(QWidget* parent, QStringView address) {
  if (Opener()(QUrl(address.toString()))) return;
  ShowInformation(parent, u"Не найдена программа, которая открыла бы адрес\n"_s + address);
}

void SetAddressOpener(std::function<bool(const QUrl& address)> opener) {
  Opener() = std::move(opener);
}

}  // namespace kladez
