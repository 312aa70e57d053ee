// The user guide is whole: every page that a screen asks for is there, and every link and picture
// leads somewhere.

#include <QRegularExpression>
#include <QUrl>
#include <set>

#include "ScreenDriver.h"
#include "tour/Screens.h"
#include "ui/Desktop.h"
#include "ui/Help.h"
#include "ui/HelpPages.h"

namespace kladez {
namespace {

const QString kHelp = QStringLiteral(KLADEZ_HELP);

QString TextOf(const QString& page) {
  QFile file(kHelp + u'/' + page);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
  return QString::fromUtf8(file.readAll());
}

TEST(HelpPages, EveryWindowHasItsPageAndPlace) {
  for (const QString& window : kScreens) {
    const QStringList page = HelpPageOf(window).toString().split(u'#');
    EXPECT_TRUE(TextOf(page[0]).contains(u"<h1>"_s)) << window.toStdString();
    if (page.size() > 1) {
      EXPECT_TRUE(TextOf(page[0]).contains(u" id=\"%1\""_s.arg(page[1]))) << window.toStdString();
    }
  }
}

TEST(HelpPages, EveryLinkAndPictureLeadsSomewhereAndNothingIsLeftOver) {
  std::set<QString> reached{u"index.htm"_s};
  const QRegularExpression reference(u"(?:href|src)=\"([^\"]+)\""_s);
  for (const QString& page : QDir(kHelp).entryList({u"*.htm"_s})) {
    auto matches = reference.globalMatch(TextOf(page));
    while (matches.hasNext()) {
      const QString target = matches.next().captured(1);
      EXPECT_TRUE(QFile::exists(kHelp + u'/' + target))
          << page.toStdString() << " leads to " << target.toStdString();
      reached.insert(target);
    }
  }
  for (const QString& page : QDir(kHelp).entryList({u"*.htm"_s})) {
    EXPECT_TRUE(reached.contains(page)) << page.toStdString() << " is reached from no page";
  }
  for (const QString& picture : QDir(kHelp + u"/pictures"_s).entryList(QDir::Files)) {
    EXPECT_TRUE(reached.contains(u"pictures/"_s + picture)) << picture.toStdString();
  }
}

TEST(HelpPages, APageBesideTheDatabasesIsShown) {
  ScreenWorld world;
  world.Temp().Put(u"help\\ost.htm"_s, "x");
  QUrl opened;
  SetAddressOpener([&](const QUrl& address, const auto&) { opened = address; });
  OpenHelpPage(nullptr, world.Temp().Data(), u"ost.htm");
  SetAddressOpener([](const QUrl&, const auto&) {});
  EXPECT_EQ(opened.toLocalFile(), world.Temp().Data().Resolve(u"help\\ost.htm"_s));
}

TEST(HelpPages, TheViewerShowsAPageThatTheDesktopCannot) {
  ScreenWorld world;
  world.Temp().Put(u"help\\ost.htm"_s, "x");
  SetAddressOpener([](const QUrl&, const auto& otherwise) { otherwise(); });
  QString viewed;
  bool there = true;
  SetGuideViewer([&](const DataDir&, const QString& page) {
    viewed = page;
    return there;
  });
  OpenHelpPage(nullptr, world.Temp().Data(), u"ost.htm");
  EXPECT_EQ(viewed, world.Temp().Data().Resolve(u"help\\ost.htm"_s));

  there = false;
  QString told;
  ModalAnswers answers{[&](QWidget* dialog) {
    told = qobject_cast<QMessageBox*>(dialog)->text();
    dialog->close();
  }};
  OpenHelpPage(nullptr, world.Temp().Data(), u"ost.htm");
  EXPECT_EQ(told, u"Не найдена программа, которая показала бы файл\n"_s + viewed);
  SetAddressOpener([](const QUrl&, const auto&) {});
  SetGuideViewer([](const DataDir&, const QString&) { return true; });
}

// A launcher of the desktop's, first in the path, that leaves a mark and ends as it is told.
class Launcher {
 public:
  explicit Launcher(int code) : path_(qgetenv("PATH")) {
    QFile script(folder_.filePath(u"xdg-open"_s));
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho \"$1\" > " + Mark().toUtf8() + "\nexit " +
                 QByteArray::number(code) + "\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", folder_.path().toUtf8() + ':' + path_);
  }
  ~Launcher() { qputenv("PATH", path_); }
  QString Mark() const { return folder_.filePath(u"mark"_s); }
  bool Ran() const { return QFileInfo(Mark()).size() > 0; }

 private:
  QTemporaryDir folder_;
  QByteArray path_;
};

TEST(Desktop, ALauncherThatFindsNothingIsNotTakenForABrowser) {
  for (const int code : {0, 3, 4}) {
    const Launcher launcher(code);
    bool otherwise = false;
    OpenOnDesktop(QUrl::fromLocalFile(u"/tmp/имя.htm"_s), [&] { otherwise = true; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return launcher.Ran() && (otherwise || code == 0); }));
    QTest::qWait(200);
    EXPECT_EQ(otherwise, code != 0) << code;
    QFile mark(launcher.Mark());
    EXPECT_TRUE(mark.open(QIODevice::ReadOnly));
    EXPECT_EQ(mark.readAll(), "file:///tmp/%D0%B8%D0%BC%D1%8F.htm\n");
  }
}

}  // namespace
}  // namespace kladez
