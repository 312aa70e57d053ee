#include <QUrl>

#include "MainWindowShown.h"
#include "books/store/Catalogue.h"
#include "screens/store/CatalogueDialog.h"
#include "shell/HomeScreen.h"
#include "ui/Help.h"
#include "ui/controls/LongWork.h"
#include "ui/controls/UnsavedWork.h"

namespace kladez {
namespace {

TEST_F(MainWindowShown, FirstStartOnAnEmptyFolderLands) {
  Start();
  ExpectLanding();
  EXPECT_TRUE(world_.Temp().Tree().empty());
}

TEST_F(MainWindowShown, LastDatabaseOpensWithFullRights) {
  StartOpen();
  EXPECT_EQ(window_.windowTitle(), u"Kladez - Первая"_s);
  EXPECT_EQ(ChildName(), u"Main"_s);
  EXPECT_EQ(CurrentSession().warehouses, QStringList{u"Главный склад"_s});
  EXPECT_EQ(CurrentSession().currency_name, u"руб."_s);
  EXPECT_EQ(CurrentSession().Parties(PartyKind::kFirm), QStringList{u"Ваша фирма"_s});
  for (const QString& menu : kDatabaseMenus) {
    EXPECT_TRUE(Entry(menu)->isVisible() && Entry(menu)->isEnabled());
  }
  EXPECT_TRUE(Entry(u"mnuimp"_s)->isEnabled() && Entry(u"mnuFileClose"_s)->isEnabled());
  EXPECT_TRUE(Panel("Picture1")->isVisible() && Panel("Picture2")->isVisible());
}

TEST_F(MainWindowShown, ADatabaseWithoutANameKeepsTheDashOfTheTitle) {
  CreateDatabase(Data(), u"Первая"_s);
  world_.Settings().Write(settings::kBaseName, u"0001\\"_s);
  Start();
  EXPECT_EQ(window_.windowTitle(), u"Kladez - "_s);
}

TEST_F(MainWindowShown, RemovedDatabaseLandsSilentlyAndKeepsTheKey) {
  world_.Settings().Write(settings::kBaseName, u"0001\\"_s);
  world_.Settings().Write(settings::kBaseTitle, u"Первая"_s);
  Start();
  ExpectLanding();
  EXPECT_EQ(Setting(settings::kBaseName), u"0001\\"_s);
}

TEST_F(MainWindowShown, TheListInFrontIsSavedAsATable) {
  StartOpen();
  Entry(u"mnu_Sklad_NT"_s)->trigger();
  ModalAnswers answers{[](QWidget* chooser) {
    EXPECT_EQ(chooser->objectName(), u"save_table"_s);
    qobject_cast<QDialog*>(chooser)->reject();
  }};
  Entry(u"mnuSaveTable"_s)->trigger();
  EXPECT_EQ(ChildName(), u"Sklad"_s);
}

TEST_F(MainWindowShown, TheTwoWaysOutDifferInTheScratchFile) {
  StartOpen();
  world_.Temp().Put(u"temp.prc"_s, "x");
  QTimer::singleShot(0, [&] { Entry(u"mnuFileExit"_s)->trigger(); });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(QFile::exists(Data().Root() + u"/temp.prc"_s));
  EXPECT_NE(window_.Child(), nullptr);
  window_.close();
  EXPECT_FALSE(QFile::exists(Data().Root() + u"/temp.prc"_s));
  EXPECT_EQ(window_.Child(), nullptr);
  EXPECT_EQ(Setting(settings::kBaseName), u"0001\\"_s);
}

TEST_F(MainWindowShown, ClosedDatabaseStaysClosedAtTheNextStart) {
  StartOpen();
  Entry(u"mnuFileClose"_s)->trigger();
  ExpectLanding();
  EXPECT_FALSE(CurrentSession().IsOpen());
  EXPECT_TRUE(CurrentSession().warehouses.isEmpty() &&
              CurrentSession().Parties(PartyKind::kFirm).isEmpty());
  MainWindow again(world_.Context());
  again.Start(1);
  EXPECT_EQ(again.windowTitle(), u"Kladez"_s);
  EXPECT_EQ(again.Child()->objectName(), u"main2"_s);
}

TEST_F(MainWindowShown, OneChildScreenAtATime) {
  StartOpen();
  for (const char* link : {"go12", "go16", "go12"}) {
    ClickPanel(link);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Children(), 1) << link;
  }
  EXPECT_EQ(ChildName(), u"sprTovar"_s);
}

TEST_F(MainWindowShown, ModalScreensLeaveTheChildAndAScreenThatClosesGivesWayToTheHomeScreen) {
  StartOpen();
  ClickPanel("go12");
  const QPointer<QWidget> goods = window_.Child();
  {
    ModalAnswers answers{[](QWidget* dialog) {
      EXPECT_EQ(dialog->objectName(), u"sprFirm"_s);
      dialog->close();
    }};
    Entry(u"mnu_Sprav_O"_s)->trigger();
  }
  EXPECT_EQ(window_.Child(), goods);
  goods->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ChildName() == u"Main"_s; }));
}

