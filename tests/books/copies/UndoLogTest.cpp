// The last commands are taken back one by one, each whole, and only while nobody has been at their
// files since.
#include <gtest/gtest.h>

#include "books/copies/CopiesWorld.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/store/Errors.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using Refused = std::filesystem::filesystem_error;

class UndoLogTest : public testing::Test {
 protected:
  UndoLogTest() {
    session_.chosen_base = u"0001\\"_s;
    OpenDatabase(session_, world_.Data());
  }
  UndoLog& Undo() { return keeping_.Undo(); }
  void Back() { Undo().UndoLast(session_); }
  // All files of the Database.
  std::map<QString, QString> Tree() const {
    std::map<QString, QString> tree;
    QDirIterator walk(world_.RootPath() + u"/data"_s, QDir::AllEntries | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
      QFile file(walk.next());
      tree[file.fileName()] = file.open(QIODevice::ReadOnly) ? DecodeText(file.readAll()) : u"/"_s;
    }
    return tree;
  }

  CopiesWorld world_;
  SettingsStore settings_{world_.RootPath() + u"/settings.ini"_s};
  const Clock clock_{kMorning};
  Safekeeping keeping_{world_.Data(), settings_, clock_};
  Session session_;
};

TEST_F(UndoLogTest, EachKindOfCommandIsTakenBackWhole) {
  const auto list = [&] { return WarehouseDirectory(world_.Data(), session_); };
  list().Create(u"Лавка"_s);
  const std::vector<std::pair<const char*, std::function<void()>>> commands = {
      {"write", [&] { world_.Save("marked", "Чай\r\n", u"отметки"_s); }},
      {"new file", [&] { world_.Save("Главный склад\\PRH\\0009.prh", "9", u"приход"_s); }},
      {"delete",
       [&] {
         SaveSet save(world_.Data(), u"накладная 1 удалена"_s);
         save.Delete(world_.Path("Главный склад\\PRH\\0001.prh"));
         save.Write(world_.Path("Главный склад\\товар.usl"), "x");
         save.Commit();
       }},
      {"new warehouse", [&] { list().Create(u"Ларёк"_s); }},
      {"renamed warehouse", [&] { list().Rename(0, u"Склад 1"_s); }},
      {"deleted warehouse", [&] { list().Delete(1); }},
      {"new Database", [&] { CreateDatabase(world_.Data(), u"Вторая"_s); }},
      {"deleted Database",
       [&] { DeleteDatabase(world_.Data(), ListDatabases(world_.Data()).at(0)); }},
  };
  for (const auto& [name, command] : commands) {
    const auto before = Tree();
    command();
    ASSERT_NE(Tree(), before) << name;
    EXPECT_FALSE(Undo().Last().isEmpty()) << name;
    Back();
    EXPECT_EQ(Tree(), before) << name;
    OpenDatabase(session_, world_.Data());
  }
}

TEST_F(UndoLogTest, StepsGoBackOneByOneAndTheOldestAreForgotten) {
  for (int i = 0; i < 25; ++i) {
    const QString number = QString::number(i);
    world_.Save("marked", qPrintable(number), u"команда "_s + number);
  }
  for (int i = 24; i >= 5; --i) {
    EXPECT_EQ(Undo().Last(), u"команда %1"_s.arg(i));
    Back();
    EXPECT_EQ(world_.Text("marked"), QString::number(i - 1));
  }
  EXPECT_EQ(Undo().Last(), QString());
}

TEST_F(UndoLogTest, AFileThatHasChangedSinceIsLeftAsItIs) {
  world_.Save("marked", "Чай\r\n", u"отметки"_s);
  world_.Save("Главный склад\\PRH\\0009.prh", "9", u"приход"_s);
  world_.Put("Главный склад\\PRH\\0009.prh", "99");
  EXPECT_THROW(Back(), Refused);
  EXPECT_EQ(world_.Text("Главный склад\\PRH\\0009.prh"), u"99"_s);
  EXPECT_EQ(Undo().Last(), u"приход"_s);

  WarehouseDirectory(world_.Data(), session_).Create(u"Ларёк"_s);
  world_.Put("Ларёк\\PRH\\0001.prh", "1");
  EXPECT_THROW(Back(), Refused) << "somebody works in the new warehouse";
  EXPECT_EQ(world_.Text("Ларёк\\PRH\\0001.prh"), u"1"_s);
}

TEST_F(UndoLogTest, ASellerTakesBackNothingOfADirectors) {
  const auto make = [&](const QString& name) {
    WarehouseDirectory(world_.Data(), session_).Create(name);
    OpenDatabase(session_, world_.Data());
    return Undo().Last();
  };
  const QString lavka = make(u"Лавка"_s);
  Undo().OpenedBy(false);
  EXPECT_EQ(Undo().Last(), lavka);
  Undo().OpenedBy(true);
  EXPECT_EQ(Undo().Last(), QString());
  const QString kiosk = make(u"Киоск"_s);
  Undo().OpenedBy(true);
  EXPECT_EQ(Undo().Last(), kiosk);
}

TEST_F(UndoLogTest, TheOpenDatabaseIsNotTakenAway) {
  session_.chosen_base = CreateDatabase(world_.Data(), u"Вторая"_s);
  OpenDatabase(session_, world_.Data());
  EXPECT_THROW(Back(), Refused);
}

TEST_F(UndoLogTest, WhatNobodyCommandedIsNoStepAndWhatIsTooMuchSaysSo) {
  world_.Save("marked", "x");
  EXPECT_EQ(Undo().Last(), QString());
  world_.Put("marked", QByteArray(UndoLog::kMostBytes + 1, 'x').constData());
  world_.Save("marked", "y", u"отметки"_s);
  EXPECT_THROW(Back(), Refused);
  EXPECT_EQ(world_.Text("marked"), u"y"_s);
}

}  // namespace
}  // namespace kladez
