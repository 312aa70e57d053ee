#include <QSignalSpy>
#include <QTabWidget>

#include "books/directories/DirectoryWorld.h"
#include "screens/directories/GoodsDirectoryScreen.h"
#include "screens/directories/GoodsPicker.h"
#include "ui/controls/Fields.h"
#include "ui/controls/RecordList.h"

namespace kladez {
namespace {

// Types into the field that has the keyboard and leaves it with Enter.
void Enter(const QString& text) {
  Type(QApplication::focusWidget(), text);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

ModalAnswers::Step EnterAll(const QStringList& texts) {
  return [=](QWidget* dialog) {
    for (const QString& text : texts) Enter(text);
    EXPECT_EQ(QApplication::focusWidget(), Find<QAbstractButton>(dialog, "ok"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  };
}

class GoodsScreensTest : public testing::Test {
 protected:
  GoodsScreensTest() { PutGoods(kTea + kGroup + kCoffee); }

  void PutGoods(const QStringList& lines) {
    world_.PutLines(u"spr\\товар.spr"_s, QStringList{u" Напитки"_s} + lines);
    world_.Remember();
  }
  void ExpectGoods(const QStringList& lines) {
    world_.ExpectChanged({{"0001/SPR/товар.spr", QStringList{u" Напитки"_s} + lines}});
  }
  QString Width(const QString& key) {
    Setting setting = settings::kGoodsColumn;
    setting.key = key;
    return world_.Settings().Read(setting);
  }

  const QStringList kTea = u"Чай|Индия|107/1|пач.|45.00"_lines;
  const QStringList kGroup = {u" Зерно"_s};
  const QStringList kCoffee = u"Кофе|Россия||кг|900.50"_lines;
  DirectoryWorld world_;
};

class GoodsDirectoryScreens : public GoodsScreensTest {
 protected:
  void Open() {
    screen_ = std::make_unique<GoodsDirectoryScreen>(world_.Context());
    ShowActive(screen_.get());
    list_ = Find<RecordList>(screen_.get(), "ListView1");
  }

  std::unique_ptr<GoodsDirectoryScreen> screen_;
  RecordList* list_ = nullptr;
};

TEST_F(GoodsDirectoryScreens, GoodsEnteredByKeysReachTheFileWithClose) {
  Open();
  list_->SelectRow(1);
  ModalAnswers answers({EnterAll(u"Чай белый|Китай|107/2|шт.|120.5"_lines)});
  QTest::keyClick(list_, Qt::Key_Insert);
  EXPECT_EQ(list_->CurrentRow(), 2);
  world_.ExpectUnchanged();
  Click(screen_.get(), "Command9");
  ExpectGoods(kTea + u"Чай белый|Китай|107/2|шт.|120.50"_lines + kGroup + kCoffee);
  EXPECT_FALSE(screen_->isVisible());
}

TEST_F(GoodsDirectoryScreens, FirstRecordMustBeAGroup) {
  world_.PutLines(u"spr\\товар.spr"_s, {});
  Open();
  ModalAnswers answers({[](QWidget* form) {
    EXPECT_FALSE(Find<QTabWidget>(form, "tabs")->isTabEnabled(0));
    EXPECT_TRUE(Find<QWidget>(form, "Label7")->isVisible());
    EnterAll({u"Сыры"_s})(form);
  }});
  Click(screen_.get(), "add");
  Click(screen_.get(), "Command9");
  EXPECT_EQ(world_.Lines(u"spr\\товар.spr"_s), QStringList{u" Сыры"_s});
}

TEST_F(GoodsDirectoryScreens, GoodsWithoutPriceAreNotTaken) {
  Open();
  ModalAnswers answers({[](QWidget* form) {
                          Enter(u"Чай"_s);
                          Click(form, "ok");
                          EXPECT_TRUE(form->isVisible());
                          EXPECT_EQ(QApplication::focusWidget(), Find<QWidget>(form, "price"));
                          QTest::keyClick(form, Qt::Key_Escape);
                        },
                        Press(QMessageBox::No, u"Сохранить изменения?"_s)});
  Click(screen_.get(), "add");
  EXPECT_EQ(list_->model()->rowCount(), 4);
}

TEST_F(GoodsDirectoryScreens, GoodsWhoseNameWouldMakeThemAGroupAreRefused) {
  Open();
  list_->SelectRow(1);
  ModalAnswers answers({[](QWidget* form) {
                          Enter(u" Чай"_s);
                          Click(form, "ok");
                          EXPECT_TRUE(form->isVisible());
                          EXPECT_EQ(QApplication::focusWidget(), Find<QWidget>(form, "name"));
                          EXPECT_FALSE(Find<TextLine>(form, "name")->Fault().isEmpty());
                          QTest::keyClick(form, Qt::Key_Escape);
                        },
                        Press(QMessageBox::No)});
  Click(screen_.get(), "change");
  Click(screen_.get(), "Command9");
  world_.ExpectUnchanged();
}

TEST_F(GoodsDirectoryScreens, ChangedGroupKeepsItsBlankAndItsPlace) {
  Open();
  list_->SelectRow(2);
  ModalAnswers answers({EnterAll({u"Крупы"_s})});
  QTest::keyClick(list_, Qt::Key_Return);
  Click(screen_.get(), "Command9");
  ExpectGoods(kTea + QStringList{u" Крупы"_s} + kCoffee);
}

TEST_F(GoodsDirectoryScreens, OnlyCloseWritesWhatWasMovedSortedAndDeleted) {
  Open();
  list_->SelectRow(2);
  QTest::keyClick(list_, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(list_->CurrentRow(), 1);
  {
    ModalAnswers answers({Press(QMessageBox::Cancel, u"Сохранить изменения?"_s),
                          Press(QMessageBox::No, u"Сохранить изменения?"_s)});
    EXPECT_FALSE(screen_->close());
    EXPECT_TRUE(screen_->close());
  }
  world_.ExpectUnchanged();

  Open();
  list_->SelectRow(0);
  ModalAnswers answers({Press(QMessageBox::No, u"Вы уверены?"_s), Press(QMessageBox::Yes)});
  QTest::keyClick(list_, Qt::Key_Delete);
  QTest::keyClick(list_, Qt::Key_Delete);
  Click(screen_.get(), "sort");
  Click(screen_.get(), "Command9");
  // Without its group the tea stands before the first one, where no group is written for it.
  world_.ExpectChanged({{"0001/SPR/товар.spr", kTea + kGroup + kCoffee}});
}

TEST_F(GoodsDirectoryScreens, GoodsOnHandAreNotDeleted) {
  world_.PutLines(u"Главный склад\\товар.usl"_s, u"Чай|2|пач."_lines);
  Open();
  list_->SelectRow(1);
  ModalAnswers answers(
      {Press(QMessageBox::Yes),
       Press(QMessageBox::Ok,
             u"На одном из складов присутствует данный товар.\nУдаление невозможно"_s)});
  QTest::keyClick(list_, Qt::Key_Delete);
  EXPECT_EQ(list_->model()->rowCount(), 4);
}

TEST_F(GoodsDirectoryScreens, DeletingAsksFirstOverAnEmptyListToo) {
  world_.PutLines(u"spr\\товар.spr"_s, {});
  world_.Remember();
  Open();
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_EQ(dialog->windowTitle(), u"Удаление"_s);
    Press(QMessageBox::Yes, u"Вы уверены?"_s)(dialog);
  }});
  Click(screen_.get(), "remove");
  EXPECT_EQ(screen_->focusWidget(), list_);
  world_.ExpectUnchanged();
}

TEST_F(GoodsDirectoryScreens, AThousandAndOneRowsAreFull) {
  QStringList lines = kTea;
  for (int i = 2; i < 1001; ++i) lines += kTea;
  PutGoods(lines);
  Open();
  ModalAnswers answers(
      {Press(QMessageBox::Ok, u"Нельзя добавлять более 1000 наименований товаров"_s)});
  QTest::keyClick(list_, Qt::Key_Insert);
}

TEST_F(GoodsDirectoryScreens, GoodsAloneAreChangedAtOnceAndNeitherAddedNorDeleted) {
  Open();
  EXPECT_EQ(Width(u"c1"_s), QString());
  Click(screen_.get(), "op2");
  EXPECT_EQ(list_->model()->rowCount(), 2);
  EXPECT_EQ(Width(u"c2"_s), u"990"_s) << "1000 twips are 66 whole pixels";
  EXPECT_NE(Width(u"c5"_s), QString());
  EXPECT_EQ(Width(u"c6"_s), QString());
  for (const char* command : {"add", "change", "remove", "sort"}) {
    EXPECT_FALSE(Find<QAbstractButton>(screen_.get(), command)->isEnabled()) << command;
  }
  QTest::keyClick(list_, Qt::Key_Insert);
  QTest::keyClick(list_, Qt::Key_Delete);
  list_->SelectRow(1);
  ModalAnswers answers({EnterAll(u"Чай|Китай|107/1|пач.|50"_lines)});
  QTest::keyClick(list_, Qt::Key_Return);
  const QStringList changed = u"Чай|Китай|107/1|пач.|50.00"_lines;
  ExpectGoods(changed + kGroup + kCoffee);
  ShowActive(screen_.get());
  QTest::keyClick(screen_.get(), Qt::Key_F5);
  EXPECT_NE(Width(u"c6"_s), QString());
  screen_->close();
  EXPECT_EQ(world_.Settings().Read(settings::kGoodsGroups), u"False"_s);
  EXPECT_EQ(world_.Settings().Read(settings::kGoodsGoodsOnly), u"True"_s);
}

TEST_F(GoodsDirectoryScreens, ANameChangedAmongTheGoodsAloneIsSavedWhereItIsWanted) {
  struct Case {
    const char* way;
    QMessageBox::StandardButton answer;
    bool saved;
  };
  for (const Case& c :
       {Case{"Command9", QMessageBox::Yes, true}, Case{"Command9", QMessageBox::No, false},
        Case{"op1", QMessageBox::Yes, true}, Case{"op1", QMessageBox::No, false}}) {
    PutGoods(kTea + kGroup + kCoffee);
    world_.Settings().WriteBool(settings::kGoodsGoodsOnly, true);
    Open();
    list_->SelectRow(1);
    const QStringList renamed = u"Чай листовой|Индия|107/1|пач.|45.00"_lines;
    ModalAnswers answers({EnterAll(renamed), Press(c.answer, u"Сохранить изменения?"_s)});
    QTest::keyClick(list_, Qt::Key_Return);
    world_.ExpectUnchanged();
    Click(screen_.get(), c.way);
    ExpectGoods((c.saved ? renamed : kTea) + kGroup + kCoffee);
  }
}

TEST_F(GoodsDirectoryScreens, FailedSaveLeavesTheScreenWithWhatWasEntered) {
  Open();
  list_->SelectRow(1);
  ModalAnswers answers({EnterAll(u"Чай белый|-|-|шт.|1"_lines), Press(QMessageBox::Ok),
                        Press(QMessageBox::No), Press(QMessageBox::Ok)});
  Click(screen_.get(), "add");
  world_.Protect(u"spr\\товар.spr"_s);
  Click(screen_.get(), "Command9");
  EXPECT_TRUE(screen_->isVisible());
  Click(screen_.get(), "op2");
  EXPECT_TRUE(Find<QRadioButton>(screen_.get(), "op1")->isChecked());
  EXPECT_TRUE(Find<QAbstractButton>(screen_.get(), "add")->isEnabled());
  EXPECT_EQ(list_->model()->index(2, 0).data().toString(), u"Чай белый"_s);
}

TEST_F(GoodsDirectoryScreens, PickIsSavedAskedAndHandedOver) {
  auto* picker = new GoodsDirectoryScreen(world_.Context(), PickFor::kPriceList, nullptr);
  QList<GoodsPick> picks;
  QObject::connect(picker, &GoodsDirectoryScreen::Picked,
                   [&](const GoodsPick& pick) { picks.append(pick); });
  QSignalSpy gone(picker, &QObject::destroyed);
  ShowActive(picker);
  auto* list = Find<RecordList>(picker, "ListView1");
  list->SelectRow(3);
  QTest::keyClick(list, Qt::Key_Up, Qt::ControlModifier);  // Кофе goes above its group
  ModalAnswers answers({Escape(), AnswerText(u"2.5"_s)});
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_TRUE(picks.isEmpty());
  ExpectGoods(kTea + kCoffee + kGroup);
  QTest::keyClick(list, Qt::Key_Return);
  ASSERT_EQ(picks.size(), 1);
  EXPECT_EQ(picks[0].name, u"Кофе"_s);
  EXPECT_EQ(picks[0].unit, u"кг"_s);
  EXPECT_EQ(picks[0].quantity, u"2.5"_s);
  EXPECT_EQ(picks[0].cost, u"900.50"_s);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(gone.count(), 1);
}

class GoodsPickers : public GoodsScreensTest {
 protected:
  void Open(PickFor pick_for) {
    screen_ = std::make_unique<GoodsPicker>(world_.Context(), pick_for);
    ShowActive(screen_.get());
    list_ = Find<RecordList>(screen_.get(), "ListView1");
  }
  QStringList Ticked() {
    QStringList names;
    for (int row = 0; row < list_->model()->rowCount(); ++row) {
      const QModelIndex cell = list_->model()->index(row, 0);
      if (cell.data(Qt::CheckStateRole).toInt() == Qt::Checked) names += cell.data().toString();
    }
    return names;
  }

  std::unique_ptr<GoodsPicker> screen_;
  RecordList* list_ = nullptr;
};

TEST_F(GoodsPickers, TicksAreReadWhenActiveAndWrittenWhenClosed) {
  world_.PutLines(u"marked"_s, u"Кофе|Нет такого|Чай"_lines);
  world_.Remember();
  Open(PickFor::kReceipt);
  EXPECT_EQ(Ticked(), QStringList{u"Кофе"_s});
  list_->SelectRow(1);
  QTest::keyClick(list_, Qt::Key_Space);
  EXPECT_EQ(Ticked(), (QStringList{u"Чай"_s, u"Кофе"_s}));
  {
    ModalAnswers answers({Escape()});
    Click(screen_.get(), "Command7");
  }
  EXPECT_EQ(Ticked(), QStringList{u"Кофе"_s}) << "active again after the question";
  world_.ExpectUnchanged();
  QTest::keyClick(list_, Qt::Key_Space);
  Click(screen_.get(), "cancel");
  world_.ExpectChanged({{"0001/marked", {u"Чай"_s, u"Кофе"_s}}});
  EXPECT_FALSE(screen_->Pick().has_value());
}

TEST_F(GoodsPickers, ReceiptPickAsksQuantityAndPurchasePrice) {
  Open(PickFor::kReceipt);
  Type(list_, u"К"_s);  // searches
  Type(QApplication::focusWidget(), u"О"_s);
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1")->text(), u"1"_s);
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text4")->text(), u"900.50"_s);
    Find<QLineEdit>(dialog, "Text4")->setText(u"800"_s);
    AnswerText(u"3"_s)(dialog);
  }});
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_TRUE(screen_->Pick().has_value());
  EXPECT_EQ(screen_->Pick()->name, u"Кофе"_s);
  EXPECT_EQ(screen_->Pick()->quantity, u"3"_s);
  EXPECT_EQ(screen_->Pick()->cost, u"900.50"_s);
  EXPECT_EQ(screen_->Pick()->price, u"800.00"_s);
  EXPECT_FALSE(screen_->isVisible());
}

