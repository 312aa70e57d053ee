// The viewer shows the user guide where no browser does: its links, lists and pictures, and nothing
// that lies outside the folder of the page.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <system_error>

#include "viewer/page/PagePaths.h"
#include "viewer/page/PageReader.h"
#include "viewer/window/ViewerWindow.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

QString TextOf(const Page& page) {
  QStringList texts;
  for (const Block& block : page.blocks)
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) texts << paragraph->Text();
  return texts.join(u'|');
}

// A folder with a guide in it, and a picture beside that folder that no page may show.
class GuideTest : public ::testing::Test {
 protected:
  GuideTest() : outside_(directory_.path()), folder_(directory_.filePath(u"guide"_s)) {
    EXPECT_TRUE(outside_.mkpath(u"guide/pictures"_s));
    Picture(u"secret.png"_s);
    Picture(u"guide/pictures/wide.png"_s);
    Picture(u"guide/beside.png"_s);
  }

  void Put(const QString& name, const QString& body) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write((u"<html><head><meta charset=\"utf-8\"><title>"_s + name +
                u"</title></head><body>"_s + body + u"</body></html>"_s)
                   .toUtf8());
  }
  void Picture(const QString& path) const {
    QImage picture(1360, 200, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(outside_.filePath(path)));
  }
  Page Read(const QString& name) const { return ReadPageFile(folder_, name, {}, PageKind::kGuide); }

  QTemporaryDir directory_;
  QDir outside_;
  QDir folder_;
};

TEST_F(GuideTest, HeadingsListsAndLinksAreRead) {
  Put(u"a.htm"_s,
      u"<h1>Склад</h1>\n<ul>\n<li><a href=\"b.htm\">Приход</a> и &laquo;расход&raquo;</li>\n"
      "<li>второй</li>\n</ul><p>текст</p>"_s);
  const Page page = Read(u"a.htm"_s);
  EXPECT_EQ(page.title, u"a.htm"_s);
  EXPECT_EQ(TextOf(page), u"Склад|• Приход и «расход»|• второй|текст"_s);
  const auto& heading = std::get<Paragraph>(page.blocks[0]);
  EXPECT_EQ(page.styles.at(heading.runs[0].style).points, 18);
  EXPECT_FALSE(heading.listed);
  const auto& item = std::get<Paragraph>(page.blocks[1]);
  EXPECT_TRUE(item.listed);
  EXPECT_EQ(item.runs.at(1).text, u"Приход"_s);
  EXPECT_EQ(page.styles.at(item.runs[1].style).link, u"b.htm"_s);
  EXPECT_EQ(page.styles.at(item.runs[2].style).link, QString());
}

TEST_F(GuideTest, APictureIsDrawnNoWiderThanASheet) {
  Put(u"a.htm"_s, u"<p><img src=\"pictures/wide.png\"></p>"_s);
  const Page page = Read(u"a.htm"_s);
  EXPECT_EQ(page.pictures.at(u"pictures/wide.png"_s).width(), 1360);
  EXPECT_EQ(page.PictureSize(u"pictures/wide.png"_s), QSizeF(680, 100));
  EXPECT_EQ(PagePlan(std::make_shared<Page>(Read(u"a.htm"_s))).ReadableWidth(), 680);
}

TEST_F(GuideTest, OnlyPicturesOfItsOwnFolderAreRead) {
  ASSERT_TRUE(QFile::link(outside_.filePath(u"secret.png"_s), folder_.filePath(u"link.png"_s)));
  ASSERT_TRUE(QFile::link(outside_.path(), folder_.filePath(u"up"_s)));
  for (const QString& reference :
       {u"../secret.png"_s, u"pictures/../../secret.png"_s, outside_.filePath(u"secret.png"_s),
        QString(u"file://"_s + outside_.filePath(u"secret.png"_s)), u"link.png"_s,
        u"up/secret.png"_s, u"http://kladez.example/a.png"_s, u"//kladez.example/a.png"_s,
        u"pictures"_s, u""_s}) {
    Put(u"a.htm"_s, u"<p>x<img src=\""_s + reference + u"\"></p>"_s);
    const Page page = Read(u"a.htm"_s);
    EXPECT_FALSE(TextOf(page).contains(QChar::ObjectReplacementCharacter))
        << reference.toStdString();
  }
  Put(u"a.htm"_s, u"<p><img src=\"beside.png\"><img src=\"pictures/wide.png\"></p>"_s);
  EXPECT_EQ(TextOf(Read(u"a.htm"_s)), QString(2, QChar(QChar::ObjectReplacementCharacter)));
}

TEST_F(GuideTest, OnlyPagesBesideItAreLinkedTo) {
  for (const QString& reference :
       {u"../a.htm"_s, u"/etc/a.htm"_s, u"http://kladez.example/a.htm"_s, u"file:///a.htm"_s,
        u"mailto:a.htm"_s, u"javascript:x.htm"_s, u"//kladez.example/a.htm"_s, u"..\\a.htm"_s,
        u"a.htm#b"_s, u"%2e%2e%2fa.htm"_s, u"kladez.sh"_s, u""_s})
    EXPECT_FALSE(NamesPage(reference)) << reference.toStdString();
  EXPECT_TRUE(NamesPage(u"first.htm"_s));

  ASSERT_TRUE(QFile::link(u"/etc/passwd"_s, folder_.filePath(u"out.htm"_s)));
  EXPECT_THROW(Read(u"out.htm"_s), std::system_error);
  EXPECT_THROW(Read(u"../guide/a.htm"_s), std::system_error);
}

