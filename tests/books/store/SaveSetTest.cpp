#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <functional>

#include "SaveFailure.h"
#include "books/store/DirectoryLock.h"
#include "books/store/Notes.h"
#include "books/store/SaveSet.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

void SetMode(const TempData& temp, const QString& path, mode_t mode) {
  ASSERT_EQ(::chmod(temp.MachinePath(path).constData(), mode), 0);
}

mode_t Mode(const TempData& temp, const QString& path) {
  struct stat status = {};
  ::stat(temp.MachinePath(path).constData(), &status);
  return status.st_mode & 0777;
}

TEST(SaveSet, WhatCannotBeDoneIsRefusedBeforeAnythingChanges) {
  using Fill = std::function<void(SaveSet&)>;
  const struct {
    const char* name;
    int error;
    const char* path;  // the end of the path that is told
    Fill fill;
  } cases[] = {
      {"a file where a directory is", EISDIR, "/A", [](auto& s) { s.Write(u"A"_s, "x"); }},
      {"a file without its directory", ENOENT, "/no", [](auto& s) { s.Write(u"no\\x"_s, "x"); }},
      {"a read-only file", EACCES, "/A/locked", [](auto& s) { s.Write(u"A\\locked"_s, "x"); }},
      {"to a read-only file", EACCES, "/A/locked", [](auto& s) { s.Append(u"A\\locked"_s, "x"); }},
      {"without a read-only file", EACCES, "/A/locked", [](auto& s) { s.Delete(u"A\\locked"_s); }},
      {"in a read-only directory", EACCES, "/L", [](auto& s) { s.Write(u"L\\x"_s, "x"); }},
      {"over a file in one", EACCES, "/L", [](auto& s) { s.Write(u"L\\old"_s, "x"); }},
      {"without a file in one", EACCES, "/L", [](auto& s) { s.Delete(u"L\\old"_s); }},
      {"a directory in one", EACCES, "/L", [](auto& s) { s.MakeDirectory(u"L\\new"_s); }},
      {"out of one", EACCES, "/L", [](auto& s) { s.RenameDirectory(u"L\\D"_s, u"D"_s); }},
      {"into one", EACCES, "/L", [](auto& s) { s.RenameDirectory(u"A"_s, u"L\\A"_s); }},
      {"nothing deleted", ENOENT, "/no", [](auto& s) { s.Delete(u"no"_s); }},
      {"no tree deleted", ENOENT, "/no", [](auto& s) { s.DeleteTree(u"no\\"_s); }},
      {"a directory as a file", EISDIR, "/A", [](auto& s) { s.Delete(u"A"_s); }},
      {"nothing renamed", ENOENT, "/no", [](auto& s) { s.RenameDirectory(u"no"_s, u"B"_s); }},
      {"onto another", EEXIST, "/L", [](auto& s) { s.RenameDirectory(u"A"_s, u"l"_s); }},
      {"to nothing", ENOENT, "/no", [](auto& s) { s.Append(u"no"_s, "x"); }},
      {"an old directory as new", EEXIST, "/A", [](auto& s) { s.MakeNewDirectory(u"a\\"_s); }},
      {"a directory over a file", EEXIST, "/f", [](auto& s) { s.MakeDirectory(u"f"_s); }},
      {"a path that leads out", EINVAL, "..\\f", [](auto& s) { s.Write(u"..\\f"_s, "x"); }},
      {"the staging directory", EINVAL, "E\\f",
       [](auto& s) { s.Write(u".kladez-SAVE\\f"_s, "x"); }},
  };
  for (const auto& c : cases) {
    TempData temp;
    for (const QString& path : {u"A\\locked"_s, u"L\\old"_s, u"L\\D\\x"_s, u"f"_s}) {
      temp.Put(path, "old\r\n");
    }
    SetMode(temp, u"A\\locked"_s, 0444);
    SetMode(temp, u"L"_s, 0555);
    const auto before = temp.Tree();
    for (const bool with_another : {false, true}) {
      const Failure failure = CommitFailure(temp, [&](SaveSet& save) {
        if (with_another) save.Write(u"f"_s, "new");
        c.fill(save);
      });
      EXPECT_EQ(failure.error, c.error) << c.name;
      EXPECT_TRUE(failure.path.ends_with(c.path)) << c.name << ": " << failure.path;
      EXPECT_EQ(temp.Tree(), before) << c.name;
    }
    SetMode(temp, u"L"_s, 0755);
  }
}

