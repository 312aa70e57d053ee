#include <unistd.h>

#include "CatalogueWorld.h"
#include "books/store/Catalogue.h"
#include "screens/store/CatalogueDialog.h"
#include "screens/store/ImportSourceDialog.h"
#include "screens/store/NewDatabaseDialog.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

TEST_F(CatalogueScreens, EmptyFolderOffersCreationOnly) {
  ModalAnswers answers{On([&](CatalogueDialog* bases) {
                         for (const char* name : {"GoldButton1", "GoldButton2", "Command1"}) {
                           EXPECT_FALSE(Find<QAbstractButton>(bases, name)->isEnabled()) << name;
                         }
                         EXPECT_FALSE(Find<QComboBox>(bases, "Combo1")->isEnabled());
                         Click(bases, "GoldButton3");
                         EXPECT_TRUE(Find<QComboBox>(bases, "Combo1")->isEnabled());
                         EXPECT_EQ(Find<QLineEdit>(bases, "Text3")->text(), u"Новая база"_s);
                         EXPECT_EQ(Find<QComboBox>(bases, "Combo1")->currentIndex(), -1);
                         Click(bases, "Command2");
                       }),
                       [](QWidget* dialog) {
                         EXPECT_EQ(dialog->windowTitle(), u"Создать базу"_s);
                         EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), u"Новая база"_s);
                         QTest::keyClick(dialog, Qt::Key_Return);
                       }};
  EXPECT_FALSE(Run(CatalogueDialog::Mode::kCatalogue));
  EXPECT_TRUE(Tree().contains("0001.us") && Tree().contains("0001/SPR/товар.spr"));
  EXPECT_EQ(Setting(settings::kFilePos), u"1"_s);
  EXPECT_EQ(Setting(settings::kRole), u"-1"_s);
  EXPECT_FALSE(CurrentSession().IsOpen());
}

TEST_F(CatalogueScreens, OpeningWritesTheChoiceAndTellsTheMainWindow) {
  Create({u"Первая"_s, u"Вторая"_s, u"Третья"_s});
  ModalAnswers answers{On([&](CatalogueDialog* bases) {
    EXPECT_EQ(bases->windowTitle(), u"Открыть"_s);
    EXPECT_EQ(Find<CatalogueList>(bases, "ListView1")->width(), 6135 / 15);
    EXPECT_EQ(Find<QLineEdit>(bases, "Text3")->text(), u"Первая"_s);
    Find<QComboBox>(bases, "Combo1")->setCurrentIndex(0);
    SelectRow(bases, 1);
    EXPECT_EQ(Find<QLineEdit>(bases, "Text3")->text(), u"Вторая"_s);
    QTest::keyClick(Find<CatalogueList>(bases, "ListView1"), Qt::Key_Return);
  })};
  EXPECT_TRUE(Run(CatalogueDialog::Mode::kOpen));
  EXPECT_EQ(host_.calls, (QStringList{u"CloseChildScreens"_s, u"Title Вторая"_s}));
  EXPECT_EQ(CurrentSession().chosen_base, u"0002\\"_s);
  EXPECT_TRUE(CurrentSession().IsSeller());
  EXPECT_EQ(Setting(settings::kBaseName), u"0002\\"_s);
  EXPECT_EQ(Setting(settings::kBaseTitle), u"Вторая"_s);
  EXPECT_EQ(Setting(settings::kRole), u"0"_s);
  EXPECT_EQ(Setting(settings::kFilePos), u"2"_s);
}

TEST_F(CatalogueScreens, OnlyTheDirectorIsAskedForThePassword) {
  Create({u"Первая"_s});
  world_.Temp().PutLines(u"bases.psw"_s, {u"Пароль"_s});
  const auto open_as = [](int role, int tries) {
    return On([=](CatalogueDialog* bases) {
      Find<QComboBox>(bases, "Combo1")->setCurrentIndex(role);
      for (int i = 0; i < tries; ++i) {
        EXPECT_TRUE(bases->isVisible());
        Click(bases, "Command1");
      }
    });
  };
  {
    ModalAnswers answers{open_as(1, 4),
                         [](QWidget* dialog) {
                           EXPECT_EQ(dialog->windowTitle(), u"Пароль"_s);
                           EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), QString());
                           QTest::keyClick(dialog, Qt::Key_Escape);
                         },
                         AnswerText({}),
                         AnswerText(u"пароль"_s),
                         Press(QMessageBox::Ok, u"Пароль введен не верно"_s),
                         [&](QWidget* dialog) {
                           EXPECT_TRUE(host_.calls.isEmpty());
                           EXPECT_EQ(Setting(settings::kBaseName), QString());
                           AnswerText(u"Пароль"_s)(dialog);
                         }};
    EXPECT_TRUE(Run(CatalogueDialog::Mode::kOpen));
  }
  for (const int role : {0, -1}) {
    ModalAnswers answers{open_as(role, 1)};
    EXPECT_TRUE(Run(CatalogueDialog::Mode::kOpen)) << role;
  }
}

