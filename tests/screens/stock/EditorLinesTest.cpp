#include <QAbstractItemModelTester>

#include "DocumentWorld.h"
#include "screens/stock/LineDialog.h"
#include "screens/stock/documents/DocumentEditor.h"
#include "ui/controls/Forms.h"

namespace kladez {
namespace {

class EditorLines : public testing::Test {
 protected:
  QStringList Lines(const QString& path) { return world_.Temp().Lines(u"0001\\"_s + path); }

  DocumentWorld world_;
};

TEST_F(EditorLines, LinesThatTheWarehouseLacksAreRed) {
  world_.Temp().PutLines(u"0001\\Склад\\товар.usl"_s, u"Чай|4|шт."_lines);
  DocumentDraft draft = DocumentDraft::New(world_.In(DocumentKind::kShipment), QDate(2026, 11, 22));
  for (const QString& quantity : u"3|1|0.5"_lines) {
    draft.AddLine({.name = u"Чай"_s,
                   .quantity = quantity,
                   .unit = u"шт."_s,
                   .cost = u"1"_s,
                   .price = u"60"_s});
  }
  DocumentEditor editor(world_.Context(), std::move(draft));
  const auto is_red = [&](int row) {
    return ListOf(&editor)->Records()->index(row, 0).data(Qt::ForegroundRole).isValid();
  };
  EXPECT_FALSE(is_red(0) || is_red(1));
  EXPECT_TRUE(is_red(2));
  ShowActive(&editor);
  ModalAnswers answers({[](QWidget* dialog) {
    const auto told = [&](const char* name) { return Find<QLabel>(dialog, name)->text(); };
    EXPECT_EQ(told("stock_note"), u"На складе 2.5 шт., не хватает 0.5 шт.");
    EXPECT_EQ(told("price_note"), u"");
    Enter(dialog, "Text2", u"2"_s);
    EXPECT_EQ(told("stock_note"), u"На складе 2.5 шт.");
    Enter(dialog, "Text4", u"1"_s);
    EXPECT_EQ(told("price_note"), u"Цена равна закупочной (1.00)");
    QTest::keyClick(dialog, Qt::Key_Escape);
  }});
  ListOf(&editor)->SelectRow(0);
  Click(&editor, "change");
}

TEST_F(EditorLines, TheDivideKeyChangesALineAndTheSumFollows) {
  world_.Put(DocumentKind::kReceipt);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s));
  ShowActive(&editor);
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_EQ(dialog->objectName(), u"change");
    EXPECT_EQ(TextOf(dialog, "Text1"), u"Чай");
    EXPECT_EQ(TextOf(dialog, "Text4"), u"60.00");
    Enter(dialog, "Text2", u"0.333"_s);
    EXPECT_EQ(TextOf(dialog, "Text5"), u"19.98");
    Enter(dialog, "Text4", u"10"_s);
    EXPECT_EQ(TextOf(dialog, "Text5"), u"3.33");
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  }});
  QTest::keyClick(ListOf(&editor), Qt::Key_Slash, Qt::KeypadModifier);
  EXPECT_EQ(RowTexts(&editor, 0), QStringList(u"Чай|0.333|шт.|10.00|3.33"_lines));
  EXPECT_EQ(TextOf(&editor, "Text2"), u"3.33");
}

TEST_F(EditorLines, AProductThatOverflowsLeavesTheAmountAsItIsShown) {
  world_.Put(DocumentKind::kReceipt);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s));
  ShowActive(&editor);
  ModalAnswers answers({[](QWidget* dialog) {
    Enter(dialog, "Text4", u"70"_s);
    EXPECT_EQ(TextOf(dialog, "Text5"), u"210.00");
    Find<QLineEdit>(dialog, "Text2")->setText(QString(308, u'9'));
    EXPECT_EQ(TextOf(dialog, "Text5"), u"210.00");
    Click(dialog, "Command1");
  }});
  QTest::keyClick(ListOf(&editor), Qt::Key_Slash, Qt::KeypadModifier);
  EXPECT_EQ(RowTexts(&editor, 0).last(), u"210.00");
  EXPECT_EQ(TextOf(&editor, "Text2"), u"210.00");
}

TEST_F(EditorLines, ARemovedLineIsAskedForAndLowersTheSum) {
  world_.Put(DocumentKind::kShipment);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
  ShowActive(&editor);
  {
    ModalAnswers answers({Press(QMessageBox::No, u"Вы уверены?"_s)});
    QTest::keyClick(ListOf(&editor), Qt::Key_Delete);
  }
  EXPECT_EQ(TextOf(&editor, "Text2"), u"180.00");
  {
    ModalAnswers answers({Press(QMessageBox::Yes, u"Вы уверены?"_s)});
    QTest::keyClick(ListOf(&editor), Qt::Key_Delete);
  }
  EXPECT_EQ(TextOf(&editor, "Text2"), u"0.00");
  EXPECT_EQ(ListOf(&editor)->Records()->rowCount(), 0);
  QAbstractItemModelTester(ListOf(&editor)->model(),
                           QAbstractItemModelTester::FailureReportingMode::Fatal);
}

TEST_F(EditorLines, TheDiscountedSumFollowsSumAndPercent) {
  world_.Put(DocumentKind::kShipment);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
  ShowActive(&editor);
  EXPECT_EQ(TextOf(&editor, "DecText1"), u"180.00");
  Enter(&editor, "Text19", u"12.5"_s);
  EXPECT_EQ(TextOf(&editor, "DecText1"), u"157.50");
  Enter(&editor, "Text2", u"100"_s);
  EXPECT_EQ(TextOf(&editor, "DecText1"), u"87.50");
  Click(&editor, "ok");
  EXPECT_EQ(Lines(u"Склад\\UHD\\0001.uhd"_s).mid(3, 3), QStringList(u"100.00|12.5|87.50"_lines));
}

TEST_F(EditorLines, AnEmptiedSumOrDiscountIsSavedAsTheZeroThatItsFieldShows) {
  world_.Put(DocumentKind::kShipment);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
  ShowActive(&editor);
  for (const char* name : {"Text19", "Text2"}) {
    auto* field = Find<QLineEdit>(&editor, name);
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    EXPECT_EQ(field->text(), u"0"_s) << name;
  }
  Click(&editor, "ok");
  EXPECT_EQ(Lines(u"Склад\\UHD\\0001.uhd"_s).mid(3, 3), QStringList(u"0.00|0|0.00"_lines));
}

TEST_F(EditorLines, TheCaretStaysWhereADigitOfTheSumIsTyped) {
  world_.Put(DocumentKind::kReceipt);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s));
  ShowActive(&editor);
  auto* sum = Find<QLineEdit>(&editor, "Text2");
  sum->setFocus();
  sum->setCursorPosition(1);
  Type(sum, u"23"_s);
  EXPECT_EQ(sum->text(), u"12380.00"_s);
}

}  // namespace
}  // namespace kladez
