#include "ui/Help.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include "books/printing/PrintOutDesk.h"
#include "ui/Desktop.h"
#include "ui/controls/Commands.h"
#include "ui/controls/Messages.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

AddressOpener& Opener() {
  static AddressOpener opener = &OpenOnDesktop;
  return opener;
}

GuideViewer& Viewer() {
  static GuideViewer viewer = [](const DataDir& data, const QString& page) {
    return StartReportViewer(data, {page});
  };
  return viewer;
}

// The guide of the user's own beside the Databases goes before the one that came with the program,
// installed or in the folder that it was built in. Empty where there is none.
QString FindPage(const DataDir& data, const QString& page) {
  if (data.FileExists(u"help\\"_s + page)) return data.Resolve(u"help\\"_s + page);
  for (const QStringView folder : {u"/../share/kladez/help/", u"/../../../help/"}) {
    const QFileInfo file(QCoreApplication::applicationDirPath() + folder + page);
    if (file.isFile()) return file.canonicalFilePath();
  }
  return {};
}

void OpenFile(QWidget* parent, const DataDir& data, const QString& file, const QString& name) {
  if (file.isEmpty()) {
    ShowInformation(
        parent, u"Нет файла справки «"_s + name + u"».\nПоложите его в каталог "_s + data.Root());
    return;
  }
  Opener()(QUrl::fromLocalFile(file), [parent = QPointer(parent), &data, file] {
    const bool page = file.endsWith(".htm"_L1, Qt::CaseInsensitive);
    if (page && Viewer()(data, file)) return;
    ShowInformation(parent, u"Не найдена программа, которая показала бы файл\n"_s + file);
  });
}

// Takes the help key before the menu of the main window does, which a shortcut of the screen's own
// would only get in the way of.
class HelpKey : public QObject {
 public:
  HelpKey(QWidget* window, std::function<void()> show) : QObject(window), show_(std::move(show)) {
    window->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool press = event->type() == QEvent::KeyPress;
    if (!press && event->type() != QEvent::ShortcutOverride) {
      return QObject::eventFilter(watched, event);
    }
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents)) return false;
    event->accept();
    if (press) show_();
    return true;
  }

 private:
  std::function<void()> show_;
};

}  // namespace

void OpenHelpPage(QWidget* parent, const DataDir& data, QStringView page) {
  OpenFile(parent, data, FindPage(data, page.toString()), u"help\\"_s + page);
}

void SetHelpPage(QWidget* window, const DataDir& data, QStringView page) {
  new HelpKey(window,
              [window, &data, page = page.toString()] { OpenHelpPage(window, data, page); });
}

QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView page,
                            QStringView name) {
  QPushButton* command = NewCommand(screen, name.toString(), u"Справка"_s, look::IconName::kHint);
  new HelpKey(screen, [command] { command->click(); });
  QObject::connect(command, &QPushButton::clicked, screen,
                   [screen, &data, page = page.toString()] { OpenHelpPage(screen, data, page); });
  return command;
}

void OpenHelpFile(QWidget* parent, const DataDir& data) {
  const QString name = kHelpFile.toString();
  const QString file =
      data.FileExists(name) ? data.Resolve(name) : FindPage(data, kHelpIndex.toString());
  OpenFile(parent, data, file, name);
}

void OpenAddress(QWidget* parent, QStringView address) {
  Opener()(QUrl(address.toString()), [parent = QPointer(parent), name = address.toString()] {
    ShowInformation(parent, u"Не найдена программа, которая открыла бы адрес\n"_s + name);
  });
}

void SetAddressOpener(AddressOpener opener) { Opener() = std::move(opener); }

void SetGuideViewer(GuideViewer viewer) { Viewer() = std::move(viewer); }

}  // namespace kladez
