#include <QAbstractItemModelTester>
#include <QHeaderView>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "screens/prices/PricePicker.h"
#include "screens/prices/PriceScreen.h"
#include "system/SystemCalls.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

const QString kRetail = u"0001\\Лавка\\PRICE\\0001.prc"_s;
const QString kWholesale = u"0001\\Лавка\\PRICE\\0002.prc"_s;
const QString kMarked = u"0001\\marked"_s;

class PriceScreens : public testing::Test {
 protected:
  PriceScreens() {
    SmallBooks(Temp().Data(), world_.CurrentSession())
        .Warehouses(u"Лавка|Подвал"_lines)
        .Goods(u" Чай|Улун|Китай|-|пач.|90|Ассам|Индия|-|пач.|45.00"_lines)
        .PriceLists(u"Лавка"_s, u"Розница|Опт"_lines, {Lines(u"120.00"_s, u"60.00"_s), {}});
    Temp().PutLines(kMarked, {u"Ассам"_s});
  }

  TempData& Temp() { return world_.Temp(); }
  static QStringList Lines(const QString& oolong, const QString& assam) {
    return {u" Чай"_s,  u"Улун"_s, u"пач."_s,  u"90.00"_s, oolong,
            u"Ассам"_s, u"пач."_s, u"45.00"_s, assam};
  }
  static RecordList* List(QWidget* screen) { return Find<RecordList>(screen, "ListView1"); }
  static QString Cell(QWidget* screen, int row, int column) {
    return List(screen)->model()->index(row, column).data().toString();
  }
  static QStringList Names(QWidget* screen) {
    QStringList names;
    for (int row = 0; row < List(screen)->model()->rowCount(); ++row) {
      names.append(Cell(screen, row, 0));
    }
    return names;
  }
  static bool IsTicked(QWidget* screen, int row) {
    return List(screen)->model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  }

  ScreenWorld world_;
};

// Answers the quantity dialog of a pick from a price list.
ModalAnswers::Step AnswerQuantityAndPrice(const QString& quantity, const QString& price) {
  return [=](QWidget* dialog) {
    for (const auto& [name, text] : {std::pair("Text1", quantity), std::pair("Text4", price)}) {
      auto* field = Find<QLineEdit>(dialog, name);
      field->selectAll();
      Type(field, text);
    }
    Click(dialog, "Command1");
  };
}

TEST_F(PriceScreens, ANewPriceIsInTheFileAtOnceAndCancelChangesNothing) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  const QAbstractItemModelTester tester(List(&screen)->model());
  EXPECT_EQ(Cell(&screen, 1, 3), u"120.00"_s);
  List(&screen)->SelectRow(1);
  const auto before = Temp().Tree();
  {
    ModalAnswers answers({Escape()});
    QTest::keyClick(List(&screen), Qt::Key_Return);
  }
  EXPECT_EQ(Temp().Tree(), before);
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_EQ(dialog->windowTitle(), u"Изменить цену в прайсе"_s);
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), u"120.00"_s);
    AnswerText(u"130.5"_s)(dialog);
  }});
  QTest::keyClick(List(&screen), Qt::Key_Return);
  auto expected = before;
  expected["0001/Лавка/PRICE/0001.prc"] = EncodeLines(Lines(u"130.50"_s, u"60.00"_s)).toStdString();
  EXPECT_EQ(Temp().Tree(), expected);
  EXPECT_EQ(Cell(&screen, 1, 3), u"130.50"_s);
}

TEST_F(PriceScreens, CopyChangeOfTheListAndPasteCarryAListOver) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  Click(&screen, "Command7");
  Find<QComboBox>(&screen, "Combo2")->setCurrentIndex(1);
  EXPECT_EQ(Cell(&screen, 2, 3), u"45.00"_s);
  Click(&screen, "Command8");
  EXPECT_EQ(Cell(&screen, 2, 3), u"60.00"_s);
  EXPECT_EQ(Temp().Lines(kWholesale), Lines(u"120.00"_s, u"60.00"_s));
}

