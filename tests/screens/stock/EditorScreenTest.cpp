#include <QHeaderView>

#include "DocumentWorld.h"
#include "screens/directories/QuantityDialog.h"
#include "screens/stock/documents/DocumentEditor.h"
#include "screens/stock/documents/DocumentProperties.h"
#include "screens/stock/documents/DocumentRegisterScreen.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Forms.h"

namespace kladez {
namespace {

class Editors : public testing::Test {
 protected:
  QStringList Lines(const QString& path) { return world_.Temp().Lines(u"0001\\"_s + path); }

  DocumentWorld world_;
};

TEST_F(Editors, AClientsTermsAreProposedWhenHeIsChosenAndMayBeChanged) {
  world_.Temp().PutLines(u"0001\\kladez\\условия.usd"_s, u"ООО Свет|Скидка, %|5|Цены|Опт||"_lines);
  world_.Temp().PutLines(u"0001\\Склад\\price.usd"_s, u"Розница|Опт"_lines);
  DocumentEditor editor(world_.Context(), DocumentDraft::New(world_.In(DocumentKind::kShipment),
                                                             QDate(2026, 11, 22)));
  ShowActive(&editor);
  auto* client = Find<TextChoice>(&editor, "party");
  auto* list = Find<TextChoice>(&editor, "price_list");
  EXPECT_EQ(list->Chosen(), u"Розница");
  client->Choose(u"ООО Свет"_s);
  EXPECT_EQ(list->Chosen(), u"Опт");
  EXPECT_EQ(TextOf(&editor, "Text19"), u"5");
  client->Choose(u"ИП Петров"_s);
  EXPECT_EQ(TextOf(&editor, "Text19"), u"0");
  Find<QLineEdit>(&editor, "Text19")->setText(u"3"_s);
  client->Choose(u"ООО Свет"_s);
  EXPECT_EQ(TextOf(&editor, "Text19"), u"3") << "typed by hand";
}

// From the empty register to the ledger by keys alone.
TEST_F(Editors, AReceiptIsEnteredPickedClosedAndPosted) {
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  ModalAnswers answers({
      [&](QWidget* editor) {
        EXPECT_EQ(editor->objectName(), u"PrihNew");
        EXPECT_EQ(TextOf(editor, "number"), u"1");
        Click(editor, "ok");  // nothing to save yet: it stays
        EXPECT_TRUE(editor->isVisible());
        QTest::keyClick(ListOf(editor), Qt::Key_Insert);
        EXPECT_EQ(RowTexts(editor, 0), QStringList(u"Чай|2.5|шт.|45.50|113.75"_lines));
        EXPECT_EQ(TextOf(editor, "Text2"), u"113.75");
        Enter(editor, "number", u"15/а"_s);
        Find<TextChoice>(editor, "party")->Choose(u"ООО Заря"_s);
        Find<DateField>(editor, "date")->setDate(QDate(2026, 11, 5));
        Find<QCheckBox>(editor, "Check1")->click();
        Click(editor, "ok");
      },
      [](QWidget* picker) {
        EXPECT_EQ(picker->objectName(), u"sprtovar2");
        auto* list = picker->findChild<RecordList*>();
        list->SelectRow(1);
        QTest::keyClick(list, Qt::Key_Return);
      },
      [](QWidget* question) {
        EXPECT_EQ(question->objectName(), u"colvo");
        EXPECT_EQ(TextOf(question, "Text1"), u"1");
        EXPECT_EQ(TextOf(question, "Text4"), u"45.50");
        Enter(question, "Text1", u"2.5"_s);
        QTest::keyClick(question->focusWidget(), Qt::Key_Return);
      },
  });
  QTest::keyClick(ListOf(&screen), Qt::Key_Insert);
  EXPECT_EQ(Lines(u"Склад\\PRH\\0001.prh"_s),
            QStringList(u"15/а|05.11.2026|ООО Заря|113.75|да|Чай|2.5|шт.|45.50"_lines));
  EXPECT_EQ(Lines(u"Склад\\товар.usl"_s), QStringList(u"Чай|2.5|шт."_lines));
  EXPECT_EQ(ListOf(&screen)->Records()->rowCount(), 1);
}

TEST_F(Editors, CancelWritesNothing) {
  const auto before = world_.Temp().Tree();
  DocumentEditor editor(world_.Context(),
                        DocumentDraft::New(world_.In(DocumentKind::kReceipt), QDate(2026, 11, 22)));
  ShowActive(&editor);
  Find<QCheckBox>(&editor, "Check1")->click();
  Click(&editor, "cancel");
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(world_.Temp().Tree(), before);
}

TEST_F(Editors, EscapeAndTheFrameAskForUnsavedWorkAndCancelDoesNot) {
  world_.Put(DocumentKind::kReceipt);
  const auto before = world_.Temp().Tree();
  const auto change = [&](const std::function<void(QWidget*)>& leave,
                          std::initializer_list<ModalAnswers::Step> answers) {
    DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s));
    ShowActive(&editor);
    Enter(&editor, "number", u"77"_s);
    ModalAnswers expected(answers);
    leave(&editor);
    return !editor.isVisible();
  };
  const auto escape = [](QWidget* editor) { QTest::keyClick(editor, Qt::Key_Escape); };
  const auto frame = [](QWidget* editor) { editor->close(); };
  const QString question = u"Сохранить изменения?"_s;
  EXPECT_FALSE(change(escape, {Press(QMessageBox::Cancel, question)}));
  EXPECT_TRUE(change(frame, {Press(QMessageBox::No, question)}));
  EXPECT_TRUE(change([](QWidget* editor) { Click(editor, "cancel"); }, {}));
  EXPECT_EQ(world_.Temp().Tree(), before);
  EXPECT_TRUE(change(escape, {Press(QMessageBox::Yes, question)}));
  EXPECT_EQ(Lines(u"Склад\\PRH\\0001.prh"_s).first(), u"77");
}

