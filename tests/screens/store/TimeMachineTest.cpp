// The time machine's windows: what changed from copy to copy, and the three ways back.
#include <QCalendarWidget>
#include <QTabWidget>

#include "DialogWatch.h"
#include "ScreenDriver.h"
#include "books/copies/CopiesWorld.h"
#include "screens/store/CopyLookDialog.h"
#include "screens/store/CopyOptionsDialog.h"
#include "screens/store/TimeMachineDialog.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class TimeMachineTest : public testing::Test {
 protected:
  TimeMachineTest() {
    session_.chosen_base = u"0001\\"_s;
    OpenDatabase(session_, world_.Data());
    Make(kMorning.addDays(-1));
    world_.Put("Главный склад\\PRH\\0002.prh", "2\r\n23.11.2026\r\nБаза\r\n7.00\r\nда\r\n");
    world_.Put("SPR\\товар.spr", "Чай\r\nИндия\r\n\r\nпач.\r\n50.00\r\n");
    world_.Put("Главный склад\\товар.usl", "Чай\r\n22\r\nпач.\r\n");
    Make(kMorning);
  }

  void Make(const QDateTime& time) {
    const Clock clock{time};
    CopyKeeper(world_.Data(), settings_, clock)
        .Make(ListDatabases(world_.Data()).at(0), u"проба"_s);
  }
  static QString Cell(RecordList* list, int row, int column) {
    return list->model()->index(row, column).data().toString();
  }

  CopiesWorld world_;
  SettingsStore settings_{world_.RootPath() + u"/settings.ini"_s};
  const Clock clock_{kMorning};
  Session session_;
  Safekeeping keeping_{world_.Data(), settings_, clock_};
  const PrintOutDesk print_outs_{world_.Data(), {}};
  AppContext context_{world_.Data(), session_, settings_, clock_, print_outs_, {}, {}, &keeping_};
};

TEST_F(TimeMachineTest, EachCopySaysWhatItHasOtherwiseThanTheOneBefore) {
  TimeMachineDialog dialog(context_, nullptr);
  auto* copies = Find<RecordList>(&dialog, "copies");
  ASSERT_EQ(copies->model()->rowCount(), 2);
  EXPECT_EQ(Cell(copies, 0, 0), u"23.11.2026 09:00"_s);
  EXPECT_EQ(Cell(copies, 0, 2), u"2 (+1)"_s);
  EXPECT_EQ(Cell(copies, 1, 2), u"1"_s);
  auto* changes = Find<RecordList>(&dialog, "changes");
  QStringList rows;
  for (int row = 0; row < changes->model()->rowCount(); ++row) {
    rows << QStringList{Cell(changes, row, 0), Cell(changes, row, 1), Cell(changes, row, 2)}.join(
        u'|');
  }
  EXPECT_EQ(rows,
            QStringList({u"Приход 2 от 23.11.2026, Главный склад (0002.prh)||7.00, закрыт"_s,
                         u"Товар «Чай»|45.00|50.00"_s, u"Остаток «Чай», Главный склад|20|22"_s}));
  auto* calendar = Find<QCalendarWidget>(&dialog, "calendar");
  emit calendar->clicked(QDate(2026, 11, 22));
  calendar->setSelectedDate(QDate(2026, 11, 22));
  emit calendar->clicked(QDate(2026, 11, 22));
  EXPECT_EQ(copies->CurrentRow(), 1);
}

