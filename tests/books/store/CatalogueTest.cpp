#include <sys/stat.h>
#include <unistd.h>

#include "TempData.h"
#include "books/store/Catalogue.h"
#include "books/store/DirectorPassword.h"
#include "books/store/Errors.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using Tree = std::map<std::string, std::string>;

std::string Bytes(const QStringList& lines) { return EncodeLines(lines).toStdString(); }

Tree NewTree(const std::string& number, const QString& name) {
  const QString base = QString::fromStdString(number);
  const std::string main = number + "/Главный склад";
  return {
      {number + ".us", Bytes({base + u'\\', name})},
      {number + "/", ""},
      {number + "/KASS/", ""},
      {number + "/KASS/PRH/", ""},
      {number + "/KASS/UHD/", ""},
      {number + "/SPR/", ""},
      {number + "/ВНПЕР/", ""},
      {main + "/", ""},
      {main + "/OPR/", ""},
      {main + "/PRH/", ""},
      {main + "/PRICE/", ""},
      {main + "/UHD/", ""},
      {number + "/marked", ""},
      {number + "/склад.usd", Bytes({u"Главный склад"_s})},
      {number + "/currency.usd", Bytes({u"руб."_s, u"рубль"_s, u"рубля"_s, u"рублей"_s, u"коп."_s,
                                        u"копейка"_s, u"копейки"_s, u"копеек"_s})},
      {main + "/price.usd", Bytes({u"Розница"_s, u"Мелкий опт"_s, u"Опт"_s})},
      {main + "/товар.usl", ""},
      {main + "/PRICE/0001.prc", ""},
      {main + "/PRICE/0002.prc", ""},
      {main + "/PRICE/0003.prc", ""},
      {main + "/PRICE/0004.prc", ""},
      {main + "/PRICE/0005.prc", ""},
      {number + "/SPR/firma.spr", Bytes(QStringList{u"Ваша фирма"_s} + QStringList(14, u"-"_s))},
      {number + "/SPR/klient.spr", ""},
      {number + "/SPR/post.spr", ""},
      {number + "/SPR/товар.spr", ""},
  };
}

TEST(Catalogue, NewDatabaseHoldsExactlyWhatItShould) {
  const TempData temp;
  EXPECT_EQ(CreateDatabase(temp.Data(), u"Магазин"_s), u"0001\\"_s);
  EXPECT_EQ(temp.Tree(), NewTree("0001", u"Магазин"_s));
}

TEST(Catalogue, NumberIsOneAboveTheLastByName) {
  struct Case {
    QStringList files;
    qint64 next;
  };
  const std::vector<Case> cases = {
      {{}, 1},
      {{u"0001.us"_s, u"0003.us"_s}, 4},
      {{u"0001.us"_s}, 2},
      {{u"0011.US"_s}, 12},
      {{u"9999.us"_s}, 10000},
      {{u"0002.us"_s, u"заметки.us"_s}, 1},
      {{u"0001.5.us"_s}, 3},
      {{u"3000000000.us"_s}, 3000000001},
      {{u"7e77.us"_s}, 1000000000000001},
  };
  for (const Case& c : cases) {
    const TempData temp;
    for (const QString& file : c.files) temp.Put(file, {});
    EXPECT_EQ(NextDatabaseNumber(temp.Data()), c.next) << c.files.join(u' ').toStdString();
  }
  EXPECT_EQ(NumberedName(12), u"0012"_s);
  EXPECT_EQ(NumberedName(10000), u"10000"_s);
}

TEST(Catalogue, NothingThatStandsUnderTheNumberIsWrittenOver) {
  for (const QString& taken : {u"0001\\нужное.txt"_s, u"0001.us"_s}) {
    const TempData temp;
    temp.PutLines(taken, {u"чужое"_s});
    temp.PutLines(u"заметки.us"_s, {u"x\\"_s, u"последний по имени, числа в нём нет"_s});
    const Tree before = temp.Tree();
    EXPECT_EQ(CreateDatabase(temp.Data(), u"Новая"_s), u"0002\\"_s);
    Tree after = temp.Tree();
    std::erase_if(after, [](const auto& entry) { return entry.first.starts_with("0002"); });
    EXPECT_EQ(after, before);
  }
}

// "Лавка" and "лавка" are one directory: its ledger must not be emptied.
TEST(Catalogue, ANewWarehouseNeverTakesOverAnotherOfTheSameLetters) {
  const TempData temp;
  CreateDatabase(temp.Data(), u"А"_s);
  temp.Put(u"0001\\Главный склад\\товар.usl"_s, "precious");
  const Tree before = temp.Tree();
  SaveSet save(temp.Data());
  AddNewWarehouse(save, u"0001\\ГЛАВНЫЙ склад"_s);
  EXPECT_THROW(save.Commit(), std::filesystem::filesystem_error);
  EXPECT_EQ(temp.Tree(), before);
}