TEST_F(MainWindowShown, AnotherScreenAskedForIsNotGivenAwayForTheHomeScreen) {
  StartOpen();
  Entry(u"mnu_Sprav_T"_s)->trigger();
  // It closes itself, and before the home screen is there, another one is asked for. That one has
  // something to tell while it is made.
  ASSERT_TRUE(QFile::remove(Data().Resolve(u"0001\\spr\\товар.spr"_s)));
  ASSERT_EQ(ChildName(), u"sprTovar"_s);
  delete window_.Child();
  ModalAnswers answers({[](QWidget* message) {
    QTest::qWait(50);
    message->close();
  }});
  Entry(u"mnu_Sklad_NT"_s)->trigger();
  EXPECT_EQ(ChildName(), u"Sklad"_s);
  EXPECT_EQ(Children(), 1);
}

TEST_F(MainWindowShown, ALongWarehouseNameWidensNoScreen) {
  StartOpen();
  const QString name = u"Склад "_s.repeated(40);
  CurrentSession().warehouses.append(name);
  for (const char* link : {"go0", "go1", "go2", "go3", "go4"}) {
    ClickPanel(link);
    ASSERT_NE(window_.Child(), nullptr);
    EXPECT_LT(window_.Child()->minimumSizeHint().width(), 800) << link;
    EXPECT_LT(window_.Child()->sizeHint().width(), 1600) << link;
  }
}

TEST_F(MainWindowShown, NoLinkStaysLitAfterItsDialog) {
  StartOpen();
  auto* firms = Find<QAbstractButton>(window_.Child(), "go11");
  const QImage still = firms->grab().toImage();
  QTest::mouseMove(firms);
  EXPECT_TRUE(QTest::qWaitFor([&] { return firms->grab().toImage() != still; }));
  ModalAnswers answers{[](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); }};
  QTest::mouseClick(firms, Qt::LeftButton);
  EXPECT_EQ(firms->grab().toImage(), still);
}

TEST_F(MainWindowShown, ANewDatabaseHasItsPanelsAndLeadsByFirstSteps) {
  CreateDatabase(Data(), kDemonstrationName.toString());
  Start();
  ModalAnswers answers{[](QWidget* dialog) {
    Enter(dialog, "Text3", u"Новая"_s);
    Click(dialog, "Command1");
  }};
  Click(window_.Child(), "Label4");
  EXPECT_TRUE(Panel("Picture1")->isVisible() && Panel("Picture2")->isVisible());
  EXPECT_TRUE(Panel("role")->isVisible());
  EXPECT_TRUE(Panel("first_steps")->isVisible());
  EXPECT_FALSE(Panel("MSChart1")->isVisible());
  EXPECT_EQ(Find<QLabel>(window_.Child(), "step_firm_mark")->text(), u"1."_s);
  QCoreApplication::processEvents();  // the links lie in their places
  Click(window_.Child(), "open_demonstration");
  EXPECT_EQ(window_.windowTitle(), u"Kladez - Демонстрационная база"_s);
  EXPECT_EQ(CurrentSession().base_path, u"0001\\"_s);
  EXPECT_FALSE(Panel("open_demonstration")->isVisible()) << "it is open already";
}

