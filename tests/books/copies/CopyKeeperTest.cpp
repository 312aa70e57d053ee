// Copies are made by themselves before a change, hold the bytes before it, and tell when they fail.
#include <gtest/gtest.h>

#include <cerrno>

#include "books/copies/CopiesWorld.h"
#include "books/store/Errors.h"
#include "books/store/Notes.h"
#include "formats/Progress.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class CopyKeeperTest : public testing::Test {
 protected:
  CopyKeeperTest() { TakeNotes(); }
  ~CopyKeeperTest() override { syscalls::SetFaultHook({}); }

  // Every change to the disk whose path ends so fails.
  static void Fail(const char* call, const char* end, int error) {
    syscalls::SetFaultHook([=](std::string_view made, const QByteArray& path) {
      return made == call && path.contains(end) ? error : 0;
    });
  }

  CopiesWorld world_;
  SettingsStore settings_{world_.RootPath() + u"/settings.ini"_s};
  const Clock clock_{kMorning};
  Safekeeping keeping_{world_.Data(), settings_, clock_};
};

TEST_F(CopyKeeperTest, TheFirstChangeOfADayIsPrecededByACopyOfTheOldBytes) {
  world_.Save("SPR\\товар.spr", "Кофе\r\n");
  world_.Save("Главный склад\\товар.usl", "Кофе\r\n1\r\nкг\r\n");
  world_.Save("Главный склад\\PRH\\0002.prh", "2\r\n");
  keeping_.Copies().Wait();
  const auto copies = world_.Copies();
  ASSERT_EQ(copies.size(), 1u);
  const auto files = CopiesWorld::Contents(copies[0]);
  EXPECT_EQ(files.at(u"0001/SPR/товар.spr"_s), u"Чай\r\nИндия\r\n\r\nпач.\r\n45.00\r\n"_s);
  EXPECT_EQ(files.at(u"0001/Главный склад/товар.usl"_s), u"Чай\r\n20\r\nпач.\r\n"_s);
  EXPECT_FALSE(files.contains(u"0001/Главный склад/PRH/0002.prh"_s)) << "made after the copy";
  EXPECT_TRUE(files.contains(u"0001.us"_s));
  const CopyNote& note = copies[0].note;
  EXPECT_EQ(note.name, u"Лавка"_s);
  EXPECT_EQ(note.why, u"перед первым изменением дня"_s);
  EXPECT_EQ(note.documents, 1);
  EXPECT_EQ(note.goods, 1);
  EXPECT_EQ(note.files, static_cast<qint64>(files.size()));
}

// The thread reads on while the program saves: whatever it meets, the copy is that of one moment.
TEST_F(CopyKeeperTest, WhatIsSavedWhileACopyIsReadIsNotInIt) {
  for (int i = 0; i < 3000; ++i) {
    world_.Put(qPrintable(u"Главный склад\\UHD\\%1.uhd"_s.arg(i, 4, 10, QChar(u'0'))), "old\r\n");
  }
  world_.Save("marked", "Чай\r\n");
  for (int i = 0; i < 3000; i += 200) {
    const QString name = u"Главный склад\\UHD\\%1.uhd"_s.arg(i, 4, 10, QChar(u'0'));
    SaveSet save(world_.Data());
    if (i % 400 == 0) {
      save.Delete(world_.Path(qPrintable(name)));
    } else {
      save.Write(world_.Path(qPrintable(name)), "new\r\n");
    }
    save.Commit();
  }
  keeping_.Copies().Wait();
  ASSERT_EQ(world_.Copies().size(), 1u);
  int documents = 0;
  for (const auto& [name, text] : CopiesWorld::Contents(world_.Copies()[0])) {
    if (!name.endsWith(u".uhd"_s)) continue;
    ++documents;
    EXPECT_EQ(text, u"old\r\n"_s) << name.toStdString();
  }
  EXPECT_EQ(documents, 3000);
}

TEST_F(CopyKeeperTest, ACommandThatReplacesMuchWaitsForItsCopy) {
  world_.Save("marked", "Чай\r\n");
  world_.Save("Главный склад\\товар.usl", "", u"склад обнулён"_s, true);
  ASSERT_EQ(world_.Copies().size(), 2u);
  const StoredCopy copy = world_.Copies()[1];
  EXPECT_EQ(copy.note.why, u"перед командой «склад обнулён»"_s);
  EXPECT_EQ(CopiesWorld::Contents(copy).at(u"0001/marked"_s), u"Чай\r\n"_s);
}

TEST_F(CopyKeeperTest, DeletingADatabaseIsPrecededByItsCopy) {
  DeleteDatabase(world_.Data(), ListDatabases(world_.Data()).at(0));
  ASSERT_EQ(world_.Copies().size(), 1u);
  EXPECT_TRUE(
      CopiesWorld::Contents(world_.Copies()[0]).contains(u"0001/Главный склад/PRH/0001.prh"_s));
}

