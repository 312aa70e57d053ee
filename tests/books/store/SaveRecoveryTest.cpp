#include <sys/stat.h>

#include <cerrno>

#include "SaveFailure.h"
#include "SaveScenarios.h"
#include "books/store/Notes.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

// What this version stages, and what those before it did, lies at these.
const QString kStages[] = {u"/.kladez-save."_s, u"/.kladez-save/"_s};

// The caller of the next save has read files that were changed in part: its contents are stale.
TEST(SaveRecovery, ASaveAfterAnUnhealedOneHealsAndRefuses) {
  TempData temp;
  temp.Put(u"a"_s, "old");
  temp.Put(u"b"_s, "old");
  int renames = 0;
  syscalls::SetFaultHook([&](std::string_view call, auto&) {
    return call == "rename" && ++renames > 2 ? EIO : 0;  // the second file, then all taking back
  });
  const auto write_both = [](SaveSet& save) {
    save.Write(u"a"_s, "new");
    save.Write(u"b"_s, "new");
  };
  EXPECT_EQ(CommitFailure(temp, write_both).error, EIO);
  syscalls::SetFaultHook({});
  EXPECT_NE(temp.Bytes(u"a"_s), temp.Bytes(u"b"_s));
  const auto stale = [](SaveSet& save) { save.Write(u"a"_s, "stale"); };
  EXPECT_EQ(CommitFailure(temp, stale).error, ECANCELED);
  EXPECT_EQ(temp.Bytes(u"a"_s), temp.Bytes(u"b"_s));
  EXPECT_EQ(temp.Tree().size(), 2u);
  EXPECT_EQ(CommitFailure(temp, stale).error, 0);
}

// On the way back, what may not have reached the disk and what is still there is tried again for as
// long as the list of changes could be carried out by a crash.
TEST(SaveRecovery, ASyncOrRemovalThatFailsOnceOnTheWayBackIsRepeated) {
  QByteArray missed;
  int victim = 0;
  do {
    TempData temp;
    temp.Put(u"b"_s, "old");
    const Tree before = temp.Tree();
    const auto is_final = [&] {
      const QString stage = temp.Root() + kStages[0];
      return QFile::exists(stage + u"manifest"_s) || QFile::exists(stage + u"taking-back"_s);
    };
    ++victim;
    missed.clear();
    int calls = 0;
    bool back = false;
    bool repeated = false;
    syscalls::SetFaultHook([&](std::string_view call, const QByteArray& path) {
      if (call != "fsync" && call != "rmdir") return 0;
      if (!back) return (back = temp.Bytes(u"b"_s) == "new") ? EIO : 0;
      const QByteArray now = QByteArray(call.data(), std::ssize(call)) + ' ' + path;
      repeated |= now == missed && is_final();
      if (!is_final() || ++calls != victim) return 0;
      missed = now;
      return EIO;
    });
    const Failure failure = CommitFailure(temp, [](SaveSet& save) {
      save.MakeDirectory(u"d"_s);
      save.Write(u"d\\x"_s, "new");
      save.Write(u"b"_s, "new");
    });
    syscalls::SetFaultHook({});
    EXPECT_EQ(failure.error, EIO);
    EXPECT_EQ(temp.Tree(), before) << missed.constData();
    EXPECT_EQ(repeated, !missed.isEmpty()) << missed.constData();
  } while (!missed.isEmpty());
  EXPECT_GT(victim, 3);
}

TEST(SaveRecovery, StagedFilesWithoutAManifestAreThrownAway) {
  TempData temp;
  temp.Put(u"a"_s, "old");
  QDir(temp.Root()).mkpath(u".kladez-save/old.1/deep"_s);
  EXPECT_EQ(CommitFailure(temp, [](auto& save) { save.Write(u"a"_s, "new"); }).error, 0);
  EXPECT_EQ(temp.Tree(), (std::map<std::string, std::string>{{"a", "new"}}));
  QFile(temp.Root() + u"/.kladez-save"_s).open(QIODevice::WriteOnly);  // not even a directory
  SaveSet::Recover(temp.Data());
  EXPECT_EQ(temp.Tree().size(), 1u);
}

void PutManifest(const TempData& temp, const QString& stage, const QByteArray& manifest) {
  QDir(temp.Root()).mkpath(u".kladez-save"_s);
  QFile file(temp.Root() + stage + u"manifest"_s);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(manifest);
}

