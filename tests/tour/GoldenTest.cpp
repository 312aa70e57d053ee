// Every command of every screen that writes, given by keys and mouse on the real windows: first on
// a full disk, where it must tell so, change nothing and lose nothing of what was typed, then
// again; what it leaves is compared by whole bytes. A screen without a case fails the test.

#include <QMessageBox>
#include <cerrno>
#include <set>

#include "GoldenCases.h"
#include "Screens.h"
#include "formats/TextLines.h"
#include "system/SystemCalls.h"
#include "tour/Eyes.h"
#include "tour/Stage.h"
#include "ui/controls/Messages.h"

namespace kladez {
namespace {

std::string Readable(const std::string& bytes) {
  return DecodeText(QByteArrayView(bytes)).toStdString();
}

void ExpectTree(const Tree& expected, const Tree& tree) {
  for (const auto& [path, bytes] : expected) {
    if (!tree.contains(path)) {
      ADD_FAILURE() << path << " is missing";
    } else if (tree.at(path) != bytes) {
      ADD_FAILURE() << path << " is\n" << Readable(tree.at(path)) << "and not\n" << Readable(bytes);
    }
  }
  for (const auto& [path, bytes] : tree) {
    EXPECT_TRUE(expected.contains(path)) << path << " is new:\n" << Readable(bytes);
  }
}

// The message of the command guard, which names what was refused and why.
void ReadFaultMessage(Robot& robot) {
  robot.WaitForMessage();
  robot.InWindow([] {
    auto* box = qobject_cast<QMessageBox*>(eyes::Front());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), kAttention);
    EXPECT_TRUE(box->text().contains(u"на диске нет места"_s)) << box->text().toStdString();
    EXPECT_TRUE(box->text().contains(u'/')) << box->text().toStdString();
  });
  robot.Press(Qt::Key_Return);
}

class Golden : public testing::TestWithParam<GoldenCase> {
 protected:
  void TearDown() override { syscalls::SetFaultHook({}); }
};

TEST_P(Golden, TheFullDiskIsToldAndTheSecondTryLeavesTheseBytes) {
  const GoldenCase& golden = GetParam();
  const FaultBooks books(golden.beside);
  const QTemporaryDir settings;
  const QString settings_file = settings.filePath(u"settings.ini"_s);
  SettingsStore(settings_file).Write(settings::kBaseName, u"0001\\"_s);
  SettingsStore(settings_file).Write(settings::kBaseTitle, u"Лавка"_s);
  Stage stage(books.Data().Root(), settings_file, Clock(QDateTime(kBooksDay, QTime(10, 0))));
  Robot robot;
  const Tree before = books.Tree();
  qputenv("GOLDEN_BACKUPS", books.Backups().toUtf8());

  stage.Play(robot, [&](Robot& player) {
    player.WaitFor(u"Main"_s);
    golden.prepare(player);
    // Copies lie on another disk, which has room.
    const QByteArray beside = QFile::encodeName(QFileInfo(settings_file).absolutePath());
    player.InWindow([=] {
      syscalls::SetFaultHook([=](std::string_view, const QByteArray& path) {
        return path.startsWith(beside) ? 0 : ENOSPC;
      });
    });
    golden.command(player);
    ReadFaultMessage(player);
    player.InWindow([] { syscalls::SetFaultHook({}); });
    EXPECT_EQ(books.Tree(), before);
    golden.command(player);
    if (golden.gone.empty()) {
      player.Settle();
    } else {
      player.WaitUntilGone(QString::fromStdString(golden.gone));
    }
    if (golden.leave) golden.leave(player);
  });

  Tree expected = before;
  golden.change(expected);
  Tree after = books.Tree();
  // Pictures are held by tests of their own; letters differ from machine to machine.
  for (const auto& [path, bytes] : expected) {
    if (path.ends_with(".gif") && after.contains(path)) after[path] = bytes;
  }
  ExpectTree(expected, after);
}

INSTANTIATE_TEST_SUITE_P(Screens, Golden, testing::ValuesIn(GoldenCases()));

// These write nothing of their own.
const std::set<QString> kReaders = {
    u"Main"_s,      u"PrihPrint"_s, u"TovPrih_Ass"_s, u"TovUhod_Ass"_s,
    u"about"_s,     u"change"_s,    u"checkplace"_s,  u"copyoptions"_s,
    u"frmSplash"_s, u"helper"_s,    u"history"_s,     u"main2"_s,
    u"otdocs"_s,    u"otlist"_s,    u"otspeed"_s,     u"vnutr_Ass"_s};

TEST(Golden, EveryScreenThatWritesHasACase) {
  std::set<QString> covered;
  for (const GoldenCase& golden : GoldenCases()) {
    for (const QString& screen : QString::fromStdString(golden.screens).split(u' ')) {
      EXPECT_TRUE(kScreens.contains(screen)) << screen.toStdString();
      covered.insert(screen);
    }
  }
  for (const QString& screen : kScreens) {
    EXPECT_NE(covered.contains(screen), kReaders.contains(screen)) << screen.toStdString();
  }
}

}  // namespace
}  // namespace kladez
