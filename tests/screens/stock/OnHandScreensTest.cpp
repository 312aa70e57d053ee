#include <QAbstractItemModelTester>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "books/printing/OnHandPage.h"
#include "screens/stock/OnHandScreen.h"
#include "screens/stock/OpeningBalancesDialog.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

const QString kShopLedger = u"0001\\Лавка\\товар.usl"_s;

class StockScreens : public testing::Test {
 protected:
  StockScreens() {
    SmallBooks(Temp().Data(), world_.CurrentSession())
        .Warehouses(u"Лавка|Подвал"_lines)
        .Goods(u" Чай|Улун|Китай|-|пач.|90.00|Ассам|Индия|-|пач.|45.00"_lines)
        .Ledger(u"Лавка"_s, u"Ассам|5|пач.|Сенча|9|пач."_lines)
        .Ledger(u"Подвал"_s, u"Улун|1.5|пач."_lines);
  }

  TempData& Temp() { return world_.Temp(); }
  static RecordList* List(QWidget* screen) { return Find<RecordList>(screen, "ListView1"); }
  // Name and quantity of each row.
  static QStringList Rows(QWidget* screen) {
    QStringList rows;
    const auto* model = List(screen)->model();
    for (int row = 0; row < model->rowCount(); ++row) {
      rows.append(model->index(row, 0).data().toString() + u'=' +
                  model->index(row, 1).data().toString());
    }
    return rows;
  }
  static QString Status(QWidget* screen) { return Find<QLabel>(screen, "StatusBar1")->text(); }

  ScreenWorld world_;
};

class OnHandShown : public StockScreens {
 protected:
  OnHandShown() : screen_(world_.Context()) {
    ShowActive(&screen_);
    List(&screen_)->SelectRow(2);
  }
  void ChooseAll() { Find<QComboBox>(&screen_, "Combo1")->setCurrentText(u"ВСЕ СКЛАДЫ"_s); }

  OnHandScreen screen_;
};

TEST_F(OnHandShown, ACorrectionRewritesTheLedgerAndTheStatusLine) {
  const QAbstractItemModelTester tester(List(&screen_)->model());
  EXPECT_EQ(Rows(&screen_), (u" Чай=|Улун=0|Ассам=5"_lines));
  EXPECT_EQ(Status(&screen_), u"Итого наименований: 1     на сумму: 225.00"_s);
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_EQ(dialog->windowTitle(), u"Товар"_s);
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), u"5"_s);
    AnswerText(u"12.5"_s)(dialog);
  }});
  Click(&screen_, "Command1");
  EXPECT_EQ(Temp().Lines(kShopLedger), (u"Ассам|12.5|пач."_lines));
  EXPECT_EQ(Status(&screen_), u"Итого наименований: 1     на сумму: 562.50"_s);
}

TEST_F(OnHandShown, CancelTheSameTextAndAGroupWriteNothing) {
  const auto before = Temp().Tree();
  {
    ModalAnswers answers({Escape()});
    Click(&screen_, "Command1");
  }
  {
    ModalAnswers answers({AnswerText(u"5"_s)});
    Click(&screen_, "Command1");
  }
  List(&screen_)->SelectRow(0);
  Click(&screen_, "Command1");
  EXPECT_EQ(Temp().Tree(), before) << "not even the record that the list lacks is lost";
}

TEST_F(OnHandShown, OverAllWarehousesOnlyEnterChangesAndOnlyTheShownRow) {
  ChooseAll();
  EXPECT_EQ(Rows(&screen_), (u" Чай=|Улун=1.5|Ассам=5"_lines));
  EXPECT_EQ(Status(&screen_), u"Итого наименований: 2     на сумму: 360.00"_s);
  EXPECT_FALSE(Find<QPushButton>(&screen_, "Command1")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>(&screen_, "Command3")->isEnabled());
  const auto before = Temp().Tree();
  List(&screen_)->SelectRow(2);
  emit List(&screen_)->DoubleClicked();
  ModalAnswers answers({AnswerText(u"7"_s)});
  QTest::keyClick(List(&screen_), Qt::Key_Return);
  EXPECT_EQ(Rows(&screen_).last(), u"Ассам=7"_s);
  EXPECT_EQ(Status(&screen_), u"Итого наименований: 2     на сумму: 360.00"_s);
  EXPECT_EQ(Temp().Tree(), before);
}

TEST_F(OnHandShown, ZeroingAsksFirstAndKeepsTheRows) {
  const QString question = u"Вы уверены, что хотите удалить все остатки со склада"_s;
  const auto before = Temp().Tree();
  {
    ModalAnswers answers({Press(QMessageBox::No, question)});
    Click(&screen_, "Command3");
  }
  EXPECT_EQ(Temp().Tree(), before);
  ModalAnswers answers({Press(QMessageBox::Yes, question)});
  Click(&screen_, "Command3");
  EXPECT_EQ(Temp().Lines(kShopLedger), (u"Ассам|0|0"_lines));
  EXPECT_EQ(Status(&screen_), u"Итого наименований: 0     на сумму: 0.00"_s);
}

