#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <cerrno>

#include "DiesAtStep.h"
#include "books/store/SettingsStore.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class SettingsStoreTest : public testing::Test {
 protected:
  QTemporaryDir directory_;
  QString file_ = directory_.filePath(u"new/settings.ini"_s);
};

TEST_F(SettingsStoreTest, AbsentKeysReadAsTheirDefaults) {
  const SettingsStore store(file_);
  EXPECT_EQ(store.Read(settings::kBaseName), QString());
  EXPECT_EQ(store.ReadInt(settings::kFilePos), 1);
  EXPECT_EQ(store.Read(settings::kSort), u"AZ"_s);
  EXPECT_TRUE(store.ReadBool(settings::kPriceGroups));
  EXPECT_FALSE(store.ReadBool(settings::kPriceGoodsOnly));
  EXPECT_TRUE(store.ReadBool(settings::kTip));
  EXPECT_FALSE(QFile::exists(file_));
}

// The command that ends the program leaves no time for writing.
TEST_F(SettingsStoreTest, TextsComeBackAsTheyWereFromTheFileAtOnce) {
  SettingsStore writer(file_);
  for (const QString& text :
       {u"0001\\"_s, u"Магазин «Ёлка»"_s, u"a, b"_s, u"a;b=c"_s, u"\"q\""_s, u"@Invalid()"_s,
        u"@x"_s, u" blanks "_s, u"100%"_s, u"[General]"_s, u"line\nbreak"_s, u""_s, u"\\n"_s}) {
    writer.Write(settings::kBaseTitle, text);
    EXPECT_EQ(SettingsStore(file_).Read(settings::kBaseTitle), text) << text.toStdString();
  }
}

TEST_F(SettingsStoreTest, TheTransfersOrderIsKeptApart) {
  SettingsStore store(file_);
  store.Write(settings::kTransferSort, u"ZA"_s);
  EXPECT_EQ(store.Read(settings::kSort), u"AZ"_s);
  store.Write(settings::kSort, u"ZA"_s);
  store.Write(settings::kTransferSort, u"AZ"_s);
  EXPECT_EQ(store.Read(settings::kSort), u"ZA"_s);
}

TEST_F(SettingsStoreTest, BooleansAreWordsAndNumbersCountToo) {
  SettingsStore store(file_);
  store.WriteBool(settings::kPriceGroups, false);
  EXPECT_EQ(store.Read(settings::kPriceGroups), u"False"_s);
  const struct {
    QString text;
    bool on;
  } cases[] = {{u"True"_s, true}, {u"true"_s, true}, {u"False"_s, false}, {u"1"_s, true},
               {u"-1"_s, true},   {u"0"_s, false},   {u""_s, false},      {u"да"_s, false}};
  for (const auto& c : cases) {
    store.Write(settings::kPriceGroups, c.text);
    EXPECT_EQ(store.ReadBool(settings::kPriceGroups), c.on) << c.text.toStdString();
  }
}

TEST_F(SettingsStoreTest, DamagedNumbersAndFilesReadAsDefaults) {
  {
    SettingsStore store(file_);
    for (const QString& text : {u"abc"_s, u""_s, u"1e"_s}) {
      store.Write(settings::kFilePos, text);
      EXPECT_EQ(store.ReadInt(settings::kFilePos), 1) << text.toStdString();
    }
    store.Write(settings::kFilePos, u"1e300"_s);
    EXPECT_EQ(store.ReadInt(settings::kFilePos), 0);
  }
  QFile file(file_);
  for (const QByteArray& bytes : {QByteArray("[Kladez4]\nSorting\\Sort=A, Z\n"),
                                  QByteArray("\0\xFF\n[[[\n=\n[Kladez4]\nSorting\\Sort", 32)}) {
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(bytes);
    file.close();
    EXPECT_EQ(SettingsStore(file_).Read(settings::kSort), u"AZ"_s);
  }
}

TEST_F(SettingsStoreTest, WithoutAPlaceToWriteTheProgramGoesOn) {
  QFile blocked(directory_.filePath(u"new"_s));
  ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));  // a file where the directory should be
  SettingsStore store(file_);
  store.Write(settings::kSort, u"ZA"_s);
  EXPECT_EQ(store.Read(settings::kSort), u"ZA"_s);
}

// Files that the program wrote before stay what they are, and what it writes now is read alike.
TEST_F(SettingsStoreTest, TheFileIsReadAndWrittenAsEver) {
  const QStringList texts = {u"0001\\"_s,
                             u"Лавка; «Ёлка», a=b"_s,
                             u" "_s,
                             u"@x"_s,
                             u"\x01"
                             u"1"_s,
                             u"\"\n\t"_s,
                             u"True"_s,
                             {}};
  for (const QString& text : texts) {
    // Another one each time: the old reader takes a file of the same size for the same file.
    const QString file = directory_.filePath(QString::number(&text - texts.data()));
    {
      QSettings old(file, QSettings::IniFormat);
      old.setValue(u"Kladez4/Main/basename"_s, text);
      old.setValue(u"Other/a"_s, QStringList{u"1"_s, u"2"_s});
    }
    SettingsStore store(file);
    EXPECT_EQ(store.Read(settings::kBaseName), text) << text.toStdString();
    store.Write(settings::kBaseTitle, text);
    const QSettings again(file, QSettings::IniFormat);
    EXPECT_EQ(again.value(u"Kladez4/Main/basename1"_s).toString(), text) << text.toStdString();
    EXPECT_EQ(again.value(u"Other/a"_s).toStringList().size(), 2);
  }
}

TEST_F(SettingsStoreTest, AFaultLeavesTheOldFileOrTheNewOne) {
  SettingsStore(file_).Write(settings::kSort, u"AZ"_s);
  const auto bytes = [this] {
    QFile file(file_);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  const QByteArray old = bytes();
  for (int step = 1, calls = step; calls >= step; ++step) {
    calls = 0;
    syscalls::SetFaultHook([&](auto, auto&) { return ++calls >= step ? ENOSPC : 0; });
    SettingsStore(file_).Write(settings::kSort, u"ZA"_s);
    syscalls::SetFaultHook({});
    const bool good = bytes() == old || SettingsStore(file_).Read(settings::kSort) == u"ZA"_s;
    EXPECT_TRUE(good) << "step " << step;
  }
  for (int step = 1; DiesAtStep(step, [&] { SettingsStore(file_).Write(settings::kSort, {}); });
       ++step) {
    EXPECT_FALSE(bytes().isEmpty()) << "step " << step;
  }
  SettingsStore(file_).Write(settings::kSort, u"AZ"_s);
  EXPECT_EQ(QDir(QFileInfo(file_).path()).entryList(QDir::Files), QStringList(u"settings.ini"_s));
}

// A pipe would hang the start; what is no settings file is not replaced by one either.
TEST_F(SettingsStoreTest, APipeInThePlaceOfTheFileStopsNothing) {
  QDir().mkpath(QFileInfo(file_).path());
  ASSERT_EQ(::mkfifo(QFile::encodeName(file_).constData(), 0600), 0);
  SettingsStore store(file_);
  EXPECT_EQ(store.Read(settings::kSort), u"AZ"_s);
  store.Write(settings::kSort, u"ZA"_s);
  EXPECT_EQ(store.Read(settings::kSort), u"ZA"_s);
  EXPECT_FALSE(QFileInfo(file_).isFile());
}

}  // namespace
}  // namespace kladez