TEST_F(PriceScreens, TicksAreSavedOnTheWayOutAndNothingElse) {
  auto expected = Temp().Tree();
  {
    PriceScreen screen(world_.Context());
    ShowActive(&screen);
    EXPECT_TRUE(IsTicked(&screen, 2));
    List(&screen)->SelectRow(1);
    QTest::keyClick(List(&screen), Qt::Key_Space);
    List(&screen)->SelectRow(0);
    QTest::keyClick(List(&screen), Qt::Key_Space);
    QTest::keyClick(List(&screen), Qt::Key_Delete);
    ModalAnswers answers({Press(QMessageBox::No, u"Сохранить изменения?"_s)});
    Click(&screen, "Command3");
    EXPECT_FALSE(screen.isVisible());
  }
  expected["0001/marked"] = EncodeLines({u"Улун"_s, u"Ассам"_s}).toStdString();
  EXPECT_EQ(Temp().Tree(), expected);
  EXPECT_EQ(world_.Settings().Read(settings::kPriceGroups), u"True"_s);
  EXPECT_EQ(world_.Settings().Read(settings::kPriceGoodsOnly), u"False"_s);
}

TEST_F(PriceScreens, SwitchingToGoodsOnlySavesTicksAndASaveThereDropsTheGroups) {
  {
    PriceScreen screen(world_.Context());
    ShowActive(&screen);
    List(&screen)->SelectRow(1);
    QTest::keyClick(List(&screen), Qt::Key_Space);
    Find<QRadioButton>(&screen, "op2")->click();
    EXPECT_EQ(Temp().Lines(kMarked), (QStringList{u"Улун"_s, u"Ассам"_s}));
    EXPECT_EQ(Names(&screen), (QStringList{u"Ассам"_s, u"Улун"_s}));
    Click(&screen, "Command5");
    screen.close();
  }
  EXPECT_EQ(Temp().Lines(kRetail), (u"Ассам|пач.|45.00|60.00|Улун|пач.|90.00|120.00"_lines));
  PriceScreen again(world_.Context());
  EXPECT_EQ(Names(&again), (QStringList{u"Ассам"_s, u"Улун"_s})) << "the view is remembered";
}

TEST_F(PriceScreens, APickedRowIsBlueBelowTheCurrentOneUntilTheListIsLoadedAgain) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  const auto before = Temp().Tree();
  List(&screen)->SelectRow(1);
  Click(&screen, "GoldButton1");
  auto* picker = screen.findChild<QWidget*>(u"sprTovar"_s);
  ASSERT_NE(picker, nullptr);
  EXPECT_FALSE(picker->isModal());
  EXPECT_TRUE(QTest::qWaitForWindowActive(picker));
  List(picker)->SelectRow(2);
  ModalAnswers answers({AnswerText(u"12"_s), Press(QMessageBox::No, u"Сохранить изменения?"_s)});
  QTest::keyClick(List(picker), Qt::Key_Return);
  EXPECT_EQ(Names(&screen), (u" Чай|Улун|Ассам|Ассам"_lines));
  const QModelIndex name = List(&screen)->model()->index(2, 0);
  EXPECT_EQ(Cell(&screen, 2, 2), u"45.00"_s);
  EXPECT_EQ(Cell(&screen, 2, 3), u"12"_s);
  EXPECT_EQ(name.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0, 0, 255));
  EXPECT_TRUE(name.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(Temp().Tree(), before);
  Click(&screen, "Command10");
  EXPECT_EQ(Names(&screen), (u" Чай|Улун|Ассам"_lines));
}

TEST_F(PriceScreens, APickerLeftOpenClosesWithTheScreenAndKeepsItsView) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  auto* picker = screen.findChild<QWidget*>(u"sprTovar"_s);
  ASSERT_NE(picker, nullptr);
  Find<QRadioButton>(picker, "op2")->click();
  Click(&screen, "Command3");
  EXPECT_FALSE(picker->isVisible());
  EXPECT_EQ(world_.Settings().Read(settings::kGoodsGoodsOnly), u"True"_s);
}