TEST_F(Editors, ANewDocumentAsksBeforeItsFileIsTakenFromAnother) {
  for (const auto& [answer, file] :
       {std::pair(QMessageBox::Yes, u"0002.prh"_s), std::pair(QMessageBox::No, u"0001.prh"_s)}) {
    for (const QString& old : {u"0001.prh"_s, u"0002.prh"_s}) {
      QFile::remove(world_.Temp().Data().Resolve(u"0001\\Склад\\PRH\\"_s + old));
    }
    DocumentDraft draft =
        DocumentDraft::New(world_.In(DocumentKind::kReceipt), QDate(2026, 11, 22));
    draft.AddLine(
        {.name = u"Чай"_s, .quantity = u"1"_s, .unit = u"шт."_s, .cost = u"1"_s, .price = u"9"_s});
    DocumentEditor editor(world_.Context(), std::move(draft));
    ShowActive(&editor);
    world_.Temp().PutLines(u"0001\\Склад\\PRH\\0001.prh"_s, {u"чужая"_s});
    ModalAnswers answers({Press(answer,
                                u"Накладная 1 уже есть. Сохранить под номером файла 2?\n\n"
                                u"«Нет» — записать поверх неё."_s)});
    Click(&editor, "ok");
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(Lines(u"Склад\\PRH\\"_s + file).value(5), u"Чай");
    if (answer == QMessageBox::Yes) {
      EXPECT_EQ(Lines(u"Склад\\PRH\\0001.prh"_s)[0], u"чужая");
    }
  }
}

TEST_F(Editors, ANumberThatTheRegisterHasIsToldAndHindersNobody) {
  world_.Put(DocumentKind::kReceipt);
  const auto count = [](const QString& number) {
    return number == u"5" ? 2 : number == u"1" ? 1 : 0;
  };
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s),
                        nullptr, count);
  ShowActive(&editor);
  auto* note = Find<QLabel>(&editor, "number_note");
  EXPECT_FALSE(note->isVisible()) << "its own number";
  Enter(&editor, "number", u"5"_s);
  EXPECT_TRUE(note->isVisible());
  EXPECT_EQ(note->text(), u"Номер 5 в журнале уже есть.");
  Enter(&editor, "number", u"6"_s);
  EXPECT_FALSE(note->isVisible());
}

TEST_F(Editors, AChangedClosedDocumentTellsThatStockStaysAndIsEnteredAnewOnRequest) {
  world_.Put(DocumentKind::kShipment, true);
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
  ShowActive(&editor);
  auto* note = Find<QLabel>(&editor, "posted_note");
  EXPECT_FALSE(note->isVisible());
  {
    ModalAnswers answers({[](QWidget* dialog) {
      Enter(dialog, "Text2", u"5"_s);
      Click(dialog, "Command1");
    }});
    Click(&editor, "change");
  }
  EXPECT_TRUE(note->isVisible());
  ModalAnswers answers({Press(QMessageBox::Yes)});
  emit note->linkActivated(u"anew"_s);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(Lines(u"Склад\\UHD\\0001.uhd"_s), QStringList(u"<none>"_s));
  EXPECT_EQ(Lines(u"Склад\\UHD\\0002.uhd"_s).mid(6, 3), QStringList(u"да|Чай|5"_lines));
  // -3 of the first posting, 3 back, 5 out again.
  EXPECT_EQ(Lines(u"Склад\\товар.usl"_s), QStringList(u"Чай|-8.00|шт.|Чай|3|шт."_lines));
}

