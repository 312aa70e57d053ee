#include "CatalogueWorld.h"
#include "screens/store/ImportSourceDialog.h"
#include "screens/store/NewDatabaseDialog.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using NewAndImport = CatalogueScreens;

TEST_F(NewAndImport, CreationOpensAtOnceButRefreshesOnlyTheWarehouses) {
  Create({u"Первая"_s});
  CurrentSession().base_path = CurrentSession().chosen_base = u"0001\\"_s;
  CurrentSession().warehouses = QStringList{u"a"_s, u"b"_s};
  CurrentSession().Parties(PartyKind::kFirm) = QStringList{u"Прежняя фирма"_s};
  CurrentSession().currency_name = u"тнг"_s;
  NewDatabaseDialog screen(world_.Context(), host_, nullptr);
  ShowActive(&screen);
  EXPECT_EQ(Find<QLineEdit>(&screen, "Text3")->text(), u"Первая"_s);
  Find<QLineEdit>(&screen, "Text3")->clear();
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(Find<QLineEdit>(&screen, "Text3")->hasFocus());
  EXPECT_TRUE(host_.calls.isEmpty());
  Type(Find<QLineEdit>(&screen, "Text3"), u"Вторая"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "Text3"), Qt::Key_Return);
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(host_.calls,
            (QStringList{u"CloseChildScreens"_s, u"Title Вторая"_s, u"ShowNewDatabase"_s}));
  EXPECT_EQ(CurrentSession().base_path, u"0002\\"_s);
  EXPECT_EQ(CurrentSession().chosen_base, u"0002\\"_s);
  EXPECT_EQ(CurrentSession().warehouses, QStringList{u"Главный склад"_s});
  EXPECT_EQ(CurrentSession().Parties(PartyKind::kFirm), QStringList{u"Прежняя фирма"_s});
  EXPECT_EQ(CurrentSession().currency_name, u"тнг"_s);
  EXPECT_EQ(Setting(settings::kBaseName), u"0002\\"_s);
  EXPECT_EQ(Setting(settings::kBaseTitle), u"Вторая"_s);
  EXPECT_EQ(Setting(settings::kFilePos), u"1"_s);
  EXPECT_TRUE(Tree().contains("0002/Главный склад/PRICE/0005.prc"));
}

TEST_F(NewAndImport, FailedCreationTellsWhyAndLeavesTheScreen) {
  NewDatabaseDialog screen(world_.Context(), host_, nullptr);
  ShowActive(&screen);
  Type(Find<QLineEdit>(&screen, "Text3"), u"Первая"_s);
  ModalAnswers answers{[](QWidget* dialog) {
    EXPECT_TRUE(qobject_cast<QMessageBox*>(dialog)->text().contains(u"на диске нет места"_s));
    dialog->close();
  }};
  syscalls::SetFaultHook([](std::string_view, const QByteArray&) { return ENOSPC; });
  Click(&screen, "Command1");
  syscalls::SetFaultHook({});
  EXPECT_TRUE(screen.isVisible());
  EXPECT_TRUE(host_.calls.isEmpty());
  EXPECT_FALSE(CurrentSession().IsOpen());
}

TEST_F(NewAndImport, ImportOfADatabaseIntoItselfIsRefused) {
  Create({u"Первая"_s});
  CurrentSession().base_path = u"0001\\"_s;
  const auto before = Tree();
  ImportSourceDialog screen(world_.Context(), host_, nullptr);
  ShowActive(&screen);
  ModalAnswers answers{Press(QMessageBox::Ok, u"Нельзя импортировать базу саму в себя"_s)};
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Tree(), before);
}

TEST_F(NewAndImport, ImportGoesFromSourceToAreasToFiles) {
  Create({u"Первая"_s, u"Вторая"_s});
  CurrentSession().base_path = u"0001\\"_s;
  world_.Temp().PutLines(u"0002\\SPR\\товар.spr"_s, {u" Чай"_s});
  world_.Temp().PutLines(u"0002\\SPR\\firma.spr"_s, {u"не отмечено"_s});
  ImportSourceDialog screen(world_.Context(), host_, nullptr);
  ShowActive(&screen);
  SelectRow(&screen, 1);
  ModalAnswers answers{[](QWidget* dialog) {
    EXPECT_EQ(dialog->objectName(), u"Import"_s);
    Find<QAbstractButton>(dialog, "Check6")->click();
    for (const char* name : {"Check1", "Check2"}) {
      EXPECT_TRUE(Find<QAbstractButton>(dialog, name)->isChecked()) << name;
      EXPECT_FALSE(Find<QAbstractButton>(dialog, name)->isEnabled()) << name;
    }
    Find<QAbstractButton>(dialog, "Check6")->click();
    EXPECT_TRUE(Find<QAbstractButton>(dialog, "Check1")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>(dialog, "Check1")->isEnabled());
    Find<QAbstractButton>(dialog, "Check2")->click();
    Click(dialog, "Command1");
  }};
  auto expected = Tree();
  expected["0001/SPR/товар.spr"] = EncodeLines({u" Чай"_s}).toStdString();
  Click(&screen, "Command1");
  EXPECT_EQ(Tree(), expected);
  EXPECT_EQ(Setting(settings::kFilePos), u"2"_s);
}

}  // namespace
}  // namespace kladez