TEST_F(CopyKeeperTest, BooksThatAreAsTheyWereAreKeptOnce) {
  const CatalogueEntry base = ListDatabases(world_.Data()).at(0);
  keeping_.Copies().Make(base, u"по просьбе"_s);
  keeping_.Copies().Make(base, u"по просьбе"_s);
  EXPECT_EQ(world_.Copies().size(), 1u);
}

TEST_F(CopyKeeperTest, AFailedCopyOfTheMorningIsToldAndStopsNobody) {
  Fail("write", ".part-", ENOSPC);
  world_.Save("marked", "Чай\r\n");
  keeping_.Copies().Wait();
  EXPECT_EQ(world_.Text("marked"), u"Чай\r\n"_s);
  EXPECT_TRUE(world_.Copies().empty());
  const QStringList notes = TakeNotes();
  ASSERT_EQ(notes.size(), 1);
  EXPECT_TRUE(notes[0].contains(u"Копия базы перед первым изменением дня не сделана"_s));
}

TEST_F(CopyKeeperTest, WhereNoCopyCanBeMadeACommandAsks) {
  for (const auto& [call, end] : {std::pair{"create", ".part-"},
                                  {"write", ".part-"},
                                  {"fsync", ".part-"},
                                  {"rename", ".tar.zst"}}) {
    Fail(call, end, EIO);
    bool go_on = false;
    QString asked;
    keeping_.Copies().SetQuestion([&](const QString& reason) {
      asked = reason;
      return go_on;
    });
    const auto zero = [&] { world_.Save("marked", call, u"склад обнулён"_s, true); };
    EXPECT_THROW(zero(), WorkCancelled) << call;
    EXPECT_NE(world_.Text("marked"), QString::fromLatin1(call));
    EXPECT_FALSE(asked.isEmpty());
    go_on = true;
    zero();
    EXPECT_EQ(world_.Text("marked"), QString::fromLatin1(call));
    keeping_.Copies().SetQuestion({});
    EXPECT_THROW(zero(), std::filesystem::filesystem_error) << call;
    EXPECT_TRUE(world_.Copies().empty()) << call;
  }
}

// A disk that gives back other bytes than it took.
TEST_F(CopyKeeperTest, ACopyThatReadsOtherwiseThanItWasWrittenIsNone) {
  syscalls::SetFaultHook([](std::string_view call, const QByteArray& path) {
    if (call == "fsync" && path.contains(".part-")) {
      QFile file(QFile::decodeName(path));
      if (file.open(QIODevice::ReadWrite) && file.seek(100)) file.write("\xFF\xFF", 2);
    }
    return 0;
  });
  EXPECT_THROW(world_.Save("marked", "x", u"склад обнулён"_s, true),
               std::filesystem::filesystem_error);
  EXPECT_TRUE(world_.Copies().empty());
}

TEST_F(CopyKeeperTest, ALinkInTheBooksIsNotFollowedButTold) {
  QFile::link(u"/etc"_s, world_.Data().Root() + u"/0001/etc"_s);
  EXPECT_THROW(keeping_.Copies().Make(ListDatabases(world_.Data()).at(0), {}),
               std::filesystem::filesystem_error);
}

TEST_F(CopyKeeperTest, TheSecondPlaceGetsAllThatItLacks) {
  const CatalogueEntry base = ListDatabases(world_.Data()).at(0);
  const QString stick = world_.RootPath() + u"/stick"_s;
  keeping_.Copies().SetSecondPlace(stick);
  keeping_.Copies().Make(base, u"без флешки"_s);
  QDir().mkpath(stick);
  world_.Put("marked", "x");
  keeping_.Copies().Make(base, u"с флешкой"_s);
  const auto there = ListCopies(QFile::encodeName(stick));
  ASSERT_EQ(there.size(), 2u);
  EXPECT_EQ(CopiesWorld::Contents(there[0]), CopiesWorld::Contents(world_.Copies()[0]));
}

TEST_F(CopyKeeperTest, ASecondPlaceUnseenForAWeekIsAskedFor) {
  EXPECT_EQ(keeping_.Copies().SecondPlaceAdvice(), QString());
  keeping_.Copies().SetSecondPlace(u"/media/stick"_s);
  EXPECT_EQ(keeping_.Copies().SecondPlaceAdvice(), QString());
  const Clock later{kMorning.addDays(7)};
  CopyKeeper keeper(world_.Data(), settings_, later);
  EXPECT_TRUE(keeper.SecondPlaceAdvice().contains(u"«/media/stick» не видно дней: 7"_s));
}

}  // namespace
}  // namespace kladez
