#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "books/store/SettingsStore.h"

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

}  // namespace
}  // namespace kladez
