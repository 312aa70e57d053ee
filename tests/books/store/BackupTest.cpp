#include <sys/stat.h>
#include <unistd.h>

#include "TempData.h"
#include "books/store/Backup.h"
#include "books/store/Errors.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using Tree = std::map<std::string, std::string>;

const QDate kDay(2026, 11, 22);
const std::string kFolder = "Копия БД Kladez от 22-11-26";

// The part of a tree below a directory, under its names there.
Tree Below(const Tree& tree, const std::string& directory) {
  Tree below;
  for (const auto& [path, bytes] : tree) {
    if (path.starts_with(directory) && path.size() > directory.size()) {
      below[path.substr(directory.size())] = bytes;
    }
  }
  return below;
}

void Merge(Tree& tree, const std::string& directory, const Tree& part) {
  for (const auto& [path, bytes] : part) tree[directory + path] = bytes;
}

class BackupTest : public testing::Test {
 protected:
  void SetUp() override {
    PutDatabase(u"0001"_s, u"Первая"_s);
    PutDatabase(u"0002"_s, u"Вторая"_s);
    PutDatabase(u"0003"_s, u"Третья"_s);
    data_.Put(u"0001\\Главный склад\\UHD\\0001.uhd"_s, QByteArray(200000, 'x'));
    before_ = data_.Tree();
  }
  void TearDown() override { syscalls::SetFaultHook({}); }

  void PutDatabase(const QString& number, const QString& name) {
    data_.PutLines(number + u".us"_s, {number + u'\\', name});
    data_.PutLines(number + u"\\SPR\\товар.spr"_s, {u' ' + name});
    data_.Put(number + u"\\marked"_s, {});
    ASSERT_TRUE(QDir(data_.Root()).mkpath(number + u"/KASS/PRH"_s));
  }

  std::vector<CatalogueEntry> Chosen(const DataDir& data, const std::vector<size_t>& rows) const {
    std::vector<CatalogueEntry> chosen;
    const auto all = ListDatabases(data);
    for (const size_t row : rows) chosen.push_back(all[row]);
    return chosen;
  }
  void Backup(const std::vector<size_t>& rows, const Progress& progress = {}) {
    MakeBackup(data_.Data(), Chosen(data_.Data(), rows), drive_.Root(), kDay, progress);
  }
  DataDir BackupDir() const { return DataDir(BackupTarget(drive_.Root(), kDay)); }

  TempData data_;
  TempData drive_;
  Tree before_;
};

TEST_F(BackupTest, HoldsIndexDescriptorsAndWholeTrees) {
  Backup({0, 2});
  Tree expected = {
      {kFolder + "/", ""},
      {kFolder + "/archive.idb",
       EncodeLines({u"0001.us"_s, u"0001\\"_s, u"Первая"_s, u"0003.us"_s, u"0003\\"_s, u"Третья"_s})
           .toStdString()},
      {kFolder + "/0001.us", before_["0001.us"]},
      {kFolder + "/0003.us", before_["0003.us"]},
      {kFolder + "/0001/", ""},
      {kFolder + "/0003/", ""},
  };
  Merge(expected, kFolder + "/0001/", Below(before_, "0001/"));
  Merge(expected, kFolder + "/0003/", Below(before_, "0003/"));
  EXPECT_EQ(drive_.Tree(), expected);
  EXPECT_EQ(data_.Tree(), before_);
  EXPECT_TRUE(IsBackupFolder(BackupTarget(drive_.Root(), kDay)));
  EXPECT_FALSE(IsBackupFolder(drive_.Root()));
  // Memory sticks may give names back in capitals.
  ASSERT_TRUE(QDir(BackupTarget(drive_.Root(), kDay)).rename(u"archive.idb"_s, u"ARCHIVE.IDB"_s));
  EXPECT_TRUE(IsBackupFolder(BackupTarget(drive_.Root(), kDay)));
  EXPECT_FALSE(IsBackupFolder({}));
}

TEST_F(BackupTest, RootOfADriveGetsNoSecondSeparator) {
  EXPECT_EQ(BackupTarget(u"/"_s, kDay), u"/Копия БД Kladez от 22-11-26"_s);
  EXPECT_EQ(BackupTarget(u"/media/usb"_s, kDay), u"/media/usb/Копия БД Kladez от 22-11-26"_s);
}

TEST_F(BackupTest, OneOfTheSameDayIsLeftAsItIs) {
  Backup({0});
  const Tree first = drive_.Tree();
  EXPECT_THROW(Backup({1}), std::filesystem::filesystem_error);
  EXPECT_EQ(drive_.Tree(), first);
}

TEST_F(BackupTest, FaultAtAnyCallNamesAPathAndLeavesNothingThatLooksGood) {
  int failures = 0;
  for (int fault = 0;; ++fault) {
    int call = 0;
    std::string failing;
    syscalls::SetFaultHook([&](std::string_view name, const QByteArray&) {
      // The clean-up itself is not failed here: a disk that takes nothing still deletes.
      if (name == "unlink" || name == "rmdir" || call++ != fault) return 0;
      failing = name;
      return ENOSPC;
    });
    QString told;
    try {
      Backup({0, 1});
    } catch (const std::filesystem::filesystem_error& error) {
      told = ErrorText(error);
    }
    syscalls::SetFaultHook({});
    if (failing.empty()) break;
    if (QDir(drive_.Root()).exists(QString::fromStdString(kFolder))) {
      EXPECT_EQ(failing, "syncfs") << "only the last sync comes after the folder got its name";
      EXPECT_TRUE(told.isEmpty());
      QDir(drive_.Root() + u'/' + QString::fromStdString(kFolder)).removeRecursively();
      continue;
    }
    ++failures;
    EXPECT_TRUE(told.contains(u"на диске нет места"_s) && told.contains(u'/'))
        << told.toStdString();
    ASSERT_EQ(drive_.Tree(), Tree{}) << "fault at call " << fault;
  }
  EXPECT_GT(failures, 20);
}

