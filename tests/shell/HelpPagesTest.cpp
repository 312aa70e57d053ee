// The user guide is whole: every page that a screen asks for is there, and every link and picture
// leads somewhere.
#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QUrl>
#include <set>

#include "ScreenDriver.h"
#include "shell/Help.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QString kHelp = QStringLiteral(KLADEZ_HELP);

QString TextOf(const QString& page) {
  QFile file(kHelp + u'/' + page);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << page.toStdString();
  return QString::fromUtf8(file.readAll());
}

TEST(HelpPages, EveryTopicOfAScreenHasItsPage) {
  for (const QString& topic :
       {u"workdb"_s, u"price"_s, u"ost"_s, u"vnot1"_s, u"vnot2"_s, u"vnot3"_s, u"vnot4"_s,
        u"vnot5"_s, u"priceprint"_s, u"uhodchfakt"_s}) {
    EXPECT_TRUE(QFile::exists(kHelp + u'/' + topic + u".htm"_s)) << topic.toStdString();
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
  SetAddressOpener([&](const QUrl& address) {
    opened = address;
    return true;
  });
  OpenHelpPage(nullptr, world.Temp().Data(), u"ost.htm");
  SetAddressOpener([](const QUrl&) { return true; });
  EXPECT_EQ(opened.toLocalFile(), world.Temp().Data().Resolve(u"help\\ost.htm"_s));
}

}  // namespace
}  // namespace kladez