TEST_F(GoodsPickers, AReceiptsPickerStaysOpenWhileItIsTicked) {
  for (const bool remembered : {false, true}) {
    Open(PickFor::kReceipt);
    QStringList picked;
    QObject::connect(screen_.get(), &GoodsPicker::Picked,
                     [&](const GoodsPick& pick) { picked.append(pick.name); });
    EXPECT_EQ(list_->CurrentRow(), remembered ? 3 : 1) << "what was picked last, or else goods";
    EXPECT_EQ(Find<QAbstractButton>(screen_.get(), "stay")->isChecked(), remembered);
    if (!remembered) Click(screen_.get(), "stay");
    ModalAnswers answers({AnswerText(u"2"_s), AnswerText(u"3"_s), AnswerText(u"4"_s)});
    for (const int row : {1, 3}) {
      list_->SelectRow(row);
      QTest::keyClick(list_, Qt::Key_Return);
    }
    EXPECT_TRUE(screen_->isVisible());
    EXPECT_EQ(Find<QLabel>(screen_.get(), "count")->text(), u"Выбрано строк: 2"_s);
    if (remembered) Click(screen_.get(), "stay");
    QTest::keyClick(list_, Qt::Key_Return);
    EXPECT_EQ(screen_->isVisible(), !remembered);
    EXPECT_EQ(picked, (u"Чай|Кофе|Кофе"_lines));
  }
  Open(PickFor::kOpeningStock);
  EXPECT_EQ(screen_->findChild<QWidget*>(u"stay"_s), nullptr);
}

TEST_F(GoodsPickers, ChartTakesTheNameOfGoodsAndNoGroup) {
  Open(PickFor::kGoodsChart);
  Click(screen_.get(), "op2");
  list_->SelectRow(1);
  Click(screen_.get(), "Command7");
  ASSERT_TRUE(screen_->Pick().has_value());
  EXPECT_EQ(screen_->Pick()->name, u"Чай"_s);

  world_.Settings().WriteBool(settings::kGoodsGoodsOnly, false);
  Open(PickFor::kGoodsChart);
  list_->SelectRow(0);
  Click(screen_.get(), "Command7");
  EXPECT_FALSE(screen_->isVisible());
  EXPECT_FALSE(screen_->Pick().has_value());
}

TEST_F(GoodsPickers, UnwritableMarksDoNotLockTheUserIn) {
  world_.Protect(u"marked"_s);
  Open(PickFor::kReceipt);
  ModalAnswers answers({Press(QMessageBox::Ok)});
  QTest::keyClick(list_, Qt::Key_Escape);
  EXPECT_FALSE(screen_->isVisible());
}

}  // namespace
}  // namespace kladez