TEST_F(TimeMachineTest, AListComesBackInItsPlaceAfterACopyOfTheNewOne) {
  world_.Put("SPR\\товар.spr", "");
  const UnpackedCopy copy(world_.Copies().at(0));
  CopyLookDialog dialog(context_, copy, nullptr);
  EXPECT_EQ(Cell(Find<RecordList>(&dialog, "documents"), 0, 4), u"90.00"_s);
  EXPECT_EQ(Cell(Find<RecordList>(&dialog, "stock"), 0, 1), u"20"_s);
  Find<QTabWidget>(&dialog, "tabs")->setCurrentIndex(2);
  auto* lists = Find<RecordList>(&dialog, "lists");
  ASSERT_EQ(Cell(lists, 0, 0), u"Товары"_s);
  lists->SelectRow(0);
  ModalAnswers answers{Press(QMessageBox::Yes)};
  Find<QPushButton>(&dialog, "back")->click();
  EXPECT_TRUE(dialog.HasBroughtBack());
  EXPECT_EQ(world_.Text("SPR\\товар.spr"), u"Чай\r\nИндия\r\n\r\nпач.\r\n45.00\r\n"_s);
  const auto copies = world_.Copies();
  ASSERT_EQ(copies.size(), 3u);
  EXPECT_EQ(CopiesWorld::Contents(copies[2]).at(u"0001/SPR/товар.spr"_s), QString());
}

TEST_F(TimeMachineTest, ADocumentComesBackAndIsOneStepToUndo) {
  const UnpackedCopy copy(world_.Copies().at(1));
  world_.Put("Главный склад\\PRH\\0001.prh", "другой\r\n");
  BringBackDocument(world_.Data(), copy, DocumentsOf(copy).at(0));
  EXPECT_TRUE(world_.Text("Главный склад\\PRH\\0001.prh").startsWith(u"1\r\n23.11.2026"_s));
  EXPECT_EQ(keeping_.Undo().Last(), u"накладная 1 возвращена из копии"_s);
  keeping_.Undo().UndoLast(session_);
  EXPECT_EQ(world_.Text("Главный склад\\PRH\\0001.prh"), u"другой\r\n"_s);
}

TEST_F(TimeMachineTest, TheWholeComesBackAsANewDatabase) {
  DeleteDatabase(world_.Data(), ListDatabases(world_.Data()).at(0));
  const StoredCopy first = world_.Copies().at(0);
  BringBackWhole(world_.Data(), UnpackedCopy(first));
  const auto bases = ListDatabases(world_.Data());
  ASSERT_EQ(bases.size(), 1u);
  EXPECT_EQ(bases[0].descriptor.name, u"Лавка (копия)"_s);
  EXPECT_TRUE(world_.Text("SPR\\товар.spr").contains(u"45.00"_s));
  const QDir state(QFile::decodeName(StateDirectory()));
  EXPECT_EQ(state.entryList({u"look-*"_s}, QDir::Dirs), QStringList()) << "what was looked at goes";
}

TEST_F(TimeMachineTest, ADamagedCopyIsToldAndTouchesNothing) {
  const StoredCopy copy = world_.Copies().at(0);
  QFile file(QFile::decodeName(copy.file));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(200));
  file.write("\xFF\xFF\xFF");
  file.close();
  EXPECT_THROW(UnpackedCopy{copy}, std::filesystem::filesystem_error);
}

TEST_F(TimeMachineTest, TheSellerBringsNothingBackAndRoomIsKeptSensible) {
  CopyOptionsDialog options(context_, nullptr);
  Find<QLineEdit>(&options, "room")->setText(u"0"_s);
  {
    const ModalAnswers answers{Press(QMessageBox::Ok)};
    Find<QPushButton>(&options, "ok")->click();
  }
  EXPECT_EQ(settings_.Read(settings::kCopyRoom), u"500"_s);
  Find<QLineEdit>(&options, "room")->setText(u"70"_s);
  Find<QPushButton>(&options, "ok")->click();
  EXPECT_EQ(keeping_.Copies().Room(), 70);
  session_.role = UserRole::kSeller;
  TimeMachineDialog dialog(context_, nullptr);
  ModalAnswers refusal{Press(QMessageBox::Ok)};
  Find<QPushButton>(&dialog, "whole")->click();
  EXPECT_EQ(ListDatabases(world_.Data()).size(), 1u);
}

}  // namespace
}  // namespace kladez
