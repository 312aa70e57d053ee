// Parties, warehouses and the main currency.
#include "books/directories/DirectoryWorld.h"
#include "books/directories/MainCurrency.h"
#include "screens/directories/CurrencyDialog.h"
#include "screens/directories/PartyBrowser.h"
#include "screens/directories/WarehousesDialog.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

struct PartyCase {
  std::string path;
  const char* form;
  int lines;
  PartyKind kind;
};

class PartyScreensTest : public testing::TestWithParam<PartyCase> {
 protected:
  PartyScreensTest() {
    world_.PutLines(Path(), Record(u"Первый"_s) + Record(u"Второй"_s));
    world_.Remember();
    screen_ = std::make_unique<PartyBrowser>(world_.Context(), GetParam().kind, nullptr);
    ShowActive(screen_.get());
    list_ = Find<RecordList>(screen_.get(), "ListView1");
  }

  QString Path() const {
    return QString::fromStdString(GetParam().path.substr(5)).replace(u'/', u'\\');
  }
  // Name, "Имя 2", "Имя 3" and so on: every line differs from the others.
  static QStringList Record(const QString& name) {
    QStringList record = {name};
    for (int line = 2; line <= GetParam().lines; ++line)
      record += name + u' ' + QString::number(line);
    return record;
  }
  // Types a whole record into the form, field by field, and ends with Enter.
  static ModalAnswers::Step TypeRecord(const QStringList& record) {
    return [=](QWidget* form) {
      EXPECT_EQ(form->objectName(), QLatin1StringView(GetParam().form));
      for (const QString& text : record) {
        Type(QApplication::focusWidget(), text);
        if (text != record.last()) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      }
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    };
  }

  DirectoryWorld world_;
  std::unique_ptr<QDialog> screen_;
  RecordList* list_;
};

TEST_P(PartyScreensTest, OkWritesAddedChangedAndDeletedRecords) {
  ModalAnswers answers({TypeRecord(Record(u"Третий"_s)), TypeRecord(Record(u"Новый"_s)),
                        Press(QMessageBox::No, u"Вы уверены?"_s), Press(QMessageBox::Yes)});
  QTest::keyClick(list_, Qt::Key_Insert);
  list_->SelectRow(1);
  QTest::keyClick(list_, Qt::Key_Return);
  list_->SelectRow(0);
  QTest::keyClick(list_, Qt::Key_Delete);
  QTest::keyClick(list_, Qt::Key_Delete);
  world_.ExpectUnchanged();
  Click(screen_.get(), "ok");
  world_.ExpectChanged({{GetParam().path, Record(u"Новый"_s) + Record(u"Третий"_s)}});
  EXPECT_EQ(world_.CurrentSession().Parties(GetParam().kind),
            (QStringList{u"Новый"_s, u"Третий"_s}));
}

TEST_P(PartyScreensTest, CancelLosesTheVisit) {
  ModalAnswers answers({Press(QMessageBox::Yes)});
  QTest::keyClick(list_, Qt::Key_Delete);
  Click(screen_.get(), "cancel");
  world_.ExpectUnchanged();
}

TEST_P(PartyScreensTest, TheFrameAsksAndYesSavesARecordToo) {
  ModalAnswers answers({[](QWidget* form) {
                          Type(QApplication::focusWidget(), u"Новый"_s);
                          form->close();
                        },
                        Press(QMessageBox::Yes, u"Сохранить изменения?"_s),
                        Press(QMessageBox::Cancel, u"Сохранить изменения?"_s),
                        Press(QMessageBox::Yes, u"Сохранить изменения?"_s)});
  QTest::keyClick(list_, Qt::Key_Insert);
  EXPECT_EQ(list_->model()->rowCount(), 3);
  EXPECT_FALSE(screen_->close());
  world_.ExpectUnchanged();
  EXPECT_TRUE(screen_->close());
  EXPECT_EQ(world_.CurrentSession().Parties(GetParam().kind), (u"Первый|Второй|Новый"_lines));
}

TEST_P(PartyScreensTest, FormWantsAName) {
  // "Да" is the form's "OK", which does not pass yet.
  ModalAnswers answers({[](QWidget* form) {
                          QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                          Type(QApplication::focusWidget(), u"адрес"_s);
                          Click(form, "ok");
                          EXPECT_TRUE(form->isVisible());
                          EXPECT_EQ(QApplication::focusWidget(), Find<QWidget>(form, "field1"));
                          QTest::keyClick(form, Qt::Key_Escape);
                          EXPECT_TRUE(form->isVisible());
                          QTest::keyClick(form, Qt::Key_Escape);
                        },
                        Press(QMessageBox::Yes, u"Сохранить изменения?"_s),
                        Press(QMessageBox::No, u"Сохранить изменения?"_s)});
  Click(screen_.get(), "add");
  EXPECT_EQ(list_->model()->rowCount(), 2);
}

