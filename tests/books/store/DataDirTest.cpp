#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include "TempData.h"
#include "books/store/DataDir.h"

namespace kladez {
namespace {

// The errno with which an action is refused, 0 for none.
template <typename Action>
int Refusal(const Action& action) {
  try {
    action();
    return 0;
  } catch (const std::filesystem::filesystem_error& error) {
    return error.code().value();
  }
}

TEST(DataDir, PathsThatLeadOutAreRefused) {
  TempData temp;
  temp.Put(u"0001\\f"_s, "x");
  const QDir root(temp.Root());
  QFile::link(u"/etc"_s, root.filePath(u"out"_s));
  QFile::link(u"/etc/passwd"_s, root.filePath(u"0001/file"_s));
  QFile::link(u"../../.."_s, root.filePath(u"0001/up"_s));
  QFile::link(u"nowhere"_s, root.filePath(u"dangling"_s));
  QFile::link(u"loop"_s, root.filePath(u"loop"_s));
  const struct {
    QString path;
    int error;
  } cases[] = {
      {u""_s, EINVAL},
      {u"\\"_s, EINVAL},
      {u"."_s, EINVAL},
      {u".."_s, EINVAL},
      {u"..\\"_s, EINVAL},
      {u"0001\\.."_s, EINVAL},
      {u"0001\\..\\..\\x"_s, EINVAL},
      {u"no\\..\\.."_s, EINVAL},
      {u"0001\\.\\f"_s, EINVAL},
      {u"0001\\\\f"_s, EINVAL},
      {u"0001\\\\"_s, EINVAL},
      {u"\\0001\\f"_s, EINVAL},
      {u"\\\\server\\share"_s, EINVAL},
      {u"/etc/passwd"_s, EINVAL},
      {u"0001/f"_s, EINVAL},
      {u"0001\\../x"_s, EINVAL},
      {u"../x"_s, EINVAL},
      {QString(u"0001\\f\0.txt"_s), EINVAL},
      {u".kladez-save"_s, EINVAL},
      {u".Kladez-Save.new.0"_s, EINVAL},
      {u".KLADEZ-save\\manifest"_s, EINVAL},
      {u"out"_s, ELOOP},
      {u"OUT\\passwd"_s, ELOOP},
      {u"0001\\file"_s, ELOOP},
      {u"0001\\up\\x"_s, ELOOP},
      {u"dangling"_s, ELOOP},
      {u"loop\\x"_s, ELOOP},
  };
  for (const auto& c : cases) {
    const std::string name = c.path.toStdString();
    EXPECT_EQ(Refusal([&] { temp.Data().Resolve(c.path); }), c.error) << name;
    EXPECT_EQ(Refusal([&] { temp.Data().Read(c.path); }), c.error) << name;
    EXPECT_FALSE(temp.Data().FileExists(c.path)) << name;
    EXPECT_FALSE(temp.Data().DirectoryExists(c.path)) << name;
    EXPECT_FALSE(temp.Data().ReadIfAny(c.path)) << name;
  }
}

TEST(DataDir, NamesThatOnlyLookDangerousArePlain) {
  TempData temp;
  for (const QString& path :
       {u"0001\\..."_s, u"0001\\..x"_s, u"0001\\C:"_s, u"0001\\ "_s, u"0001\\a\nb"_s, u"0001\\*"_s,
        u"0001\\.kladez-save"_s, u"<b>"_s, u"Склад «Ёлка» №1"_s}) {
    temp.Put(path, "x");
    EXPECT_EQ(temp.Bytes(path), "x") << path.toStdString();
  }
}

TEST(DataDir, LongNamesAreAnErrorAndNoCrash) {
  TempData temp;
  temp.Put(QString(255, u'a'), "x");
  EXPECT_EQ(temp.Bytes(QString(255, u'A')), "x");
  for (const QString& path :
       {QString(256, u'a'), QString(128, u'ж'), QString(5000, u'a'), u"a\\"_s.repeated(3000)}) {
    EXPECT_FALSE(temp.Data().FileExists(path));
    EXPECT_NE(Refusal([&] { temp.Data().Read(path); }), 0);
  }
}

TEST(DataDir, NamesAreFoundWhateverTheirLetterCase) {
  TempData temp;
  temp.Put(u"0001\\Главный склад\\PRICE\\0001.prc"_s, "x");
  temp.Put(u"0001\\SPR\\товар.spr"_s, "y");
  temp.Put(u"0001\\Ёлка"_s, "z");
  EXPECT_EQ(temp.Bytes(u"0001\\ГЛАВНЫЙ СКЛАД\\price\\0001.PRC"_s), "x");
  EXPECT_EQ(temp.Bytes(u"0001\\главный склад\\Price\\0001.prc"_s), "x");
  EXPECT_EQ(temp.Bytes(u"0001\\spr\\ТОВАР.SPR"_s), "y");
  EXPECT_EQ(temp.Bytes(u"0001\\ёЛКА"_s), "z");
  EXPECT_TRUE(temp.Data().DirectoryExists(u"0001\\spr\\"_s));
  EXPECT_FALSE(temp.Data().FileExists(u"0001\\Елка"_s));
  EXPECT_FALSE(temp.Data().FileExists(u"0001\\SPR"_s));
  EXPECT_FALSE(temp.Data().DirectoryExists(u"0001\\SPR\\товар.spr"_s));
  EXPECT_FALSE(temp.Data().FileExists(u"0001\\SPR\\товар.spr\\x"_s));
  // What is not there keeps the spelling given, below the spelling of what is.
  EXPECT_EQ(temp.Data().Resolve(u"0001\\spr\\Новый"_s), QString(temp.Root() + u"/0001/SPR/Новый"));
}

TEST(DataDir, TheExactSpellingComesFirst) {
  TempData temp;
  for (const QString& name : {u"б"_s, u"Б"_s}) {
    QFile file(temp.Root() + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(name.toUtf8());
  }
  EXPECT_EQ(temp.Bytes(u"б"_s), u"б"_s.toUtf8());
  EXPECT_EQ(temp.Bytes(u"Б"_s), u"Б"_s.toUtf8());
}

TEST(DataDir, OfTwoOtherSpellingsEveryMachineTakesTheSame) {
  TempData temp;
  for (const QString& name : {u"ааА"_s, u"аАа"_s, u"Ааа"_s}) {
    QFile file(temp.Root() + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  EXPECT_EQ(temp.Data().Resolve(u"ааа"_s), QString(temp.Root() + u"/Ааа"));
}

TEST(DataDir, LinksInsideTheDirectoryAreFollowed) {
  TempData temp;
  temp.Put(u"real\\f"_s, "x");
  QFile::link(u"real"_s, temp.Root() + u"/0001"_s);
  EXPECT_EQ(temp.Bytes(u"0001\\f"_s), "x");
}

// Neither a pipe that nobody writes to nor a file beyond all memory may stop the program.
TEST(DataDir, WhatIsNoReadableFileIsAnError) {
  TempData temp;
  temp.Put(u"huge"_s, "");
  ASSERT_EQ(::mkfifo(temp.MachinePath(u"pipe"_s).constData(), 0600), 0);
  ASSERT_EQ(::truncate(temp.MachinePath(u"huge"_s).constData(), off_t{1} << 40), 0);
  QDir(temp.Root()).mkdir(u"directory"_s);
  EXPECT_EQ(Refusal([&] { temp.Data().Read(u"pipe"_s); }), EISDIR);
  EXPECT_EQ(Refusal([&] { temp.Data().Read(u"directory"_s); }), EISDIR);
  EXPECT_EQ(Refusal([&] { temp.Data().Read(u"huge"_s); }), EFBIG);
  EXPECT_EQ(Refusal([&] { temp.Data().Read(u"none"_s); }), ENOENT);
  EXPECT_EQ(Refusal([&] { temp.Data().List(u"none"_s, u".prh"); }), ENOENT);
  EXPECT_EQ(Refusal([&] { DataDir(QString(temp.Root() + u"/none")); }), ENOENT);
}

TEST(DataDir, ListsFilesOfAnExtensionInTheOrderOfNames) {
  TempData temp;
  for (const QString& name : {u"0010.prh"_s, u"0002.PRH"_s, u"10000.prh"_s, u"я.prh"_s, u"Б.Prh"_s,
                              u"а.prh"_s, u".prh"_s, u"0001.prh1"_s, u"0001.uhd"_s, u"prh"_s}) {
    temp.Put(u"D\\"_s + name, name.toUtf8());
  }
  QDir(temp.Root()).mkpath(u"D/0005.prh"_s);  // a directory is no file
  EXPECT_EQ(temp.Data().List(u"d\\"_s, u".prh"),
            (QStringList{u".prh"_s, u"0002.PRH"_s, u"0010.prh"_s, u"10000.prh"_s, u"а.prh"_s,
                         u"Б.Prh"_s, u"я.prh"_s}));
  EXPECT_EQ(temp.Data().List({}, u".prh"), QStringList());
}

TEST(DataDir, EveryListedFileIsHandedOverEvenOneThatCannotBeRead) {
  TempData temp;
  temp.Put(u"D\\1.prh"_s, "one, the longest");
  temp.Put(u"D\\2.prh"_s, "");
  temp.Put(u"D\\3.prh"_s, "");
  temp.Put(u"D\\4.prh"_s, "four");
  ASSERT_EQ(::truncate(temp.MachinePath(u"D\\3.prh"_s).constData(), off_t{1} << 40), 0);
  std::vector<std::pair<QString, std::optional<QByteArray>>> seen;
  const auto visit = [&](const DataDir::ListedFile& file) {
    EXPECT_EQ(file.index, static_cast<qsizetype>(seen.size()));
    EXPECT_EQ(file.count, 4);
    seen.emplace_back(file.name,
                      file.bytes ? std::optional(file.bytes->toByteArray()) : std::nullopt);
    return true;
  };
  temp.Data().ForEachFile(u"D"_s, u".prh", visit);
  const decltype(seen) expected = {
      {u"1.prh"_s, "one, the longest"}, {u"2.prh"_s, ""}, {u"3.prh"_s, {}}, {u"4.prh"_s, "four"}};
  EXPECT_EQ(seen, expected);
  int count = 0;
  temp.Data().ForEachFile(u"D"_s, u".prh", [&](const auto&) { return ++count < 2; });
  EXPECT_EQ(count, 2);
}

TEST(DataDir, OnlyOneDirectoryNameWithABackslashIsATreePath) {
  for (const QString& path : {u"0001\\"_s, u"Ёлка 1\\"_s, u"...\\"_s}) {
    EXPECT_TRUE(IsPlainTreePath(path)) << path.toStdString();
  }
  for (const QString& path :
       {u""_s, u"\\"_s, u"0001"_s, u"..\\"_s, u".\\"_s, u"0001\\\\"_s, u"0001\\SPR\\"_s,
        u"\\0001\\"_s, u"/etc\\"_s, u"a/b\\"_s, QString(u"a\0\\"_s)}) {
    EXPECT_FALSE(IsPlainTreePath(path)) << path.toStdString();
  }
}

}  // namespace
}  // namespace kladez