TEST_F(PriceScreens, RemovedRowsLeaveTheFileWithTheNextSave) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  List(&screen)->SelectRow(0);
  QTest::keyClick(List(&screen), Qt::Key_Down, Qt::ShiftModifier);
  Click(&screen, "GoldButton2");
  EXPECT_EQ(Temp().Lines(kRetail), Lines(u"120.00"_s, u"60.00"_s));
  Click(&screen, "Command5");
  EXPECT_EQ(Temp().Lines(kRetail), (u"Ассам|пач.|45.00|60.00"_lines));
}

// Each way to other rows, and the way out. "Отмена" keeps rows and choices as they are.
TEST_F(PriceScreens, UnsavedRowsAreAskedForBeforeOthersComeInTheirPlace) {
  const auto choose = [](const char* combo) {
    return [=](PriceScreen& screen) { Find<QComboBox>(&screen, combo)->setCurrentIndex(1); };
  };
  const std::vector<std::function<void(PriceScreen&)>> ways = {
      choose("Combo1"),
      choose("Combo2"),
      [](PriceScreen& screen) { Find<QRadioButton>(&screen, "op2")->click(); },
      [](PriceScreen& screen) { Click(&screen, "Command10"); },
      [](PriceScreen& screen) { Click(&screen, "Command3"); },
      [](PriceScreen& screen) { screen.close(); }};
  for (size_t i = 0; i < ways.size(); ++i) {
    SCOPED_TRACE(i);
    Temp().PutLines(kRetail, Lines(u"120.00"_s, u"60.00"_s));
    world_.Settings().WriteBool(settings::kPriceGoodsOnly, false);
    PriceScreen screen(world_.Context());
    ShowActive(&screen);
    List(&screen)->SelectRow(0);
    QTest::keyClick(List(&screen), Qt::Key_Delete);
    const auto before = Temp().Tree();
    ModalAnswers answers({Press(QMessageBox::Cancel, u"Сохранить изменения?"_s),
                          Press(QMessageBox::Yes, u"Сохранить изменения?"_s)});
    ways[i](screen);
    EXPECT_EQ(Temp().Tree(), before);
    EXPECT_TRUE(screen.isVisible());
    EXPECT_EQ(Names(&screen), (QStringList{u"Улун"_s, u"Ассам"_s}));
    EXPECT_EQ(Find<QComboBox>(&screen, "Combo1")->currentIndex(), 0);
    EXPECT_EQ(Find<QComboBox>(&screen, "Combo2")->currentIndex(), 0);
    EXPECT_TRUE(Find<QRadioButton>(&screen, "op1")->isChecked());
    ways[i](screen);
    EXPECT_EQ(Temp().Lines(kRetail), Lines(u"120.00"_s, u"60.00"_s).mid(1));
  }
}
TEST_F(PriceScreens, ASellerSeesNoCostAndChangesCopiesAndPastesNothing) {
  world_.CurrentSession().role = UserRole::kSeller;
  Temp().PutLines(u"temp.prc"_s, u"Улун|пач.|1.00|1.00"_lines);
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  EXPECT_TRUE(List(&screen)->isColumnHidden(2));
  const auto before = Temp().Tree();
  for (const char* command : {"Command2", "Command7", "Command8"}) {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_EQ(dialog->windowTitle(), u"Продавец"_s);
      Press(QMessageBox::Ok, u"У вас не достаточно полномочий"_s)(dialog);
    }});
    Click(&screen, command);
  }
  EXPECT_EQ(Temp().Tree(), before);
}

TEST_F(PriceScreens, AWarehouseWithoutListsShowsNothingAndKeepsTheTicks) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  Find<QComboBox>(&screen, "Combo1")->setCurrentIndex(1);
  EXPECT_EQ(Find<QComboBox>(&screen, "Combo2")->count(), 0);
  EXPECT_EQ(Names(&screen), QStringList());
  const auto before = Temp().Tree();
  Click(&screen, "Command5");
  screen.close();
  EXPECT_EQ(Temp().Tree(), before);
}