// Told once, with the place where what was to be written can be found.
TEST(SaveRecovery, ADamagedManifestIsPutAsideAndToldOnce) {
  for (const QByteArray& manifest :
       {QByteArray(), QByteArray("junk"), QByteArray("0\0a\0\0001\0", 8),
        QByteArray("0\0../a\0\0001\0end", 14), QByteArray("2\0\0\0000\0end", 9),
        QByteArray("4\0a\0b/../../c\0000\0end", 19), QByteArray("9\0a\0\0001\0end", 11),
        QByteArray("keyed\0\0000\0a\0\0001\0none\0end", 23),
        QByteArray("keyed\0../\0000\0a\0\0001\0none\0end", 26),
        QByteArray("keyed\0k.\0000\0a\0\0001\0end", 20)}) {
    for (const QString& stage : kStages) {
      TempData temp;
      temp.Put(u"a"_s, "old");
      PutManifest(temp, stage, manifest);
      const Failure failure = FailureOf([&] { SaveSet::Recover(temp.Data()); });
      EXPECT_EQ(failure.error, EBADMSG) << manifest.toHex(' ').constData();
      EXPECT_EQ(FailureOf([&] { SaveSet::Recover(temp.Data()); }).error, 0);
      const std::map<std::string, std::string> expected = {
          {"a", "old"},
          {"Прерванная запись 1/", ""},
          {"Прерванная запись 1/manifest", manifest.toStdString()}};
      EXPECT_EQ(temp.Tree(), expected);
      EXPECT_EQ(CommitFailure(temp, [](SaveSet& save) { save.Write(u"a"_s, "new"); }).error, 0);
    }
  }
}

// Somebody has put something else in the place of what a crash leaves. Nothing outside the
// directory changes, nothing hangs, and the next start is as any other.
TEST(SaveRecovery, RecoveryStaysInsideAndReadsPlainFilesOnly) {
  using Prepare = std::function<void(const TempData& temp, const QString& outside)>;
  const auto link = [](const QString& to, const QString& from) {
    ASSERT_TRUE(QFile::link(to, from));
  };
  QString stage;
  const QByteArray write_through("0\0way/a\0\0000\0end", 15);
  const Prepare through_link = [&](auto& temp, auto& outside) {
    link(outside, temp.Root() + u"/way"_s);
    PutManifest(temp, stage, write_through);
    temp.Put(u"new"_s, "new");
    QFile::rename(temp.Root() + u"/new"_s, temp.Root() + stage + u"new.0"_s);
  };
  const struct {
    const char* name;
    Prepare prepare;
  } cases[] = {
      {"the directory is a link",
       [&](auto& temp, auto& outside) { link(outside, temp.Root() + u"/.kladez-save"_s); }},
      {"a path leads through a link", through_link},
      {"the manifest is a link",
       [&](auto& temp, auto& outside) {
         QDir(temp.Root()).mkpath(u".kladez-save"_s);
         link(outside + u"/manifest"_s, temp.Root() + stage + u"manifest"_s);
       }},
      {"the manifest is a pipe",
       [&](auto& temp, auto&) {
         QDir(temp.Root()).mkpath(u".kladez-save"_s);
         ::mkfifo(QFile::encodeName(temp.Root() + stage + u"manifest"_s).constData(), 0600);
       }},
      {"the manifest has 3 GB",
       [&](auto& temp, auto&) {
         PutManifest(temp, stage, {});
         QFile file(temp.Root() + stage + u"manifest"_s);
         ASSERT_TRUE(file.resize(qint64{3} << 30));
       }},
      {"a new file is a link",
       [&](auto& temp, auto& outside) {
         PutManifest(temp, stage, QByteArray("0\0a\0\0000\0end", 11));
         link(outside + u"/a"_s, temp.Root() + stage + u"new.0"_s);
       }},
      {"a staged directory is a link",
       [&](auto& temp, auto& outside) {
         QDir(temp.Root()).mkpath(u".kladez-save"_s);
         link(outside, temp.Root() + stage + u"old.0"_s);
       }},
  };
  for (int round = 0; round < 4; ++round) {
    syscalls::PretendOldKernel(round % 2 == 1);
    stage = kStages[round / 2];
    for (const auto& c : cases) {
      TempData outside, temp;
      outside.Put(u"a"_s, "outside");
      outside.Put(u"manifest"_s, QByteArray("0\0a\0\0000\0end", 11));
      outside.Put(u"new.0"_s, "new");
      temp.Put(u"a"_s, "old");
      const auto before = outside.Tree();
      c.prepare(temp, outside.Root());
      FailureOf([&] { SaveSet::Recover(temp.Data()); });
      EXPECT_EQ(outside.Tree(), before) << c.name;
      EXPECT_EQ(temp.Bytes(u"a"_s), "old") << c.name;
      EXPECT_EQ(FailureOf([&] { SaveSet::Recover(temp.Data()); }).error, 0) << c.name;
      const auto anything = QDir::AllEntries | QDir::Hidden | QDir::System;
      const QStringList left = QDir(temp.Root()).entryList({u".kladez-save*"_s}, anything);
      EXPECT_TRUE(left.isEmpty()) << c.name << ", " << left.value(0).toStdString();
    }
  }
  syscalls::PretendOldKernel(false);
}

}  // namespace
}  // namespace kladez
