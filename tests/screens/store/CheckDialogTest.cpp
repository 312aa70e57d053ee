#include <QTabWidget>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "screens/store/CheckDialog.h"

namespace kladez {
namespace {

class CheckDialogTest : public testing::Test {
 protected:
  CheckDialogTest() {
    SmallBooks(world_.Temp().Data(), CurrentSession(), u"Лавка"_s);
    world_.Temp().PutLines(u"0001\\SPR\\товар.spr"_s, {u"Чай"_s, {}, {}, u"пач."_s, u"45.00"_s});
    world_.Temp().Put(u"0001\\marked"_s, EncodeText(u"Чай\nЧай\r\n"));
    world_.Temp().PutLines(u"0001\\Главный склад\\товар.usl"_s, {u"Чай"_s, u"- 2"_s, u"пач."_s});
    screen_ = std::make_unique<CheckDialog>(world_.Context(), nullptr);
    ShowActive(screen_.get());
    findings_ = Find<RecordList>(screen_.get(), "findings");
    EXPECT_TRUE(QTest::qWaitFor([&] { return findings_->model()->rowCount() == 3; }));
  }

  Session& CurrentSession() { return world_.CurrentSession(); }

  ScreenWorld world_;
  std::unique_ptr<CheckDialog> screen_;
  RecordList* findings_;
};

TEST_F(CheckDialogTest, EnterShowsTheLineInItsFile) {
  findings_->SelectRow(0);
  EXPECT_EQ(findings_->model()->index(0, 0).data(), u"marked, строка 1"_s);
  ModalAnswers answers{[](QWidget* place) {
    auto* lines = Find<RecordList>(place, "lines");
    EXPECT_EQ(place->windowTitle(), u"marked"_s);
    EXPECT_EQ(lines->model()->rowCount(), 2);
    EXPECT_EQ(lines->CurrentRow(), 0);
    QTest::keyClick(place, Qt::Key_Escape);
  }};
  QTest::keyClick(findings_, Qt::Key_Return);
}

TEST_F(CheckDialogTest, ARepairAsksMendsAndChecksAgain) {
  findings_->SelectRow(1);  // a stock below zero is nothing that a program could mend
  EXPECT_FALSE(Find<QAbstractButton>(screen_.get(), "mend")->isEnabled());
  findings_->SelectRow(0);
  const auto before = world_.Temp().Tree();
  {
    ModalAnswers answers{Press(QMessageBox::No)};
    Click(screen_.get(), "mend");
    EXPECT_EQ(world_.Temp().Tree(), before);
  }
  CurrentSession().role = UserRole::kSeller;
  {
    ModalAnswers answers{Press(QMessageBox::Ok, u"У вас не достаточно полномочий"_s)};
    Click(screen_.get(), "mend");
    EXPECT_EQ(world_.Temp().Tree(), before);
  }
  CurrentSession().role = UserRole::kDirector;
  ModalAnswers answers{Press(QMessageBox::Yes, u"Переписать концы строк файла «marked»?"_s)};
  Click(screen_.get(), "mend");
  EXPECT_EQ(world_.Temp().Lines(u"0001\\marked"_s), (QStringList{u"Чай"_s, u"Чай"_s}));
  EXPECT_EQ(findings_->model()->rowCount(), 2);
  EXPECT_TRUE(Find<QLabel>(screen_.get(), "summary")->text().contains(u"Замечаний: 2"_s));
}

TEST_F(CheckDialogTest, TheStockStandsBesideTheDocuments) {
  const auto* model = Find<RecordList>(screen_.get(), "stock")->model();
  ASSERT_EQ(model->rowCount(), 1);
  QStringList texts;
  for (int column = 0; column < model->columnCount(); ++column) {
    texts.append(model->index(0, column).data().toString());
  }
  EXPECT_EQ(texts.join(u'|'), u"Главный склад|Чай|0|0|0|0|-2|-2"_s);
  Find<QTabWidget>(screen_.get(), "tabs")->setCurrentIndex(1);
  ModalAnswers answers{[](QWidget* place) {
    EXPECT_EQ(place->windowTitle(), u"Главный склад\\товар.usl"_s);
    EXPECT_EQ(Find<RecordList>(place, "lines")->CurrentRow(), 0);
    QTest::keyClick(place, Qt::Key_Escape);
  }};
  QTest::keyClick(Find<RecordList>(screen_.get(), "stock"), Qt::Key_Return);
}

}  // namespace
}  // namespace kladez
