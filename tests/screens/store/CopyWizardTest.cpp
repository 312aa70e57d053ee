#include <sys/stat.h>

#include <QProgressBar>

#include "ScreenDriver.h"
#include "books/store/Catalogue.h"
#include "screens/store/BackupWizard.h"
#include "screens/store/CatalogueList.h"
#include "screens/store/FolderChooser.h"
#include "screens/store/FolderModel.h"
#include "screens/store/RestoreWizard.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

const QString kFolder = u"/Копия БД Kladez от 22-11-26"_s;

class CopyWizards : public testing::Test {
 protected:
  void SetUp() override {
    for (const QString& name : {u"Первая"_s, u"Вторая"_s}) CreateDatabase(Data(), name);
  }
  void TearDown() override { syscalls::SetFaultHook({}); }

  const DataDir& Data() { return world_.Temp().Data(); }
  static void Check(QWidget* dialog, int row) {
    auto* model = Find<CatalogueList>(dialog, "ListView1")->model();
    model->setData(model->index(row, 0), Qt::Checked, Qt::CheckStateRole);
  }
  static void Choose(QWidget* dialog, const QString& folder) {
    dialog->findChild<FolderChooser*>()->SetFolder(folder);
  }
  void ToLastStepOfBackup(QWidget* dialog) {
    Check(dialog, 1);
    Click(dialog, "Command1");
    Choose(dialog, drive_.Root());
  }

  ScreenWorld world_;
  TempData drive_;
};

TEST_F(CopyWizards, BackupGoesThroughBothSteps) {
  BackupWizard screen(world_.Context(), nullptr);
  ModalAnswers answers{[&](QWidget* dialog) {
                         EXPECT_EQ(dialog->windowTitle(), u"Резервное корирование"_s);
                         Click(dialog, "Command1");
                         EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(),
                                   u"Отметьте галочками те базы данных, которые необходимо "
                                   u"копировать."_s);
                         Check(dialog, 1);
                         Click(dialog, "Command1");
                         EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(),
                                   u"Выбирите папку, куда необходимо скопировать базы данных"_s);
                         EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1")->text(), u"OK"_s);
                         Choose(dialog, drive_.Root());
                         Click(dialog, "Command1");
                         EXPECT_FALSE(dialog->isVisible());
                       },
                       Press(QMessageBox::Ok, u"Отметьте хотя бы одну базу данных"_s)};
  screen.exec();
  EXPECT_TRUE(QFile::exists(drive_.Root() + kFolder + u"/archive.idb"_s));
  EXPECT_TRUE(QFile::exists(drive_.Root() + kFolder + u"/0002/SPR/товар.spr"_s));
  EXPECT_FALSE(QFile::exists(drive_.Root() + kFolder + u"/0001"_s));
}

TEST_F(CopyWizards, NothingToBackUpIsSaidAtOnce) {
  for (const auto& entry : ListDatabases(Data())) DeleteDatabase(Data(), entry);
  ModalAnswers answers{
      Press(QMessageBox::Ok, u"У вас нет ни одной базы данных, чтобы копировать ее."_s), Escape()};
  BackupWizard(world_.Context(), nullptr).exec();
}

TEST_F(CopyWizards, FaultNamesTheFileAndTheScreenStays) {
  syscalls::SetFaultHook([](std::string_view call, const QByteArray& path) {
    return call == "copy" && path.endsWith("0003.prc") ? EIO : 0;
  });
  BackupWizard screen(world_.Context(), nullptr);
  ModalAnswers answers{[&](QWidget* dialog) {
                         ToLastStepOfBackup(dialog);
                         Click(dialog, "Command1");
                         EXPECT_TRUE(dialog->isVisible());
                         EXPECT_TRUE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
                         EXPECT_FALSE(Find<QProgressBar>(dialog, "ProgressBar1")->isVisible());
                         syscalls::SetFaultHook({});
                         Click(dialog, "Command1");
                       },
                       [](QWidget* dialog) {
                         const QString text = qobject_cast<QMessageBox*>(dialog)->text();
                         EXPECT_TRUE(text.contains(u"0003.prc"_s)) << text.toStdString();
                         EXPECT_TRUE(text.contains(u"ошибка чтения"_s)) << text.toStdString();
                         dialog->close();
                       }};
  screen.exec();
  EXPECT_TRUE(QFile::exists(drive_.Root() + kFolder + u"/archive.idb"_s));
}

TEST_F(CopyWizards, CancelWhileCopyingLeavesNothing) {
  BackupWizard screen(world_.Context(), nullptr);
  int seen = -1;
  ModalAnswers answers{
      [&](QWidget* dialog) {
        ToLastStepOfBackup(dialog);
        // Pressed from inside the copy, as a person would.
        QTimer::singleShot(0, dialog, [&, dialog] {
          seen = Find<QProgressBar>(dialog, "ProgressBar1")->value();
          EXPECT_FALSE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
          Click(dialog, "Command2");
        });
        Click(dialog, "Command1");
        EXPECT_TRUE(dialog->isVisible());
        dialog->close();
      },
      Press(QMessageBox::Ok, u"Копирование прервано, незаконченная копия удалена."_s)};
  screen.exec();
  EXPECT_GT(seen, 0);
  EXPECT_TRUE(drive_.Tree().empty());
}