TEST_F(Editors, TheTabKeyGoesAsTheEyeDoes) {
  DocumentEditor editor(world_.Context(), DocumentDraft::New(world_.In(DocumentKind::kShipment),
                                                             QDate(2026, 11, 22)));
  QStringList order;
  const QWidget* widget = Find<QWidget>(&editor, "number");
  for (const QString& last = u"cancel"_s; order.isEmpty() || order.last() != last;
       widget = widget->nextInFocusChain()) {
    const QString name = widget->objectName();
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 &&
        Find<QWidget>(&editor, "cancel") != nullptr && !name.isEmpty() &&
        !name.startsWith(u"qt_"_s) && qobject_cast<const QLabel*>(widget) == nullptr) {
      order << name;
    }
    ASSERT_LT(order.size(), 40);
  }
  order.removeAll(u"DecText1"_s);
  EXPECT_EQ(order,
            QStringList(u"number|date|party|add|change|remove|ListView1|Check1|prn|prs|prp|pri|"
                        u"Text2|price_list|Text19|ok|cancel"_lines));
}

TEST_F(Editors, AClosedDocumentKeepsItsFlagAndItsPartyThatIsGone) {
  world_.CurrentSession().Parties(PartyKind::kClient) << u"Бывший клиент"_s;
  DocumentDraft draft = DocumentDraft::New(world_.In(DocumentKind::kShipment), QDate(2026, 11, 22));
  draft.SetParty(u"Бывший клиент"_s);
  draft.SetClosed(true);
  draft.AddLine(
      {.name = u"Чай"_s, .quantity = u"1"_s, .unit = u"шт."_s, .cost = u"1"_s, .price = u"1"_s});
  draft.Save();
  world_.CurrentSession().Parties(PartyKind::kClient).removeLast();
  const auto before = world_.Temp().Tree();
  DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
  ShowActive(&editor);
  EXPECT_TRUE(Find<QCheckBox>(&editor, "Check1")->isChecked());
  EXPECT_FALSE(Find<QCheckBox>(&editor, "Check1")->isEnabled());
  Click(&editor, "ok");
  EXPECT_EQ(world_.Temp().Tree(), before);
}

TEST_F(Editors, ATransferWithinOneWarehouseIsRefusedInWords) {
  DocumentEditor editor(world_.Context(), DocumentDraft::New(world_.In(DocumentKind::kTransfer),
                                                             QDate(2026, 11, 22)));
  ShowActive(&editor);
  Find<TextChoice>(&editor, "destination")->Choose(u"Склад"_s);
  {
    ModalAnswers answers({[](QWidget* box) {
      EXPECT_EQ(box->windowTitle(), u"Внимание!");
      Press(QMessageBox::Ok, u"Выбирите разные склады"_s)(box);
    }});
    Click(&editor, "ok");
  }
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(world_.Temp().Data().FileExists(u"0001\\ВНПЕР\\0001.vpr"_s), false);
}

TEST_F(Editors, AWarehouseWithoutALedgerIsNotChosen) {
  QFile::remove(world_.Temp().Data().Resolve(u"0001\\Магазин\\товар.usl"_s));
  world_.CurrentSession().warehouses = {u"Склад"_s};
  DocumentDraft draft = DocumentDraft::New(world_.In(DocumentKind::kTransfer), QDate(2026, 11, 22));
  world_.CurrentSession().warehouses << u"Магазин"_s;
  DocumentEditor editor(world_.Context(), std::move(draft));
  ShowActive(&editor);
  ModalAnswers answers({Press(QMessageBox::Ok)});
  Find<QComboBox>(&editor, "destination")->setCurrentText(u"Магазин"_s);
  EXPECT_EQ(Find<TextChoice>(&editor, "destination")->Chosen(), u"Склад");
}

TEST_F(Editors, TheSellerSeesNoCostsAndTheFileKeepsThem) {
  world_.Put(DocumentKind::kShipment, true);
  for (const UserRole role : {UserRole::kSeller, UserRole::kDirector, UserRole::kNone}) {
    world_.CurrentSession().role = role;
    DocumentEditor editor(world_.Context(), world_.Open(DocumentKind::kShipment, u"0001.uhd"_s));
    DocumentProperties properties(world_.Context(), DocumentKind::kShipment, u"Склад"_s,
                                  u"0001.uhd"_s);
    for (QWidget* screen : {static_cast<QWidget*>(&editor), static_cast<QWidget*>(&properties)}) {
      EXPECT_EQ(ListOf(screen)->isColumnHidden(3), role == UserRole::kSeller);
      EXPECT_FALSE(ListOf(screen)->isColumnHidden(4));
    }
    if (role != UserRole::kSeller) continue;
    ShowActive(&editor);
    Click(&editor, "ok");
    EXPECT_EQ(Lines(u"Склад\\UHD\\0001.uhd"_s).value(10), u"45.50");
  }
}