TEST_F(GuideTest, APrintOutHasNeitherLinksNorPicturesFromBelow) {
  Put(u"out.htm"_s, u"<p><a href=\"a.htm\">фирма</a><img src=\"pictures/wide.png\"></p>"_s);
  ASSERT_TRUE(QFile::link(outside_.filePath(u"secret.png"_s), folder_.filePath(u"link.png"_s)));
  const Page page = ReadPageFile(folder_, u"out.htm"_s);
  EXPECT_EQ(TextOf(page), u"<a href=\"a.htm\">фирма</a>[нет рисунка: pictures/wide.png]"_s);
  for (const TextStyle& style : page.styles) EXPECT_EQ(style.link, QString());
  Put(u"out.htm"_s, u"<p><img src=link.png><img src=BESIDE.PNG></p>"_s);
  EXPECT_EQ(TextOf(ReadPageFile(folder_, u"out.htm"_s)),
            u"[нет рисунка: link.png]"_s + QChar(QChar::ObjectReplacementCharacter));
}

class GuideWindowTest : public GuideTest {
 protected:
  void Open(const QString& name) {
    window_ = std::make_unique<ViewerWindow>(folder_, name, PageKind::kGuide);
    ASSERT_TRUE(window_->Load());
    window_->show();
    window_->activateWindow();
    QApplication::processEvents();
  }
  PageView* View() { return window_->findChild<PageView*>(); }
  QAction* Action(const QString& name) { return window_->findChild<QAction*>(name); }
  void Click(const QString& text) {
    ASSERT_TRUE(View()->FindText(text, false));
    QTest::mouseClick(View()->viewport(), Qt::LeftButton, {},
                      View()->SelectionPoint() + QPoint(8, 0));
    QApplication::processEvents();
  }

  std::unique_ptr<ViewerWindow> window_;
};

TEST_F(GuideWindowTest, AClickFollowsALinkAndBackReturnsToTheSamePlace) {
  Put(u"a.htm"_s, u"<p>начало</p>"_s + u"<p>строка</p>"_s.repeated(200) +
                      u"<p><a href=\"b.htm\">дальше</a></p>"_s);
  Put(u"b.htm"_s, u"<p>вторая</p>"_s);
  Open(u"a.htm"_s);
  EXPECT_FALSE(Action(u"GoBack"_s)->isEnabled());
  Click(u"дальше"_s);
  EXPECT_EQ(window_->windowTitle(), u"b.htm"_s);
  View()->SelectAll();
  EXPECT_EQ(View()->SelectedText(), u"вторая"_s);

  QTest::keyClick(window_.get(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(window_->windowTitle(), u"a.htm"_s);
  EXPECT_GT(View()->verticalScrollBar()->value(), 0) << "not where it was left";
  EXPECT_FALSE(Action(u"GoBack"_s)->isEnabled());
  QTest::keyClick(window_.get(), Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(window_->windowTitle(), u"b.htm"_s);
  EXPECT_FALSE(Action(u"GoForward"_s)->isEnabled());
}

TEST_F(GuideWindowTest, TabAndEnterFollowALink) {
  Put(u"a.htm"_s, u"<p>слово <a href=\"a.htm\">сюда</a> <a href=\"b.htm\">туда</a></p>"_s);
  Put(u"b.htm"_s, u"<p>вторая</p>"_s);
  Open(u"a.htm"_s);
  QTest::keyClick(View(), Qt::Key_Tab);
  QTest::keyClick(View(), Qt::Key_Tab);
  QTest::keyClick(View(), Qt::Key_Return);
  EXPECT_EQ(window_->windowTitle(), u"b.htm"_s);
}

TEST_F(GuideWindowTest, ALinkToAMissingPageIsToldAndThePageStays) {
  Put(u"a.htm"_s, u"<p><a href=\"none.htm\">никуда</a></p>"_s);
  Open(u"a.htm"_s);
  QString told;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      told = box->text();
      box->close();
    }
  });
  timer.start(5);
  Click(u"никуда"_s);
  EXPECT_EQ(told, u"Нет страницы справки: файл\n"_s + folder_.filePath(u"none.htm"_s) +
                      u"\nне найден."_s);
  EXPECT_EQ(window_->windowTitle(), u"a.htm"_s);
  EXPECT_FALSE(Action(u"GoBack"_s)->isEnabled());
}

TEST(GuideOfTheProgramTest, EveryPageIsWholeInTheViewerToo) {
  const QDir help(QStringLiteral(KLADEZ_HELP));
  const QRegularExpression link(u"<a href=\"([^\"]+)\""_s);
  const QRegularExpression picture(u"<img src="_s);
  const auto count = [](const QRegularExpression& pattern, const QString& text) {
    int found = 0;
    for (auto match = pattern.globalMatch(text); match.hasNext(); match.next()) ++found;
    return found;
  };
  const QStringList pages = help.entryList({u"*.htm"_s});
  ASSERT_FALSE(pages.isEmpty());
  for (const QString& name : pages) {
    QFile file(help.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const Page page = ReadPageFile(help, name, {}, PageKind::kGuide);
    EXPECT_TRUE(text.contains(u"<title>"_s + page.title)) << name.toStdString();
    int shown = 0;
    for (const auto& [reference, image] : page.pictures) shown += image.isNull() ? 0 : 1;
    EXPECT_EQ(shown, count(picture, text)) << name.toStdString();
    int links = 0;
    for (const Block& block : page.blocks) {
      const auto* paragraph = std::get_if<Paragraph>(&block);
      for (size_t i = 0; paragraph != nullptr && i < paragraph->runs.size(); ++i) {
        const QString target = page.styles.at(paragraph->runs[i].style).link;
        if (target.isEmpty()) continue;
        ++links;
        EXPECT_FALSE(PathWithin(help, target).isEmpty()) << target.toStdString();
      }
    }
    EXPECT_EQ(links, count(link, text)) << name.toStdString();
  }
}

}  // namespace
}  // namespace kladez::viewer