TEST(Catalogue, FailureOnTheWayLeavesNoHalfDatabase) {
  const TempData temp;
  CreateDatabase(temp.Data(), u"Первая"_s);
  const Tree before = temp.Tree();
  int failures = 0;
  for (int fault = 0;; fault += 3) {
    int call = 0;
    bool failing = false;
    syscalls::SetFaultHook([&](std::string_view, const QByteArray&) {
      if (call++ != fault) return 0;
      failing = true;
      return ENOSPC;
    });
    const bool created = IgnoreErrors([&] { CreateDatabase(temp.Data(), u"Вторая"_s); });
    syscalls::SetFaultHook({});
    SaveSet::Recover(temp.Data());
    if (!failing) break;
    ++failures;
    if (created) {
      DeleteDatabase(temp.Data(), ListDatabases(temp.Data()).back());
    }
    ASSERT_EQ(temp.Tree(), before) << "fault at call " << fault;
  }
  EXPECT_GT(failures, 20);
}

TEST(Catalogue, UnreadableDescriptorIsARowWithoutName) {
  const TempData temp;
  temp.PutLines(u"0001.us"_s, {u"0001\\"_s, u"Первая"_s});
  temp.Put(u"0002.us"_s, {});
  temp.PutLines(u"0003.us"_s, {u"0003\\"_s, u"Третья"_s});
  temp.Put(u"0004.us"_s, "0004\\\r\n" + QByteArray(100000, 'x'));
  const auto entries = ListDatabases(temp.Data());
  ASSERT_EQ(entries.size(), 4u);
  EXPECT_EQ(entries[1].descriptor, DatabaseDescriptor{});
  EXPECT_EQ(entries[3].descriptor, DatabaseDescriptor{});
  EXPECT_EQ(entries[2].descriptor.name, u"Третья"_s);
}

TEST(Catalogue, RenameTouchesTheSecondLineOnly) {
  const TempData temp;
  CreateDatabase(temp.Data(), u"Магазин"_s);
  RenameDatabase(temp.Data(), ListDatabases(temp.Data()).front(), u"Склад <b>"_s);
  EXPECT_EQ(temp.Tree(), NewTree("0001", u"Склад <b>"_s));
}

// The path is read anew: a row that could not be read must not lose its descriptor's first line.
TEST(Catalogue, RenameKeepsAPathThatTheListDidNotShow) {
  const TempData temp;
  temp.PutLines(u"0001.us"_s, {u"..\\elsewhere\\"_s, u"А"_s, u"third"_s});
  RenameDatabase(temp.Data(), {u"0001.us"_s, {}}, u"Б"_s);
  EXPECT_EQ(temp.Lines(u"0001.us"_s), (QStringList{u"..\\elsewhere\\"_s, u"Б"_s}));
}

TEST(Catalogue, ReadOnlyTreeIsDeletedWhole) {
  const TempData temp;
  CreateDatabase(temp.Data(), u"Магазин"_s);
  const QByteArray root = QFile::encodeName(temp.Root());
  for (const char* path : {"/0001/marked", "/0001/SPR", "/0001/Главный склад/PRICE", "/0001"}) {
    ASSERT_EQ(::chmod(QByteArray(root + path).constData(), 0555), 0);
  }
  DeleteDatabase(temp.Data(), ListDatabases(temp.Data()).front());
  EXPECT_TRUE(temp.Tree().empty());
}

TEST(Catalogue, DescriptorOfATreeThatIsGoneCanBeDeleted) {
  const TempData temp;
  temp.PutLines(u"0001.us"_s, {u"0001\\"_s, u"Стёрта с диска"_s});
  DeleteDatabase(temp.Data(), ListDatabases(temp.Data()).front());
  EXPECT_TRUE(temp.Tree().empty());
}

TEST(Catalogue, PathThatLeadsElsewhereIsNeverDeleted) {
  for (const QString& path : {u"..\\"_s, u"\\"_s, u""_s, u"/etc\\"_s, u"0001"_s, u"a\\b\\"_s}) {
    const TempData temp;
    temp.Put(u"0001\\marked"_s, "x");
    temp.PutLines(u"0001.us"_s, {path, u"Чужая"_s});
    const Tree before = temp.Tree();
    try {
      DeleteDatabase(temp.Data(), ListDatabases(temp.Data()).front());
      ADD_FAILURE() << path.toStdString();
    } catch (const std::filesystem::filesystem_error& error) {
      EXPECT_TRUE(ErrorText(error).contains(u"0001.us"_s)) << ErrorText(error).toStdString();
    }
    EXPECT_EQ(temp.Tree(), before);
  }
}

// A plain name is not enough: the directory beside the descriptor may be a link.
TEST(Catalogue, TreeBehindALinkThatLeadsOutIsNeverDeleted) {
  const TempData outside;
  outside.Put(u"marked"_s, "x");
  const TempData temp;
  temp.PutLines(u"0001.us"_s, {u"0001\\"_s, u"Чужая"_s});
  const QByteArray link = QFile::encodeName(temp.Root() + u"/0001"_s);
  ASSERT_EQ(::symlink(QFile::encodeName(outside.Root()).constData(), link.constData()), 0);
  try {
    DeleteDatabase(temp.Data(), ListDatabases(temp.Data()).front());
    ADD_FAILURE() << "nothing was refused";
  } catch (const std::filesystem::filesystem_error& error) {
    const QString told = ErrorText(error);
    EXPECT_TRUE(told.contains(u"0001.us"_s) && told.contains(u"ссылка"_s)) << told.toStdString();
  }
  EXPECT_EQ(temp.Lines(u"0001.us"_s), (QStringList{u"0001\\"_s, u"Чужая"_s}));
  EXPECT_EQ(outside.Bytes(u"marked"_s), "x");
}

