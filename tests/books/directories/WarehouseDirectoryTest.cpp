#include "DirectoryWorld.h"
#include "books/directories/WarehouseDirectory.h"

namespace kladez {
namespace {

using FileError = std::filesystem::filesystem_error;

class WarehouseDirectoryTest : public testing::Test {
 protected:
  WarehouseDirectory Open() { return WarehouseDirectory(world_.Data(), world_.CurrentSession()); }

  DirectoryWorld world_;
};

TEST_F(WarehouseDirectoryTest, NewWarehouseIsMadeWithAllThatItHolds) {
  world_.Remember();
  Open().Create(u"Второй"_s);
  const std::map<std::string, QStringList> made = {
      {"0001/склад.usd", {u"Главный склад"_s, u"Второй"_s}},
      {"0001/Второй/", {}},
      {"0001/Второй/OPR/", {}},
      {"0001/Второй/PRH/", {}},
      {"0001/Второй/PRICE/", {}},
      {"0001/Второй/UHD/", {}},
      {"0001/Второй/price.usd", {u"Розница"_s, u"Мелкий опт"_s, u"Опт"_s}},
      {"0001/Второй/товар.usl", {}},
      {"0001/Второй/PRICE/0001.prc", {}},
      {"0001/Второй/PRICE/0002.prc", {}},
      {"0001/Второй/PRICE/0003.prc", {}},
      {"0001/Второй/PRICE/0004.prc", {}},
      {"0001/Второй/PRICE/0005.prc", {}},
  };
  world_.ExpectChanged(made);
  EXPECT_EQ(world_.CurrentSession().warehouses, (QStringList{u"Главный склад"_s, u"Второй"_s}));
}

TEST_F(WarehouseDirectoryTest, RefusedNamesChangeNeitherListNorDisk) {
  // A directory of the tree itself, names that lead out, a name that differs in letter case only,
  // a file's name, a name too long for a directory, the selectors' name for all warehouses.
  const QStringList names = {u"SPR"_s,
                             u"внпер"_s,
                             u".."_s,
                             u"."_s,
                             {},
                             u"главный СКЛАД"_s,
                             u"склад.usd"_s,
                             QString(300, u'я'),
                             u"..\\0002"_s,
                             kAllWarehouses.toString()};
  world_.Remember();
  WarehouseDirectory warehouses = Open();
  for (const QString& name : names) {
    SCOPED_TRACE(name.toStdString());
    EXPECT_THROW(warehouses.Create(name), FileError);
    EXPECT_THROW(warehouses.Rename(0, name == names[5] ? u"SPR"_s : name), FileError);
    EXPECT_EQ(warehouses.Names(), QStringList{u"Главный склад"_s});
    world_.ExpectUnchanged();
  }
}

TEST_F(WarehouseDirectoryTest, NamesThatWindowsKeepsForItselfAreForOldWarehousesOnly) {
  const QStringList kept = {u"CON"_s,      u"nul"_s,  u"Aux.старый"_s, u"prn ."_s,  u"COM1"_s,
                            u"lpt9.txt"_s, u"com³"_s, u"CONIN$"_s,     u"Лавка "_s, u"Лавка."_s,
                            u"а\tб"_s,     u"а:б"_s,  u"а\x1F"_s};
  world_.Remember();
  WarehouseDirectory warehouses = Open();
  for (const QString& name : kept) {
    SCOPED_TRACE(name.toStdString());
    EXPECT_THROW(warehouses.Create(name), FileError);
    EXPECT_THROW(warehouses.Rename(0, name), FileError);
    world_.ExpectUnchanged();
  }
  // Made elsewhere: it is worked with as any other, and may get a better name.
  QDir(world_.Temp().Root()).mkpath(u"0001/con"_s);
  world_.CurrentSession().warehouses.append(u"con"_s);
  WarehouseDirectory old = Open();
  old.Rename(1, u"con"_s);
  old.Rename(1, u"Конный двор"_s);
  EXPECT_TRUE(world_.Data().DirectoryExists(u"0001\\Конный двор"_s));
  for (const QString& name : {u" COM"_s, u"COM10"_s, u"Consul"_s, u".nul"_s}) old.Create(name);
}

TEST_F(WarehouseDirectoryTest, RenameMovesTheDirectoryAloneUntilItIsSaved) {
  Open().Create(u"Второй"_s);
  world_.PutLines(u"Второй\\товар.usl"_s, {u"Чай"_s, u"1"_s, u"пач."_s});
  WarehouseDirectory warehouses = Open();
  warehouses.Rename(1, u"Третий"_s);
  EXPECT_EQ(world_.Lines(u"Третий\\товар.usl"_s), (QStringList{u"Чай"_s, u"1"_s, u"пач."_s}));
  EXPECT_FALSE(world_.Data().DirectoryExists(u"0001\\Второй"_s));
  EXPECT_EQ(world_.Lines(u"склад.usd"_s), (QStringList{u"Главный склад"_s, u"Второй"_s}));
  EXPECT_EQ(world_.CurrentSession().warehouses, (QStringList{u"Главный склад"_s, u"Второй"_s}));
  warehouses.Save();
  EXPECT_EQ(world_.Lines(u"склад.usd"_s), (QStringList{u"Главный склад"_s, u"Третий"_s}));
  EXPECT_EQ(world_.CurrentSession().warehouses, (QStringList{u"Главный склад"_s, u"Третий"_s}));
}

TEST_F(WarehouseDirectoryTest, RenameMayChangeLetterCaseOrNothing) {
  WarehouseDirectory warehouses = Open();
  warehouses.Rename(0, u"Главный склад"_s);
  warehouses.Rename(0, u"ГЛАВНЫЙ склад"_s);
  EXPECT_TRUE(QDir(world_.Temp().Root() + u"/0001/ГЛАВНЫЙ склад"_s).exists());
  EXPECT_FALSE(QDir(world_.Temp().Root() + u"/0001/Главный склад"_s).exists());
}

TEST_F(WarehouseDirectoryTest, DeleteTakesTheTreeAndTheNameAtOnce) {
  world_.Remember();
  WarehouseDirectory warehouses = Open();
  warehouses.Create(u"Второй"_s);
  world_.PutLines(u"Второй\\PRH\\0001.prh"_s, {u"1"_s});
  warehouses.Delete(1);
  world_.ExpectUnchanged();
  EXPECT_EQ(world_.CurrentSession().warehouses, QStringList{u"Главный склад"_s});
  warehouses.Delete(0);
  world_.ExpectUnchanged();
}

TEST_F(WarehouseDirectoryTest, NameWhoseDirectoryIsGoneCanBeDeleted) {
  Open().Create(u"Второй"_s);
  Open().Rename(1, u"Третий"_s);
  Open().Delete(1);
  EXPECT_EQ(world_.Lines(u"склад.usd"_s), QStringList{u"Главный склад"_s});
  EXPECT_TRUE(world_.Data().DirectoryExists(u"0001\\Третий"_s));
}

TEST_F(WarehouseDirectoryTest, DeletingAForeignLineOfTheListKeepsTheDatabase) {
  // A list edited by hand: the paths of these would be the Database itself and the catalogue.
  world_.CurrentSession().warehouses = {u"Главный склад"_s, {}, u".."_s, u"SPR\\.."_s};
  world_.Remember();
  WarehouseDirectory warehouses = Open();
  for (int row = 1; row <= 3; ++row) EXPECT_THROW(warehouses.Delete(row), FileError);
  world_.ExpectUnchanged();
}

TEST(WarehouseName, NineCharactersAreForbidden) {
  for (const QChar c : u"\\/:*?\"<>|"_s) {
    const QString name = u"а"_s + c;
    EXPECT_TRUE(HoldsForbiddenCharacter(name)) << name.toStdString();
  }
  EXPECT_FALSE(HoldsForbiddenCharacter(u" Склад №1, (двор) 'б' . "_s));
}

}  // namespace
}  // namespace kladez
