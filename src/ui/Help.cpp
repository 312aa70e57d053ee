#include "ui/Help.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

#include "books/printing/PrintOutDesk.h"
#include "ui/Desktop.h"
#include "ui/HelpPages.h"
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

void OpenFile(QWidget* parent, const DataDir& data, const QString& file, const QString& name,
              const QString& place = {}) {
  if (file.isEmpty()) {
    ShowInformation(
        parent, u"Нет файла справки «"_s + name + u"».\nПоложите его в каталог "_s + data.Root());
    return;
  }
  QUrl address = QUrl::fromLocalFile(file);
  if (!place.isEmpty()) address.setFragment(place);
  Opener()(address, [parent = QPointer(parent), &data, file] {
    const bool page = file.endsWith(".htm"_L1, Qt::CaseInsensitive);
    if (page && Viewer()(data, file)) return;
    ShowInformation(parent, u"Не найдена программа, которая показала бы файл\n"_s + file);
  });
}

void OpenHelpFor(QWidget* widget, const DataDir& data) {
  const QStringView page = HelpPageFor(widget);
  if (page == kHelpIndex) {
    OpenHelpFile(widget, data);
  } else {
    OpenHelpPage(widget, data, page);
  }
}

// Takes the help key before the menu of the main window does.
class HelpKey : public QObject {
 public:
  HelpKey(QObject* owner, const DataDir& data) : QObject(owner), data_(data) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool press = event->type() == QEvent::KeyPress;
    if ((!press && event->type() != QEvent::ShortcutOverride) || !watched->isWidgetType() ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents)) {
      return false;
    }
    event->accept();
    if (press) OpenHelpFor(static_cast<QWidget*>(watched), data_);
    return true;
  }

 private:
  const DataDir& data_;
};

}  // namespace

void OpenHelpPage(QWidget* parent, const DataDir& data, QStringView page) {
  const qsizetype sharp = page.indexOf(u'#');
  const QStringView file = sharp < 0 ? page : page.first(sharp);
  OpenFile(parent, data, FindPage(data, file.toString()), u"help\\"_s + file,
           sharp < 0 ? QString() : page.sliced(sharp + 1).toString());
}

void FollowHelpKey(QObject* owner, const DataDir& data) { new HelpKey(owner, data); }

QPushButton* NewHelpCommand(QWidget* screen, const DataDir& data, QStringView name) {
  QPushButton* command = NewCommand(screen, name.toString(), u"Справка"_s, look::IconName::kHint);
  QObject::connect(command, &QPushButton::clicked, screen,
                   [screen, &data] { OpenHelpFor(screen, data); });
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