// A working copy keeps what it read; whoever has written meanwhile is not written over.
TEST(SaveSet, OnlyTheFileThatWasReadIsWrittenOver) {
  using Step = std::function<void(const TempData&)>;
  const Step nothing = [](auto&) {};
  const struct {
    const char* name;
    int error;
    bool missing;  // when the working copy is read
    Step meanwhile;
  } cases[] = {
      {"untouched", 0, false, nothing},
      {"written with the same bytes", 0, false, [](auto& t) { t.Put(u"a"_s, "old"); }},
      {"changed", ESTALE, false, [](auto& t) { t.Put(u"a"_s, "newer"); }},
      {"changed, as long as before", ESTALE, false, [](auto& t) { t.Put(u"a"_s, "OLD"); }},
      {"gone", ESTALE, false, [](auto& t) { QFile::remove(t.Root() + u"/a"_s); }},
      {"still missing", 0, true, nothing},
      {"appeared", EEXIST, true, [](auto& t) { t.Put(u"a"_s, "newer"); }},
  };
  for (const bool expected_only : {false, true}) {
    for (const auto& c : cases) {
      TempData temp;
      temp.Put(u"b"_s, "old");
      if (!c.missing) temp.Put(u"a"_s, "old");
      FileState read;
      ReadIfThere(temp.Data(), u"a"_s, read);
      c.meanwhile(temp);
      const auto before = temp.Tree();
      const auto save = [&](SaveSet& set) {
        set.Write(u"b"_s, "new");
        if (expected_only) {
          set.Expect(u"a"_s, read);
        } else {
          set.Write(u"a"_s, "new", read);
        }
      };
      EXPECT_EQ(CommitFailure(temp, save).error, c.error) << c.name;
      if (c.error != 0) {
        EXPECT_EQ(temp.Tree(), before) << c.name;
        continue;
      }
      EXPECT_EQ(temp.Bytes(u"b"_s), "new");
      EXPECT_EQ(CommitFailure(temp, save).error, 0) << c.name << ", saved a second time";
    }
  }
}

TEST(SaveSet, ANewFileIsWrittenAsNewOnly) {
  TempData temp;
  const auto save = [](SaveSet& set) { set.WriteNew(u"a"_s, "1"); };
  EXPECT_EQ(CommitFailure(temp, save).error, 0);
  EXPECT_EQ(CommitFailure(temp, save).error, EEXIST);
}

TEST(SaveSet, ReplacedFilesKeepTheirMode) {
  TempData temp;
  temp.Put(u"a"_s, "1");
  SetMode(temp, u"a"_s, 0640);
  EXPECT_EQ(CommitFailure(temp, [](auto& save) { save.Write(u"a"_s, "2"); }).error, 0);
  EXPECT_EQ(temp.Bytes(u"a"_s), "2");
  EXPECT_EQ(Mode(temp, u"a"_s), 0640u);
}

TEST(SaveSet, AFileMadeInPiecesIsThereWholeOrAsItWas) {
  TempData temp;
  temp.Put(u"a"_s, "1");
  const auto commit = [&](int lines, bool broken_off) {
    SaveSet save(temp.Data());
    save.WriteInPieces(u"a"_s, [=](const ByteSink& sink) {
      LineWriter writer(sink);
      for (int i = 0; i < lines; ++i) writer.Add(QString::number(i));
      if (broken_off) throw std::runtime_error("broken off");
      sink(writer.Take());
    });
    save.Commit();
  };
  constexpr int kLines = 40'000;  // more than one piece
  EXPECT_THROW(commit(kLines, true), std::runtime_error);
  EXPECT_EQ(temp.Tree(), (std::map<std::string, std::string>{{"a", "1"}}));
  commit(kLines, false);
  QByteArray expected;
  for (int i = 0; i < kLines; ++i) expected += QByteArray::number(i) + "\r\n";
  EXPECT_EQ(temp.Bytes(u"a"_s), expected);
  commit(0, false);
  EXPECT_EQ(temp.Bytes(u"a"_s), "");
}

