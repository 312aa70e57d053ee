#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include "viewer/SamplePages.h"
#include "viewer/page/PageReader.h"
#include "viewer/window/Mail.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

// A mail program of the test's own on a path of its own, and temporary files that go with it.
class MailTest : public ::testing::Test {
 protected:
  MailTest() {
    qputenv("PATH", programs_.path().toLocal8Bit());
    qputenv("TMPDIR", letters_.path().toLocal8Bit());
    answer_.setInterval(5);
    QObject::connect(&answer_, &QTimer::timeout, [this] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        told_ = box->text();
        box->close();
      }
    });
    answer_.start();
  }
  ~MailTest() override {
    qputenv("PATH", path_);
    tmp_.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", tmp_);
  }

  // Notes its arguments, one a line, and ends with a code.
  void PutProgram(int code) {
    QFile program(programs_.filePath(u"xdg-email"_s));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > " + Noted().toUtf8() + "\nexit " +
                  QByteArray::number(code) + '\n');
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }
  QString Noted() const { return programs_.filePath(u"arguments"_s); }
  QString NotedText() const {
    QFile file(Noted());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }
  // The one PDF file that was made.
  QString Pdf() const {
    const QDir folder(letters_.path());
    const QStringList made = folder.entryList({u"kladez-*"_s}, QDir::Dirs);
    if (made.size() != 1) return {};
    const QDir letter(folder.filePath(made[0]));
    const QStringList files = letter.entryList({u"*.pdf"_s}, QDir::Files);
    return files.size() == 1 ? letter.filePath(files[0]) : QString();
  }
  void Mail() {
    MailPage(std::make_shared<const Page>(ReadPage(u"<title>Счет N 5</title>текст"_s,
                                                   [](const QString&) { return QImage(); })),
             &window_);
  }

  QByteArray path_ = qgetenv("PATH");
  QByteArray tmp_ = qgetenv("TMPDIR");
  QTemporaryDir programs_;
  QTemporaryDir letters_;
  QTimer answer_;
  QString told_;
  QWidget window_;
};

TEST_F(MailTest, TheLetterHasSubjectTextAndAPdfThatOnlyItsOwnerReads) {
  PutProgram(0);
  Mail();
  ASSERT_TRUE(QTest::qWaitFor([this] { return NotedText().endsWith(u".pdf\n"); }));
  const QString pdf = Pdf();
  EXPECT_EQ(NotedText(),
            u"--utf8\n--subject\nСчет N 5\n--body\nЗдравствуйте!\n\n"
            u"Во вложении: Счет N 5.\n--attach\n"_s +
                pdf + u'\n');
  EXPECT_TRUE(pdf.endsWith(u"/Счет N 5.pdf"_s));
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("%PDF"));
  EXPECT_EQ(QFileInfo(QFileInfo(pdf).path()).permissions() & (QFile::ReadGroup | QFile::ReadOther),
            QFile::Permissions());
  EXPECT_EQ(told_, QString());
}

TEST_F(MailTest, WithoutAMailProgramThePersonIsToldWhereTheFileLies) {
  for (const bool there : {false, true}) {
    told_.clear();
    if (there) PutProgram(3);  // no mail program could be started
    Mail();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !told_.isEmpty(); }));
    EXPECT_TRUE(told_.contains(u"Почтовая программа не найдена"_s)) << told_.toStdString();
    EXPECT_TRUE(QFile::exists(told_.section(u'\n', 1, 1))) << told_.toStdString();
  }
}

}  // namespace
}  // namespace kladez::viewer