TEST_F(Editors, PropertiesShowTheFileAndOpenThePrints) {
  world_.Put(DocumentKind::kShipment, true);
  DocumentProperties properties(world_.Context(), DocumentKind::kShipment, u"Склад"_s,
                                u"0001.uhd"_s);
  ShowActive(&properties);
  EXPECT_EQ(properties.windowTitle(), u"Свойства накладной ухода товара N 1");
  EXPECT_EQ(TextOf(&properties, "Text4"), u"180.00");
  EXPECT_EQ(TextOf(&properties, "Text3"), u"0");
  EXPECT_EQ(TextOf(&properties, "closed"), u"да");
  EXPECT_EQ(RowTexts(&properties, 0),
            QStringList(u"Чай|3|шт.|45.50|60.00|60.00|180.00|180.00"_lines));
  const std::pair<const char*, QString> prints[] = {{"prn", u"PrihNakl"_s},
                                                    {"prs", u"chFactPrint"_s},
                                                    {"prp", u"PrihPrint"_s},
                                                    {"pri", u"UhodSch"_s}};
  for (const auto& [entry, screen] : prints) {
    ModalAnswers answers({[&](QWidget* dialog) {
      EXPECT_EQ(dialog->objectName(), screen);
      QTest::keyClick(dialog, Qt::Key_Escape);
    }});
    Find<QAction>(&properties, entry)->trigger();
  }
}

// Documents from before the decimal point was fixed have a comma in their figures.
TEST_F(Editors, PropertiesPrintTheFiguresOfADocumentWithDecimalCommas) {
  world_.Temp().PutLines(u"0001\\Склад\\UHD\\0001.uhd"_s,
                         u"1|22.11.2026|-|180,00|2,5|175,50|да|Чай|3|шт.|45.50|60.00|58.50"_lines);
  DocumentProperties properties(world_.Context(), DocumentKind::kShipment, u"Склад"_s,
                                u"0001.uhd"_s);
  ShowActive(&properties);
  EXPECT_EQ(TextOf(&properties, "Text3"), u"2.5");
  EXPECT_EQ(TextOf(&properties, "net_sum"), u"175.50");
  for (const char* entry : {"prn", "prs", "pri"}) {
    ModalAnswers answers({[&](QWidget* screen) {
      EXPECT_EQ(TextOf(screen, "Text6"), QLatin1String(entry) == "prn"_L1 ? u"180.00" : u"175.50");
      EXPECT_EQ(TextOf(screen, "Text19"), u"2.5");
      EXPECT_TRUE(TextOf(screen, "Text20").startsWith(u"Сто семьдесят ")) << entry;
      QTest::keyClick(screen, Qt::Key_Escape);
    }});
    Find<QAction>(&properties, entry)->trigger();
  }
}

TEST_F(Editors, EachPrintCommandOpensItsScreen) {
  world_.Put(DocumentKind::kReceipt);
  world_.Put(DocumentKind::kTransfer);
  DocumentEditor receipt(world_.Context(), world_.Open(DocumentKind::kReceipt, u"0001.prh"_s));
  DocumentEditor transfer(world_.Context(), world_.Open(DocumentKind::kTransfer, u"0001.vpr"_s));
  DocumentProperties properties(world_.Context(), DocumentKind::kReceipt, u"Склад"_s,
                                u"0001.prh"_s);
  const std::tuple<QWidget*, const char*, QString> prints[] = {
      {&receipt, "prn", u"prihnokl"_s},
      {&transfer, "prn", u"vnNakl"_s},
      {&properties, "print", u"prihnokl"_s}};
  for (const auto& [screen, button, name] : prints) {
    ShowActive(screen);
    ModalAnswers answers({[&, expected = name](QWidget* dialog) {
      EXPECT_EQ(dialog->objectName(), expected);
      QTest::keyClick(dialog, Qt::Key_Escape);
    }});
    Click(screen, button);
    screen->hide();
  }
}

TEST_F(Editors, AskQuantityAnswersWhatWasEnteredOrNothing) {
  {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_EQ(dialog->windowTitle(), u"Товар");
      Type(dialog->focusWidget(), u"1.125"_s);
      Enter(dialog, "Text4", u"7.5"_s);
      QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    }});
    const auto answer = AskQuantity(nullptr, u"Товар"_s, u"Кол-во:"_s, u"1"_s, u"60.00"_s);
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(answer->quantity, u"1.125");
    EXPECT_EQ(answer->price, u"7.50");
  }
  {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_FALSE(dialog->findChild<QWidget*>(u"Text4"_s)->isVisible());
      QTest::keyClick(dialog, Qt::Key_Escape);
    }});
    EXPECT_FALSE(AskQuantity(nullptr, u"Товар"_s, u"Кол-во:"_s, u"1"_s).has_value());
  }
}

}  // namespace
}  // namespace kladez