TEST_F(BackupTest, CancelLeavesNothing) {
  std::vector<double> told;
  const Progress cancel_at_half([&](double done) {
    told.push_back(done);
    return done < 0.5;
  });
  EXPECT_THROW(Backup({0, 1}, cancel_at_half), WorkCancelled);
  EXPECT_EQ(drive_.Tree(), Tree{});
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_LE(told.back(), 1.0);
}

TEST_F(BackupTest, LinksAndForeignPathsAreRefusedBeforeAnythingIsCopied) {
  const TempData outside;
  outside.Put(u"тайна.txt"_s, "secret");
  const QByteArray secret = QFile::encodeName(outside.Root() + u"/тайна.txt"_s);
  const QByteArray link = QFile::encodeName(data_.Root() + u"/0002/SPR/link.spr"_s);
  ASSERT_EQ(::symlink(secret.constData(), link.constData()), 0);
  EXPECT_THROW(Backup({0, 1}), std::filesystem::filesystem_error);
  EXPECT_EQ(drive_.Tree(), Tree{});
  data_.PutLines(u"0004.us"_s, {u"..\\"_s, u"Чужая"_s});
  EXPECT_THROW(Backup({3}), std::filesystem::filesystem_error);
  EXPECT_EQ(drive_.Tree(), Tree{});
}

TEST_F(BackupTest, FolderInsideTheTreeItselfIsRefused) {
  EXPECT_THROW(MakeBackup(data_.Data(), Chosen(data_.Data(), {0}),
                          data_.Root() + u"/0001/Главный склад"_s, kDay),
               std::filesystem::filesystem_error);
  EXPECT_EQ(data_.Tree(), before_);
}

TEST_F(BackupTest, RestoreAddsNewDatabasesAndTouchesNone) {
  Backup({0, 2});
  const DataDir backup = BackupDir();
  for (int round = 0; round < 2; ++round) {
    RestoreDatabases(data_.Data(), backup, Chosen(backup, {0, 1}));
  }
  Tree expected = before_;
  const struct {
    std::string from, to;
    QString name;
  } restored[] = {{"0001/", "0004", u"Первая (копия)"_s},
                  {"0003/", "0005", u"Третья (копия)"_s},
                  {"0001/", "0006", u"Первая (копия)"_s},
                  {"0003/", "0007", u"Третья (копия)"_s}};
  for (const auto& one : restored) {
    expected[one.to + ".us"] =
        EncodeLines({QString::fromStdString(one.to) + u'\\', one.name}).toStdString();
    expected[one.to + "/"] = "";
    Merge(expected, one.to + "/", Below(before_, one.from));
  }
  EXPECT_EQ(data_.Tree(), expected);
}

TEST_F(BackupTest, FaultAtAnyCallOfARestoreLeavesNoHalfDatabase) {
  Backup({1});
  const DataDir backup = BackupDir();
  int failures = 0;
  for (int fault = 0;; ++fault) {
    int call = 0;
    bool failing = false;
    syscalls::SetFaultHook([&](std::string_view name, const QByteArray&) {
      if (name == "unlink" || name == "rmdir" || call++ != fault) return 0;
      failing = true;
      return ENOSPC;
    });
    const bool restored =
        IgnoreErrors([&] { RestoreDatabases(data_.Data(), backup, Chosen(backup, {0})); });
    syscalls::SetFaultHook({});
    SaveSet::Recover(data_.Data());
    if (!failing) break;
    if (restored) {
      DeleteDatabase(data_.Data(), ListDatabases(data_.Data()).back());
    } else {
      ++failures;
    }
    ASSERT_EQ(data_.Tree(), before_) << "fault at call " << fault;
  }
  EXPECT_GT(failures, 15);
}

TEST_F(BackupTest, CrashOfARestoreIsClearedAtTheNextStart) {
  data_.Put(u".kladez-restore\\SPR\\товар.spr"_s, "half");
  RemoveUnfinishedRestore(data_.Data());
  EXPECT_EQ(data_.Tree(), before_);
}

TEST_F(BackupTest, RestoreNeverReadsOutsideTheBackup) {
  const TempData foreign;
  foreign.Put(u"база\\0001\\SPR\\товар.spr"_s, "x");
  foreign.Put(u"тайна\\тайна.txt"_s, "secret");
  const QString base = foreign.Root() + u"/база"_s;
  ASSERT_EQ(::symlink("../../тайна/тайна.txt",
                      QFile::encodeName(base + u"/0001/SPR/firma.spr"_s).constData()),
            0);
  ASSERT_EQ(::symlink("../тайна", QFile::encodeName(base + u"/0009"_s).constData()), 0);
  for (const QString& path :
       {u"..\\"_s, u"..\\тайна\\"_s, u"/etc\\"_s, u"0001\\"_s, u"0009\\"_s, u"нет\\"_s}) {
    foreign.PutLines(u"база\\0001.us"_s, {path, u"Подложная"_s});
    const DataDir backup(base);
    EXPECT_THROW(RestoreDatabases(data_.Data(), backup, ListDatabases(backup)),
                 std::filesystem::filesystem_error)
        << path.toStdString();
    EXPECT_EQ(data_.Tree(), before_) << path.toStdString();
  }
}

}  // namespace
}  // namespace kladez