TEST_F(CatalogueScreens, RightsChangeOnlyByAnOpeningThatWentThrough) {
  Create({u"Первая"_s});
  world_.Temp().PutLines(u"bases.psw"_s, {u"Пароль"_s});
  for (const UserRole role : {UserRole::kSeller, UserRole::kDirector, UserRole::kNone}) {
    for (const bool frame : {false, true}) {
      CurrentSession().role = role;
      ModalAnswers answers{On([&](CatalogueDialog* bases) {
                             auto* choice = Find<QComboBox>(bases, "Combo1");
                             EXPECT_EQ(choice->currentIndex(), static_cast<int>(role));
                             choice->setCurrentIndex(1);
                             Click(bases, "Command1");
                             choice->setCurrentIndex(role == UserRole::kDirector ? 0 : 1);
                             frame ? void(bases->close()) : Click(bases, "Command2");
                           }),
                           Escape()};  // the password
      EXPECT_FALSE(Run(CatalogueDialog::Mode::kOpen));
      EXPECT_EQ(CurrentSession().role, role);
    }
  }
}

TEST_F(CatalogueScreens, OpenDatabaseIsNeitherRenamedNorDeleted) {
  Create({u"Первая"_s});
  CurrentSession().base_path = u"0001\\"_s;
  const auto before = Tree();
  ModalAnswers answers{
      On([](CatalogueDialog* bases) {
        Click(bases, "GoldButton1");
        Click(bases, "GoldButton2");
        bases->close();
      }),
      Press(QMessageBox::Ok, u"Изменение невозможно, т.к. база данных используется."_s),
      Press(QMessageBox::Ok, u"Удаление невозможно, т.к. база данных используется."_s)};
  Run(CatalogueDialog::Mode::kCatalogue);
  EXPECT_EQ(Tree(), before);
}

TEST_F(CatalogueScreens, RenameAndDeleteAskFirst) {
  Create({u"Первая"_s, u"Вторая"_s});
  auto expected = Tree();
  expected["0001.us"] = EncodeLines({u"0001\\"_s, u"Новое имя"_s}).toStdString();
  std::erase_if(expected, [](const auto& file) { return file.first.starts_with("0002"); });
  ModalAnswers answers{On([&](CatalogueDialog* bases) {
                         Click(bases, "GoldButton1");
                         Click(bases, "GoldButton1");
                         EXPECT_EQ(Find<QLineEdit>(bases, "Text3")->text(), u"Новое имя"_s);
                         SelectRow(bases, 1);
                         const auto before = Tree();
                         Click(bases, "GoldButton2");
                         EXPECT_EQ(Tree(), before);
                         Click(bases, "GoldButton2");
                         EXPECT_EQ(Find<CatalogueList>(bases, "ListView1")->Count(), 1);
                         bases->close();
                       }),
                       AnswerText({}),
                       [](QWidget* dialog) {
                         EXPECT_EQ(dialog->windowTitle(), u"Переименовать"_s);
                         EXPECT_EQ(dialog->findChild<QLabel*>()->text(),
                                   u"Введите новое имя для базы: Первая"_s);
                         AnswerText(u"Новое имя"_s)(dialog);
                       },
                       [](QWidget* dialog) {
                         auto* box = qobject_cast<QMessageBox*>(dialog);
                         EXPECT_EQ(box->text(), u"Вы уверены?"_s);
                         EXPECT_TRUE(box->informativeText().contains(u"«Вторая»"_s));
                         EXPECT_TRUE(box->button(QMessageBox::No) == box->defaultButton());
                         QTest::keyClick(dialog, Qt::Key_Return);
                       },
                       Press(QMessageBox::Yes)};
  Run(CatalogueDialog::Mode::kCatalogue);
  EXPECT_EQ(Tree(), expected);
}

TEST_F(CatalogueScreens, CancelAndTheFrameDiffer) {
  struct Case {
    bool any;
    QString open;
    bool frame;
    QString text1_after;
    QStringList calls;
    QString filepos_after;
    QString basename_after;
  };
  const QStringList both = {u"DisableDatabaseCommands"_s, u"HideDatabaseMenus"_s};
  const std::vector<Case> cases = {
      {true, u"0001\\"_s, false, u"0001\\"_s, {}, u"7"_s, u"old"_s},
      {true, {}, false, {}, {}, u"7"_s, u"old"_s},
      {true, {}, true, u"0001\\"_s, {}, u"1"_s, u"old"_s},
      {false, u"0001\\"_s, false, {}, both, u"7"_s, u"old"_s},
      {false, u"0001\\"_s, true, {}, {u"HideDatabaseMenus"_s}, u"7"_s, u"0001\\"_s},
  };
  for (const Case& c : cases) {
    for (const auto& entry : ListDatabases(Data())) DeleteDatabase(Data(), entry);
    if (c.any) Create({u"Первая"_s});
    host_.calls.clear();
    CurrentSession().base_path = c.open;
    CurrentSession().chosen_base = u"0001\\"_s;
    world_.Settings().Write(settings::kFilePos, u"7"_s);
    world_.Settings().Write(settings::kBaseName, u"old"_s);
    ModalAnswers answers{On([&](CatalogueDialog* bases) {
      if (c.frame) {
        bases->close();
      } else {
        QTest::keyClick(bases, Qt::Key_Escape);
      }
    })};
    EXPECT_FALSE(Run(CatalogueDialog::Mode::kOpen));
    const size_t number = size_t(&c - cases.data());
    EXPECT_EQ(CurrentSession().chosen_base, c.text1_after) << number;
    EXPECT_EQ(host_.calls, c.calls) << number;
    EXPECT_EQ(Setting(settings::kFilePos), c.filepos_after) << number;
    EXPECT_EQ(Setting(settings::kBaseName), c.basename_after) << number;
  }
}