TEST_F(OnHandShown, ASellerIsRefusedBothCorrections) {
  world_.CurrentSession().role = UserRole::kSeller;
  const auto before = Temp().Tree();
  for (const char* command : {"Command1", "Command3"}) {
    ModalAnswers answers({Press(QMessageBox::Ok, u"У вас не достаточно полномочий"_s)});
    Click(&screen_, command);
  }
  EXPECT_EQ(Temp().Tree(), before);
  OnHandScreen sellers(world_.Context());
  EXPECT_TRUE(List(&sellers)->isColumnHidden(3));
  EXPECT_FALSE(List(&screen_)->isColumnHidden(3));
}

TEST_F(OnHandShown, ALedgerThatCanNotBeReadIsToldAndNeverZeroed) {
  QFile::remove(Temp().Data().Resolve(u"0001\\Подвал\\товар.usl"_s));
  {
    ModalAnswers answers({Press(QMessageBox::Ok)});
    Find<QComboBox>(&screen_, "Combo1")->setCurrentIndex(1);
  }
  const auto before = Temp().Tree();
  Click(&screen_, "Command3");
  EXPECT_EQ(Temp().Tree(), before);
}

TEST_F(OnHandShown, ThePageIsThatOfTheListAndTheViewIsRemembered) {
  Find<QRadioButton>(&screen_, "op2")->click();
  EXPECT_EQ(Rows(&screen_), (QStringList{u"Ассам=5"_s, u"Улун=0"_s}));
  Click(&screen_, "Command2");
  const OnHandList list =
      LoadOnHand(Temp().Data(), world_.CurrentSession(), {u"Лавка"_s}, GoodsView::kGoodsOnly);
  EXPECT_EQ(Temp().Bytes(u"out.htm"_s), OnHandPage(list, QDate(2026, 11, 22)));
  EXPECT_EQ(world_.ViewerStarts(), 1);
  screen_.close();
  EXPECT_EQ(world_.Settings().Read(settings::kStockGroups), u"False"_s);
  EXPECT_EQ(world_.Settings().Read(settings::kStockGoodsOnly), u"True"_s);
}

// Chooses a row in the picker and answers its quantity.
ModalAnswers::Step PickRow(int row) {
  return [=](QWidget* picker) {
    EXPECT_EQ(picker->objectName(), u"sprtovar2"_s);
    Find<RecordList>(picker, "ListView1")->SelectRow(row);
    Click(picker, "Command7");
  };
}

TEST_F(StockScreens, OpeningBalancesAreAddedToTheChosenWarehouse) {
  OpeningBalancesDialog screen(world_.Context());
  ShowActive(&screen);
  {
    ModalAnswers answers({PickRow(2), AnswerText(u"2.5"_s), PickRow(1), AnswerText(u"4"_s),
                          AnswerText(u"6"_s), PickRow(1), AnswerText(u"100"_s)});
    Click(&screen, "Command1");
    QTest::keyClick(List(&screen), Qt::Key_Insert);
    Click(&screen, "Command2");
    QTest::keyClick(List(&screen), Qt::Key_Insert);
    QTest::keyClick(List(&screen), Qt::Key_Delete);
  }
  EXPECT_EQ(Rows(&screen), (QStringList{u"Ассам=2.5"_s, u"Улун=6"_s}));
  const auto before = Temp().Tree();
  {
    ModalAnswers answers({Press(QMessageBox::Ok)});
    Click(&screen, "Command4");
  }
  EXPECT_EQ(Temp().Tree(), before) << "no warehouse is chosen yet";
  EXPECT_TRUE(screen.isVisible());
  Find<QComboBox>(&screen, "Combo1")->setCurrentIndex(0);
  Click(&screen, "Command4");
  EXPECT_FALSE(screen.isVisible());
  auto expected = before;
  expected["0001/Лавка/товар.usl"] =
      EncodeLines(u"Ассам|7.5|пач.|Сенча|9|пач.|Улун|6|пач."_lines).toStdString();
  EXPECT_EQ(Temp().Tree(), expected);
}

TEST_F(StockScreens, AnEmptyListOfBalancesIsNotBooked) {
  OpeningBalancesDialog screen(world_.Context());
  ShowActive(&screen);
  const auto before = Temp().Tree();
  Find<QComboBox>(&screen, "Combo1")->setCurrentIndex(0);
  Click(&screen, "Command4");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Temp().Tree(), before);
}

}  // namespace
}  // namespace kladez