TEST_F(PriceScreens, AFailedSaveIsToldAndTheRowKeepsItsPrice) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  List(&screen)->SelectRow(1);
  const auto before = Temp().Tree();
  syscalls::SetFaultHook([](std::string_view, const QByteArray&) { return ENOSPC; });
  ModalAnswers answers({AnswerText(u"1"_s), [](QWidget* dialog) {
                          EXPECT_EQ(dialog->windowTitle(), u"Внимание!"_s);
                          Press(QMessageBox::Ok)(dialog);
                        }});
  QTest::keyClick(List(&screen), Qt::Key_Return);
  syscalls::SetFaultHook({});
  EXPECT_EQ(Cell(&screen, 1, 3), u"120.00"_s);
  EXPECT_EQ(Temp().Tree(), before);
}

TEST_F(PriceScreens, ThePickerHandsOverWhatWasAnsweredAndStaysOpen) {
  PricePicker screen(world_.Context(), u"Лавка"_s, {});
  ShowActive(&screen);
  std::vector<GoodsPick> picks;
  QObject::connect(&screen, &PricePicker::Picked,
                   [&](const GoodsPick& pick) { picks.push_back(pick); });
  EXPECT_FALSE(Find<QComboBox>(&screen, "Combo1")->isEnabled());
  Find<QComboBox>(&screen, "Combo2")->setCurrentIndex(1);

  List(&screen)->SelectRow(0);
  QTest::keyClick(List(&screen), Qt::Key_Return);  // a group asks nothing
  List(&screen)->SelectRow(2);
  {
    ModalAnswers answers({Escape()});
    QTest::keyClick(List(&screen), Qt::Key_Return);
  }
  EXPECT_TRUE(picks.empty());
  {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_EQ(dialog->windowTitle(), u"Товар"_s);
      EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), u"1"_s);
      EXPECT_EQ(Find<QLineEdit>(dialog, "Text4")->text(), u"45.00"_s);
      AnswerQuantityAndPrice(u"2.5"_s, u"50"_s)(dialog);
    }});
    Click(&screen, "Command6");
  }
  EXPECT_TRUE(screen.isVisible());
  ASSERT_EQ(picks.size(), 1u);
  EXPECT_EQ(picks[0].name, u"Ассам"_s);
  EXPECT_EQ(picks[0].quantity, u"2.5"_s);
  EXPECT_EQ(picks[0].unit, u"пач."_s);
  EXPECT_EQ(picks[0].cost, u"45.00"_s);
  EXPECT_EQ(picks[0].price, u"50.00"_s);
  Click(&screen, "Command3");
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(PriceScreens, TypingInTheListSearchesByTheBeginningOfAName) {
  PriceScreen screen(world_.Context());
  ShowActive(&screen);
  List(&screen)->setFocus();
  Type(List(&screen), u"а"_s);
  EXPECT_EQ(List(&screen)->CurrentRow(), 2);
  EXPECT_TRUE(Find<QLineEdit>(&screen, "search")->hasFocus());
}

TEST_F(PriceScreens, EnterInAnEmptyListPicksNothingAndThePickerStays) {
  Temp().PutLines(u"0001\\spr\\товар.spr"_s, {});
  PricePicker picker(world_.Context(), u"Лавка"_s, {});
  int picks = 0;
  QObject::connect(&picker, &PricePicker::Picked, [&] { ++picks; });
  ShowActive(&picker);
  Find<QComboBox>(&picker, "Combo2")->setCurrentIndex(1);
  ASSERT_EQ(List(&picker)->model()->rowCount(), 0);
  const ModalAnswers none({});
  QTest::keyClick(List(&picker), Qt::Key_Return);
  EXPECT_TRUE(picker.isVisible());
  EXPECT_EQ(picks, 0);
}

}  // namespace
}  // namespace kladez