TEST_F(CatalogueScreens, PathThatLeadsElsewhereIsShownButNotOpened) {
  world_.Temp().PutLines(u"0001.us"_s, {u"..\\чужая\\"_s, u"Чужая"_s});
  ModalAnswers answers{
      On([](CatalogueDialog* bases) {
        EXPECT_EQ(Find<QLineEdit>(bases, "Text3")->text(), u"Чужая"_s);
        Click(bases, "Command1");
        EXPECT_TRUE(bases->isVisible());
        bases->close();
      }),
      [](QWidget* dialog) {
        EXPECT_TRUE(qobject_cast<QMessageBox*>(dialog)->text().contains(u"0001.us"_s));
        dialog->close();
      }};
  EXPECT_FALSE(Run(CatalogueDialog::Mode::kOpen));
  EXPECT_EQ(host_.calls, QStringList());
}

TEST_F(CatalogueScreens, TreeBehindALinkThatLeadsOutIsNeitherOpenedNorDeletedNorImported) {
  const TempData outside;
  Create({u"Первая"_s});
  world_.Temp().PutLines(u"0002.us"_s, {u"0002\\"_s, u"Чужая"_s});
  const QByteArray link = QFile::encodeName(world_.Temp().Root() + u"/0002"_s);
  ASSERT_EQ(::symlink(QFile::encodeName(outside.Root()).constData(), link.constData()), 0);
  const ModalAnswers::Step told = [](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr) << dialog->objectName().toStdString();
    EXPECT_TRUE(box->text().contains(u"0002.us"_s)) << box->text().toStdString();
    box->close();
  };
  {
    ModalAnswers answers{On([](CatalogueDialog* bases) {
                           SelectRow(bases, 1);
                           Click(bases, "Command1");
                           EXPECT_TRUE(bases->isVisible());
                           Click(bases, "GoldButton2");
                           bases->close();
                         }),
                         told, Press(QMessageBox::Yes, u"Вы уверены?"_s), told};
    EXPECT_FALSE(Run(CatalogueDialog::Mode::kCatalogue));
  }
  EXPECT_EQ(host_.calls, QStringList());
  EXPECT_EQ(ListDatabases(Data()).size(), 2u);
  CurrentSession().base_path = u"0001\\"_s;
  ImportSourceDialog screen(world_.Context(), host_, nullptr);
  ShowActive(&screen);
  SelectRow(&screen, 1);
  ModalAnswers answers{told};
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(CatalogueScreens, BoxesKeepTheirSizeWhateverTheDescriptorHolds) {
  const QString name(20000, u'ш');
  const QString path(20000, u'п');
  world_.Temp().PutLines(u"0001.us"_s, {path, name});
  const auto fits = [](QWidget* dialog) {
    EXPECT_LT(dialog->width(), 1000) << dialog->windowTitle().toStdString();
    EXPECT_LT(dialog->height(), 600) << dialog->windowTitle().toStdString();
  };
  ModalAnswers answers{On([](CatalogueDialog* bases) {
                         Click(bases, "Command1");
                         Click(bases, "GoldButton1");
                         bases->close();
                       }),
                       [&](QWidget* dialog) {
                         fits(dialog);
                         dialog->close();
                       },
                       [&](QWidget* dialog) {
                         fits(dialog);
                         // What is proposed is the whole name all the same.
                         EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), name);
                         dialog->close();
                       }};
  Run(CatalogueDialog::Mode::kCatalogue);
}

TEST_F(CatalogueScreens, EmptyListNamesTheWayThatIsThere) {
  for (const auto mode : {CatalogueDialog::Mode::kCatalogue, CatalogueDialog::Mode::kOpen}) {
    ModalAnswers answers{On([](CatalogueDialog* bases) {
      const QString text = Find<CatalogueList>(bases, "ListView1")->EmptyText();
      const bool there = Find<QAbstractButton>(bases, "GoldButton3")->isVisible();
      EXPECT_EQ(text.contains(u"Нажмите «Создать»"_s), there) << text.toStdString();
      bases->close();
    })};
    Run(mode);
  }
}

}  // namespace
}  // namespace kladez
