#include <QComboBox>

#include "DocumentWorld.h"
#include "screens/directories/GoodsForm.h"
#include "screens/directories/GoodsPicker.h"
#include "screens/directories/QuantityDialog.h"
#include "screens/stock/documents/DocumentEditor.h"
#include "ui/controls/FieldNote.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class Scanner : public testing::Test, protected DocumentWorld {
 protected:
  Scanner() {
    Temp().PutLines(u"0001\\kladez\\товары.usd"_s,
                    {u"Чай"_s, u"Штрихкод"_s, u"4601234567893"_s, u""_s, u""_s});
  }

  // As fast as a scanner, into whatever has the keyboard.
  static void Scan(const QString& code) {
    for (const QChar c : code) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();
  }
};

TEST_F(Scanner, AddsALineAndThenToItWhateverFieldHasTheKeyboard) {
  for (const auto kind : {DocumentKind::kReceipt, DocumentKind::kShipment}) {
    DocumentEditor editor(Context(), DocumentDraft::New(In(kind), QDate(2026, 11, 22)));
    ShowActive(&editor);
    const QString number = TextOf(&editor, "number");
    for (const char* control : {"ListView1", "number", "date", "party", "Text2"}) {
      Find<QWidget>(&editor, control)->setFocus();
      Scan(u"4601234567893"_s);
      EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromLatin1(control));
      EXPECT_EQ(FieldNote::Of(Find<QWidget>(&editor, control)), QString());
    }
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(TextOf(&editor, "number"), number);
    EXPECT_EQ(TextOf(&editor, "date"), u"22.11.2026"_s);
    ASSERT_EQ(editor.Draft().Lines().size(), 1u);
    EXPECT_EQ(RowTexts(&editor, 0).first(2), (QStringList{u"Чай"_s, u"5"_s}));
    EXPECT_EQ(TextOf(&editor, "Text2"), u"227.50"_s);
    const ModalAnswers answers{Press(QMessageBox::Ok,
                                     u"Товара со штрихкодом 4601234567890 нет. "
                                     u"Впишите штрихкод в карточку товара."_s)};
    Scan(u"4601234567890"_s);
    EXPECT_EQ(editor.Draft().Lines().size(), 1u);
  }
}

TEST_F(Scanner, WhatIsTypedByHandIsNoScan) {
  DocumentEditor editor(Context(),
                        DocumentDraft::New(In(DocumentKind::kReceipt), QDate(2026, 11, 22)));
  ShowActive(&editor);
  auto* number = Find<QWidget>(&editor, "number");
  number->setFocus();
  for (const char c : {'1', '2', '3', '4', '5', '6', '7'}) {
    QTest::qWait(60);
    QTest::keyClick(number, c);
  }
  EXPECT_EQ(TextOf(&editor, "number"), u"1234567"_s);
}

TEST_F(Scanner, SelectsTheGoodsInAListAndEmptiesTheSearch) {
  GoodsPicker picker(Context(), PickFor::kReceipt);
  ShowActive(&picker);
  for (const char* control : {"ListView1", "search"}) {
    ListOf(&picker)->SelectRow(0);
    Find<QWidget>(&picker, control)->setFocus();
    Scan(u"4601234567893"_s);
    EXPECT_EQ(ListOf(&picker)->CurrentRow(), 1);
    EXPECT_EQ(TextOf(&picker, "search"), QString());
    EXPECT_TRUE(picker.isVisible()) << "the Enter of the scanner picks nothing";
  }
}

TEST_F(Scanner, IsNoNumberWhereOneIsAskedFor) {
  QWidget window;
  const ModalAnswers answers{[](QWidget* dialog) {
    Scan(u"4601234567893"_s);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(TextOf(dialog, "Text1"), u"1"_s);
    QTest::keyClick(dialog, Qt::Key_Escape);
  }};
  EXPECT_FALSE(AskQuantity(&window, u"Товар"_s, u"Кол-во:"_s, u"1"_s));
}

TEST_F(Scanner, FillsTheFieldOfTheFormFromAnyOther) {
  GoodsEntry entry;
  entry.record.name = u"Мел"_s;
  entry.record.price = u"1.00"_s;
  entry.owner_of = [](const QString& code) { return code == u"96385074" ? u"Чай"_s : QString(); };
  GoodsForm form(entry, nullptr);
  ShowActive(&form);
  Scan(u"96385074"_s);
  EXPECT_EQ(TextOf(&form, "name"), u"Мел"_s);
  EXPECT_EQ(form.Extras().barcode, u"96385074"_s);
  Click(&form, "ok");
  EXPECT_TRUE(form.isVisible()) << "the goods that have it are told";
  Scan(u"4601234567893"_s);
  Click(&form, "ok");
  EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace kladez