TEST_F(MainWindowShown, HomeScreenFollowsItsStoredChoice) {
  world_.Settings().Write(settings::kPanel, u"0"_s);
  StartOpen();
  EXPECT_FALSE(Panel("Picture1")->isVisible());
  auto* home = window_.Child();
  EXPECT_TRUE(Find<QWidget>(home, "Picture6")->isVisible());
  Click(home, "Check1");
  Click(home, "Check3");
  EXPECT_FALSE(Find<QWidget>(home, "Picture6")->isVisible());
  EXPECT_TRUE(Panel("Picture1")->isVisible());
  EXPECT_EQ(Setting(settings::kTip), u"0"_s);
  EXPECT_EQ(Setting(settings::kPanel), u"1"_s);
  EXPECT_EQ(Find<QCheckBox>(home, "Check1")->text(),
            u"Отображать подсказку \"     \" на главной"_s);
}

TEST_F(MainWindowShown, TheHomeScreenCountsAnewAfterEveryDialogAboveIt) {
  StartOpen();
  int documents = 0;
  for (const QString& entry : {u"mnAbout"_s, u"mnuFileCreate"_s, u"mnubases"_s, u"arch"_s}) {
    ModalAnswers answers{[&](QWidget* dialog) {
      world_.Temp().PutLines(u"0001\\Главный склад\\UHD\\000%1.uhd"_s.arg(++documents),
                             {u"1"_s, u"22.11.2026"_s, u"-"_s, u"1"_s, u"0"_s, u"1"_s, u"нет"_s});
      QTest::keyClick(dialog, Qt::Key_Escape);
    }};
    Entry(entry)->trigger();
    EXPECT_EQ(Find<QLabel>(window_.Child(), "Label18")->text(), u"%1.00"_s.arg(documents))
        << entry.toStdString();
  }
}

TEST_F(MainWindowShown, EveryLinkOfTheHomeScreenOpensWhatThePanelOpens) {
  StartOpen();
  for (int link = 0; link <= 16; ++link) {
    const QString name = u"go%1"_s.arg(link);
    EXPECT_NE(window_.Child()->findChild<QAbstractButton*>(name), nullptr) << link;
  }
  EXPECT_EQ(window_.Child()->findChild<QWidget*>(u"go17"_s), nullptr);
  ModalAnswers answers{[](QWidget* dialog) {
    EXPECT_EQ(dialog->objectName(), u"currenc"_s);
    dialog->close();
  }};
  Click(window_.Child(), "go16");
}

TEST_F(MainWindowShown, TheHelpKeyOpensThePageOfTheScreenThatHasTheKeyboard) {
  for (const char16_t* page :
       {u"price.htm", u"ost.htm", u"workdb.htm", u"index.htm", u"stock.htm", u"documents.htm"}) {
    world_.Temp().Put(u"help\\"_s + QString::fromUtf16(page), "x");
  }
  StartOpen();
  QStringList opened;
  SetAddressOpener([&](const QUrl& address, const auto&) { opened.append(address.fileName()); });
  const auto press = [](QWidget* screen) { QTest::keyClick(screen->focusWidget(), Qt::Key_F1); };
  press(&window_);
  ClickPanel("go4");
  press(&window_);
  ClickPanel("go0");
  press(&window_);
  ClickPanel("go1");
  {
    ModalAnswers answers{[&](QWidget* editor) {
      press(editor);
      editor->close();
    }};
    Click(window_.Child(), "Command1");
  }
  for (const QString& entry : {u"mnu_Sklad_ZO"_s, u"mnubases"_s}) {
    ModalAnswers answers{[&](QWidget* dialog) {
      press(dialog);
      dialog->close();
    }};
    Entry(entry)->trigger();
  }
  SetAddressOpener([](const QUrl&, const auto&) {});
  EXPECT_EQ(opened, QStringList({u"index.htm"_s, u"price.htm"_s, u"stock.htm"_s, u"documents.htm"_s,
                                 u"ost.htm"_s, u"workdb.htm"_s}));
}