TEST_F(CopyWizards, AFolderOfAnySizeIsShownAndNoFileIsLookedInto) {
  QDir(drive_.Root()).mkpath(u"Б/в/г"_s);
  QDir(drive_.Root()).mkpath(u"а"_s);
  QDir(drive_.Root()).mkpath(u".скрытая"_s);
  // Whoever opened it would wait for ever.
  ASSERT_EQ(::mkfifo(QFile::encodeName(drive_.Root() + u"/труба"_s).constData(), 0600), 0);
  for (int i = 0; i < 20000; ++i) {
    QFile file(drive_.Root() + u"/файл%1"_s.arg(i));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  FolderModel folders(nullptr);
  const QModelIndex inner = folders.IndexOf(drive_.Root() + u"/Б/в"_s);
  EXPECT_EQ(FolderModel::PathOf(inner), drive_.Root() + u"/Б/в"_s);
  const QModelIndex root = inner.parent().parent();
  ASSERT_EQ(folders.rowCount(root), 2);
  EXPECT_EQ(folders.index(0, 0, root).data(), u"а"_s);
  EXPECT_TRUE(folders.hasChildren(inner));
  EXPECT_EQ(folders.rowCount(inner), 0) << "not looked into";
  folders.fetchMore(inner);
  EXPECT_EQ(folders.rowCount(inner), 1);
  folders.fetchMore(folders.IndexOf(u"/proc"_s));
  EXPECT_GT(folders.rowCount(folders.IndexOf(u"/proc"_s)), 1);
}

TEST_F(CopyWizards, TheFolderUsedLastIsProposed) {
  for (const bool first : {true, false}) {
    if (!first) QFile::rename(drive_.Root() + kFolder, drive_.Root() + u"/прежняя"_s);
    BackupWizard screen(world_.Context(), nullptr);
    ModalAnswers answers{[&](QWidget* dialog) {
      Check(dialog, 1);
      Click(dialog, "Command1");
      if (first) Choose(dialog, drive_.Root());
      Click(dialog, "Command1");
    }};
    screen.exec();
    EXPECT_TRUE(QFile::exists(drive_.Root() + kFolder)) << first;
  }
}

// The folder of the last good path would be taken in silence.
TEST_F(CopyWizards, TypedPathThatIsNoFolderIsNotPassedOver) {
  BackupWizard screen(world_.Context(), nullptr);
  const QString missing = drive_.Root() + u"/нет такой"_s;
  const ModalAnswers::Step told = Press(
      QMessageBox::Ok, u"Такой папки нет. Выберите её в дереве или напишите полный путь к ней."_s);
  ModalAnswers answers{[&](QWidget* dialog) {
                         ToLastStepOfBackup(dialog);
                         auto* path = Find<QLineEdit>(dialog, "Path1");
                         path->setFocus();
                         for (const QString& typed : {missing, u"папка"_s, u""_s}) {
                           path->selectAll();
                           QTest::keyClick(path, Qt::Key_Delete);
                           Type(path, typed);
                           EXPECT_EQ(path->text(), typed);
                           Click(dialog, "Command1");
                           EXPECT_TRUE(dialog->isVisible());
                           EXPECT_TRUE(drive_.Tree().empty()) << typed.toStdString();
                         }
                         // The same folder as before, whose row is still the current one.
                         Choose(dialog, drive_.Root());
                         Click(dialog, "Command1");
                         EXPECT_FALSE(dialog->isVisible());
                       },
                       told, told, told};
  screen.exec();
  EXPECT_TRUE(QFile::exists(drive_.Root() + kFolder + u"/archive.idb"_s));
}

TEST_F(CopyWizards, RestoreWaitsForAFolderWithAnIndex) {
  MakeBackup(Data(), ListDatabases(Data()), drive_.Root(), world_.Context().clock.Today());
  RestoreWizard screen(world_.Context(), nullptr);
  ModalAnswers answers{[&](QWidget* dialog) {
                         EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(),
                                   u"Выбрите папку, в которую Вы ранее скопировали базы данных"_s);
                         Choose(dialog, drive_.Root());
                         EXPECT_FALSE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
                         Choose(dialog, drive_.Root() + kFolder);
                         EXPECT_TRUE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
                         Type(Find<QLineEdit>(dialog, "Path1"), u"?"_s);
                         EXPECT_FALSE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
                         Choose(dialog, drive_.Root() + kFolder);
                         EXPECT_TRUE(Find<QAbstractButton>(dialog, "Command1")->isEnabled());
                         Click(dialog, "Command1");
                         EXPECT_EQ(Find<QLabel>(dialog, "Label1")->text(),
                                   u"Выбирите базы данных, которые необходимо восстановить"_s);
                         EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1")->text(), u"OK"_s);
                         Click(dialog, "Command1");
                         Check(dialog, 0);
                         Click(dialog, "Command1");
                       },
                       Press(QMessageBox::Ok, u"Отметьте хотя бы одну базу данных"_s)};
  screen.exec();
  const auto entries = ListDatabases(Data());
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[2].descriptor, (DatabaseDescriptor{u"0003\\"_s, u"Первая (копия)"_s}));
}

}  // namespace
}  // namespace kladez