TEST(Catalogue, OpenTreeIsKnownUnderEverySpelling) {
  const TempData temp;
  temp.Put(u"Лавка\\marked"_s, "x");
  temp.Put(u"0002\\marked"_s, "y");
  ASSERT_EQ(::symlink("Лавка", QFile::encodeName(temp.Root() + u"/0001"_s).constData()), 0);
  Session session;
  const auto in_use = [&](const QString& path) {
    return IsInUse(temp.Data(), session, {u"0001.us"_s, {path, u"А"_s}});
  };
  EXPECT_FALSE(in_use({}));
  session.base_path = u"Лавка\\"_s;
  for (const QString& path : {u"Лавка\\"_s, u"ЛАВКА\\"_s, u"0001\\"_s}) {
    EXPECT_TRUE(in_use(path)) << path.toStdString();
  }
  for (const QString& path : {u""_s, u"0002\\"_s, u"..\\"_s, u"нет\\"_s}) {
    EXPECT_FALSE(in_use(path)) << path.toStdString();
  }
  // The open one may have been removed from the disk meanwhile.
  session.base_path = u"0009\\"_s;
  EXPECT_TRUE(in_use(u"0009\\"_s));
}

TEST(Catalogue, PositionPicksTheRowThatWasLeft) {
  struct Case {
    int position;
    int rows;
    int row;
    int import_row;
  };
  for (const Case& c :
       {Case{1, 3, 0, 0}, Case{3, 3, 2, 2}, Case{4, 3, 2, 0}, Case{5, 3, 0, 0}, Case{0, 3, 0, 0},
        Case{-7, 3, 0, 0}, Case{1, 0, -1, -1}, Case{1000000, 2, 0, 0}}) {
    EXPECT_EQ(RowAtPosition(c.position, c.rows), c.row) << c.position << " of " << c.rows;
    EXPECT_EQ(ImportRowAtPosition(c.position, c.rows), c.import_row)
        << c.position << " of " << c.rows;
  }
}

TEST(Catalogue, APasswordIsKnownByItsHashToo) {
  const QString line =
      u"{kladez}4096$73616c74$c5e478d59288c841aa530db6845c4c8d962893a001ce4e11a4963873aa98134a"_s;
  EXPECT_TRUE(IsPassword(line, u"password"_s));
  for (const QString& wrong : {u"Password"_s, QString(), line}) {
    EXPECT_FALSE(IsPassword(line, wrong)) << wrong.toStdString();
  }
  const QString made = HashedPasswordLine(u"Пароль"_s);
  EXPECT_NE(made, HashedPasswordLine(u"Пароль"_s));
  EXPECT_TRUE(IsPassword(made, u"Пароль"_s));
  EXPECT_FALSE(IsPassword(made, u"пароль"_s));
  // What only looks like our form is a password as it stands.
  for (const QString& plain : {u"{kladez}1$2"_s, u"{kladez}0$00$00"_s, u"secret"_s}) {
    EXPECT_TRUE(IsPassword(plain, plain)) << plain.toStdString();
  }
}

TEST(Catalogue, ThePasswordIsForItsOwnerOnlyOnceItIsRead) {
  const TempData temp;
  temp.PutLines(u"bases.psw"_s, {u"secret"_s});
  const QString file = temp.Data().Resolve(u"bases.psw"_s);
  QFile::setPermissions(file, QFile::Permissions(0x6644));
  EXPECT_EQ(ReadPasswordLine(temp.Data()), u"secret"_s);
  EXPECT_EQ(QFile::permissions(file) & 0x0077, 0);
}

TEST(Catalogue, PasswordIsTheFirstLineOnly) {
  const TempData temp;
  EXPECT_EQ(ReadPasswordLine(temp.Data()), QString());
  temp.Put(u"bases.psw"_s, "\r\nsecond\r\n");
  EXPECT_EQ(ReadPasswordLine(temp.Data()), QString());
  temp.PutLines(u"BASES.PSW"_s, {u" Пароль "_s, u"x"_s});
  EXPECT_EQ(ReadPasswordLine(temp.Data()), u" Пароль "_s);
  // The file is placed by hand, and most editors here end a line otherwise.
  temp.Put(u"BASES.PSW"_s, "secret\n");
  EXPECT_EQ(ReadPasswordLine(temp.Data()), u"secret"_s);
  temp.Put(u"BASES.PSW"_s, "\nsecond\n");
  EXPECT_EQ(ReadPasswordLine(temp.Data()), QString());
}

}  // namespace
}  // namespace kladez