TEST_F(MainWindowShown, NoCommandTakesAScreenAwayUnderItsWork) {
  StartOpen();
  {
    LongWork counting(window_.Child(), u"Подсчёт"_s);
    Entry(u"mnu_Sklad_NT"_s)->trigger();
    EXPECT_EQ(ChildName(), u"Main"_s);
    EXPECT_THROW(counting.Told().Tell(0.5), WorkCancelled);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return ChildName() == u"Sklad"_s; }));
  // Nor from under a dialog, where it came by neither key nor mouse.
  ModalAnswers answers{[&](QWidget* dialog) {
    Entry(u"mnu_Sprav_T"_s)->trigger();
    EXPECT_EQ(ChildName(), u"Sklad"_s);
    dialog->close();
  }};
  Entry(u"mnAbout"_s)->trigger();
}

TEST_F(MainWindowShown, EveryWayFromAScreenAsksForItsUnsavedWork) {
  StartOpen();
  ClickPanel("go12");
  new UnsavedWork(window_.Child(),
                  {.is_changed = [] { return true; }, .save = [] { return true; }});
  const QString question = u"Сохранить изменения?"_s;
  const std::function<void()> ways[] = {
      [&] { ClickPanel("go0"); },
      [&] { ClickPanel("go16"); },
      [&] { Entry(u"mnuFileOpen"_s)->trigger(); },
      [&] { Entry(u"mnuFileClose"_s)->trigger(); },
      [&] { Entry(u"mnuFileExit"_s)->trigger(); },
      [&] { window_.close(); },
  };
  for (const auto& way : ways) {
    ModalAnswers answers{Press(QMessageBox::Cancel, question)};
    way();
    EXPECT_EQ(ChildName(), u"sprTovar"_s);
    EXPECT_TRUE(window_.isVisible());
  }
  ModalAnswers answers{Press(QMessageBox::No, question)};
  ClickPanel("go0");
  EXPECT_EQ(ChildName(), u"Sklad"_s);
}

TEST_F(MainWindowShown, NewDatabaseIsOpenAtOnce) {
  Start();
  ModalAnswers answers{[](QWidget* dialog) {
    Type(Find<QLineEdit>(dialog, "Text3"), u"Новая"_s);
    Click(dialog, "Command1");
  }};
  Click(window_.Child(), "Label4");
  EXPECT_EQ(window_.windowTitle(), u"Kladez - Новая"_s);
  EXPECT_EQ(ChildName(), u"Main"_s);
  EXPECT_TRUE(Panel("Picture1")->isVisible());
  EXPECT_TRUE(Entry(u"mnuimp"_s)->isEnabled());
  EXPECT_EQ(CurrentSession().chosen_base, CurrentSession().base_path);
}

TEST_F(MainWindowShown, CancelledChoiceOpensTheSameDatabaseAgain) {
  StartOpen();
  ClickPanel("go12");
  world_.Temp().PutLines(u"0001\\склад.usd"_s, {u"Главный склад"_s, u"Киоск"_s});
  {
    ModalAnswers answers{Escape()};
    Entry(u"mnuFileOpen"_s)->trigger();
  }
  EXPECT_EQ(ChildName(), u"Main"_s);
  EXPECT_EQ(CurrentSession().warehouses.size(), 2);
  ClickPanel("go12");
  {
    ModalAnswers answers{Escape()};
    Entry(u"mnubases"_s)->trigger();
  }
  EXPECT_EQ(ChildName(), u"sprTovar"_s);
}

}  // namespace
}  // namespace kladez