TEST_P(PartyScreensTest, FailedSaveLeavesTheScreenOpen) {
  world_.Protect(Path());
  ModalAnswers answers({Press(QMessageBox::Yes), Press(QMessageBox::Ok)});
  QTest::keyClick(list_, Qt::Key_Delete);
  Click(screen_.get(), "ok");
  EXPECT_TRUE(screen_->isVisible());
  EXPECT_EQ(list_->model()->rowCount(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, PartyScreensTest,
    testing::Values(PartyCase{"0001/SPR/firma.spr", "sprFirmNew", 15, PartyKind::kFirm},
                    PartyCase{"0001/SPR/klient.spr", "sprklientnew", 14, PartyKind::kClient},
                    PartyCase{"0001/SPR/post.spr", "sprpostnew", 14, PartyKind::kSupplier}),
    [](const auto& party) { return std::string(party.param.form); });

class sprSkladTest : public testing::Test {
 protected:
  sprSkladTest() : screen_(world_.Context()) {
    ShowActive(&screen_);
    list_ = Find<RecordList>(&screen_, "ListView1");
  }

  DirectoryWorld world_;
  WarehousesDialog screen_;
  RecordList* list_;
};

TEST_F(sprSkladTest, RefusedNamesAreAskedAgainAndAnEqualNameEndsTheCommand) {
  world_.Remember();
  ModalAnswers answers(
      {AnswerText(u"a/b"_s),
       Press(QMessageBox::Ok, u"В названии склада запрещается использовать символы \\/:*?\"<>|"_s),
       AnswerText(u"Главный склад"_s), Press(QMessageBox::Ok, u"Такой склад уже существует"_s),
       AnswerText(u".."_s), Press(QMessageBox::Ok), AnswerText({})});
  for (int i = 0; i < 3; ++i) QTest::keyClick(list_, Qt::Key_Insert);
  EXPECT_EQ(list_->model()->rowCount(), 1);
  world_.ExpectUnchanged();
}

TEST_F(sprSkladTest, OnlyOkWritesANewNameOfAWarehouse) {
  ModalAnswers answers({AnswerText(u"Лавка"_s), Press(QMessageBox::No, u"Сохранить изменения?"_s),
                        AnswerText(u"Двор"_s)});
  QTest::keyClick(list_, Qt::Key_Slash, Qt::KeypadModifier);
  QTest::keyClick(list_, Qt::Key_Escape);
  EXPECT_EQ(world_.Lines(u"склад.usd"_s), QStringList{u"Главный склад"_s});
  screen_.show();
  Click(&screen_, "add");
  EXPECT_EQ(world_.Lines(u"склад.usd"_s), (QStringList{u"Лавка"_s, u"Двор"_s}));
  Click(&screen_, "ok");
  EXPECT_EQ(world_.CurrentSession().warehouses, (QStringList{u"Лавка"_s, u"Двор"_s}));
}

TEST_F(sprSkladTest, TheFirstWarehouseIsNotDeletedAnotherIsAtOnce) {
  world_.Remember();
  ModalAnswers answers({AnswerText(u"Двор"_s), Press(QMessageBox::Yes, u"Вы уверены?"_s)});
  QTest::keyClick(list_, Qt::Key_Insert);
  EXPECT_EQ(list_->CurrentRow(), 1);
  QTest::keyClick(list_, Qt::Key_Delete);
  EXPECT_EQ(list_->CurrentRow(), 0);
  QTest::keyClick(list_, Qt::Key_Delete);
  world_.ExpectUnchanged();
}

TEST(currencTest, OkWritesEightLinesAndTheShortForm) {
  DirectoryWorld world;
  world.Remember();
  CurrencyDialog screen(world.Context());
  ShowActive(&screen);
  const QStringList forms = u"тг.|тенге||тенге|тн.|тиын|тиына|тиынов"_lines;
  for (int i = 0; i < forms.size(); ++i) {
    QWidget* field = QApplication::focusWidget();
    EXPECT_EQ(field->objectName(), u"form%1"_s.arg(i + 1));
    QTest::keyClick(field, Qt::Key_Delete);
    Type(field, forms[i]);
    QTest::keyClick(field, Qt::Key_Tab);
  }
  Click(&screen, "ok");
  world.ExpectChanged({{"0001/currency.usd", forms}});
  EXPECT_EQ(world.CurrentSession().currency_name, u"тг."_s);
}

TEST(currencTest, TaxRatesAreKeptBesideTheCurrencyAndEmptiedAgain) {
  DirectoryWorld world;
  const auto type = [&](const QString& vat) {
    CurrencyDialog screen(world.Context());
    ShowActive(&screen);
    auto* field = Find<QLineEdit>(&screen, "vat");
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    Type(field, vat);
    Click(&screen, "ok");
    return !screen.isVisible();
  };
  const auto kept = [&] {
    FileState file;
    return LoadTaxRates(world.Context().data, world.CurrentSession(), file);
  };
  EXPECT_TRUE(type(u"20,5"_s));
  EXPECT_EQ(kept(), (TaxRates{u"20.5"_s, {}}));
  {
    ModalAnswers answers({Press(QMessageBox::Ok, u"Ставка налога «много» - не число."_s)});
    EXPECT_FALSE(type(u"много"_s));
  }
  EXPECT_TRUE(type({}));
  EXPECT_EQ(kept(), TaxRates());
}

TEST(currencTest, FailedSaveAndCancelChangeNothing) {
  DirectoryWorld world;
  world.Remember();
  CurrencyDialog screen(world.Context());
  ShowActive(&screen);
  world.Protect(u"currency.usd"_s);
  ModalAnswers answers({Press(QMessageBox::Ok)});
  Type(QApplication::focusWidget(), u"долл."_s);
  Click(&screen, "ok");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(world.CurrentSession().currency_name, u"руб."_s);
  Click(&screen, "cancel");
  world.ExpectUnchanged();
}

}  // namespace
}  // namespace kladez