// Memory sticks know no links: what is replaced is kept as a copy there.
TEST(SaveSet, WithoutLinksAFailedSaveIsTakenBackWhole) {
  int failing = 0;
  for (bool failed = true; failed; ++failing) {
    TempData temp;
    temp.Put(u"a"_s, QByteArray(100'000, 'a'));
    temp.Put(u"b"_s, "b");
    SetMode(temp, u"a"_s, 0640);
    const auto before = temp.Tree();
    int renames = 0;
    syscalls::SetFaultHook([&](std::string_view call, auto&) {
      constexpr std::array kNoLinks = {EPERM, ENOSYS, EOPNOTSUPP};
      if (call == "link") return kNoLinks[failing % kNoLinks.size()];
      return call == "rename" && renames++ == failing ? EIO : 0;
    });
    failed = CommitFailure(temp, [](SaveSet& save) {
               save.Write(u"a"_s, "new");
               save.Write(u"b"_s, "new");
               save.Write(u"a"_s, "newer");
             }).error != 0;
    syscalls::SetFaultHook({});
    if (failed) {
      EXPECT_EQ(temp.Tree(), before);
      EXPECT_EQ(Mode(temp, u"a"_s), 0640u);
    } else {
      EXPECT_EQ(temp.Bytes(u"a"_s), "newer");
      EXPECT_EQ(temp.Tree().size(), 2u);
    }
  }
  EXPECT_GE(failing, 3);
}

TEST(SaveSet, AppendedLinesBeginALineOfTheirOwn) {
  TempData temp;
  temp.Put(u"cut"_s, "a");
  temp.Put(u"whole"_s, "a\r\n");
  temp.Put(u"empty"_s, "");
  const auto append = [](SaveSet& save) {
    for (const QString& path : {u"cut"_s, u"whole"_s, u"empty"_s, u"Cut"_s}) {
      save.Append(path, "b\r\n");
    }
  };
  EXPECT_EQ(CommitFailure(temp, append).error, 0);
  EXPECT_EQ(temp.Bytes(u"cut"_s), "a\r\nb\r\nb\r\n");
  EXPECT_EQ(temp.Bytes(u"whole"_s), "a\r\nb\r\n");
  EXPECT_EQ(temp.Bytes(u"empty"_s), "b\r\n");
}

// What a set makes and what lies on the disk are found by the same rule.
TEST(SaveSet, PathsAreCaseBlindInsideASetToo) {
  TempData temp;
  temp.Put(u"0001\\SPR\\post.spr"_s, "1");
  EXPECT_EQ(CommitFailure(temp,
                          [](SaveSet& save) {
                            save.Write(u"0001\\spr\\POST.spr"_s, "2");
                            save.MakeDirectory(u"0001\\Склад"_s);
                            save.MakeDirectory(u"0001\\СКЛАД\\PRH"_s);
                            save.MakeDirectory(u"0001\\склад\\prh"_s);
                            save.Write(u"0001\\склад\\prh\\x"_s, "3");
                            save.Write(u"0001\\сКЛАД\\Prh\\X"_s, "4");
                            save.Write(u"0001\\Склады"_s, "5");
                          })
                .error,
            0);
  const std::map<std::string, std::string> expected = {
      {"0001/", ""},        {"0001/SPR/", ""},       {"0001/SPR/post.spr", "2"},
      {"0001/Склад/", ""},  {"0001/Склад/PRH/", ""}, {"0001/Склад/PRH/x", "4"},
      {"0001/Склады", "5"},
  };
  EXPECT_EQ(temp.Tree(), expected);
}

TEST(SaveSet, ADirectoryMayChangeItsLetterCaseOnly) {
  TempData temp;
  temp.Put(u"0001\\лавка\\x"_s, "1");
  EXPECT_EQ(
      CommitFailure(
          temp, [](SaveSet& save) { save.RenameDirectory(u"0001\\лавка\\"_s, u"0001\\Лавка\\"_s); })
          .error,
      0);
  EXPECT_EQ(temp.Tree().count("0001/Лавка/x"), 1u);
  EXPECT_EQ(temp.Tree().count("0001/лавка/x"), 0u);
}

// A shop's user is no superuser, to whom the system would let everything pass.
TEST(SaveSet, AReadOnlyTreeIsDeletedByAnOrdinaryUserToo) {
  TempData temp;
  for (const QString& path : {u"0001\\SPR\\f"_s, u"0001\\f"_s}) {
    temp.Put(path, "x");
    SetMode(temp, path, 0444);
  }
  SetMode(temp, u"0001\\SPR"_s, 0555);
  SetMode(temp, u"0001"_s, 0555);
  const pid_t child = ::fork();
  if (child == 0) {
    if (::getuid() == 0) {
      const uid_t nobody = 65534;
      for (const char* name : {"", "/0001", "/0001/SPR", "/0001/f", "/0001/SPR/f"}) {
        const QByteArray path = QFile::encodeName(temp.Root()) + name;
        if (::chown(path.constData(), nobody, nobody) < 0) ::_exit(2);
      }
      if (::setgid(nobody) < 0 || ::setuid(nobody) < 0) ::_exit(3);
    }
    ::_exit(CommitFailure(temp, [](auto& save) { save.DeleteTree(u"0001\\"_s); }).error);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_TRUE(temp.Tree().empty());
}

// The last sync fails, and so does all that would take the save back: what is on the disk is new.
TEST(SaveSet, WhatReachedTheDiskIsNotToldAsFailed) {
  for (const bool several : {false, true}) {
    TempData temp;
    temp.Put(u"A\\a"_s, "old");
    temp.Put(u"b"_s, "old");
    bool failing = false;
    syscalls::SetFaultHook([&](std::string_view call, const QByteArray& path) {
      failing |= call == "fsync" && path.endsWith("/A");
      return failing ? EIO : 0;
    });
    const Failure failure = CommitFailure(temp, [&](SaveSet& save) {
      save.Write(u"A\\a"_s, "new");
      if (several) save.Write(u"b"_s, "new");
    });
    syscalls::SetFaultHook({});
    EXPECT_EQ(failure.error, 0);
    EXPECT_EQ(TakeNotes().size(), 1);
    SaveSet::Recover(temp.Data());
    EXPECT_EQ(temp.Bytes(u"A\\a"_s), "new");
    EXPECT_EQ(temp.Bytes(u"b"_s), several ? "new" : "old");
  }
}

TEST(SaveSet, TwoProgramsSavingAtOnceDoNotMixTheirSets) {
  TempData temp;
  const auto save_often = [&](const QByteArray& mark) {
    for (int i = 0; i < 50; ++i) {
      const int error = CommitFailure(temp, [&](SaveSet& save) {
                          save.Write(u"a"_s, mark);
                          save.Write(u"b"_s, mark);
                        }).error;
      if (error != 0) return error;
    }
    return 0;
  };
  const pid_t child = ::fork();
  if (child == 0) ::_exit(save_often("child"));
  EXPECT_EQ(save_often("parent"), 0);
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(temp.Bytes(u"a"_s), temp.Bytes(u"b"_s));
  EXPECT_EQ(temp.Tree().size(), 2u);
}

TEST(SaveSet, ALockedDirectoryIsToldAsBusy) {
  TempData temp;
  const QByteArray root = QFile::encodeName(temp.Root());
  const DirectoryLock held(root);
  const Failure failure =
      FailureOf([&] { DirectoryLock second(root, std::chrono::milliseconds::zero()); });
  EXPECT_EQ(failure.error, EBUSY);
  EXPECT_EQ(failure.path, root.toStdString());
}

// A document and a ledger: each file, the list, the names of what is staged, and of both places.
TEST(SaveSet, TwoFilesAreSavedWithSixSyncs) {
  TempData temp;
  temp.Put(u"0001\\a"_s, "old");
  temp.Put(u"0001\\PRH\\b"_s, "old");
  int syncs = 0;
  syscalls::SetFaultHook([&](std::string_view call, auto&) { return syncs += call == "fsync", 0; });
  const auto write_both = [](SaveSet& save) {
    save.Write(u"0001\\a"_s, "new");
    save.Write(u"0001\\PRH\\b"_s, "new");
  };
  EXPECT_EQ(CommitFailure(temp, write_both).error, 0);
  syscalls::SetFaultHook({});
  EXPECT_LE(syncs, 6);
}

}  // namespace
}  // namespace kladez
