#include <QAbstractItemModelTester>

#include "DocumentWorld.h"
#include "screens/stock/documents/DocumentRegisterScreen.h"
#include "ui/controls/DateField.h"
#include "ui/controls/Forms.h"

namespace kladez {
namespace {

class RegisterScreens : public testing::Test {
 protected:
  QStringList Files(QWidget* screen) {
    QStringList files;
    const auto* model = ListOf(screen)->Records();
    const int column = model->columnCount() - 1;
    for (int row = 0; row < model->rowCount(); ++row) {
      files << model->index(row, column).data().toString();
    }
    return files;
  }
  QString Status(QWidget* screen) { return Find<QLabel>(screen, "status")->text(); }

  DocumentWorld world_;
};

TEST_F(RegisterScreens, ShowTheirColumnsAndTotals) {
  world_.Put(DocumentKind::kReceipt, true);
  world_.Put(DocumentKind::kShipment);
  world_.Put(DocumentKind::kTransfer);
  DocumentRegisterScreen receipts(world_.Context(), DocumentKind::kReceipt);
  DocumentRegisterScreen shipments(world_.Context(), DocumentKind::kShipment);
  DocumentRegisterScreen transfers(world_.Context(), DocumentKind::kTransfer);
  EXPECT_EQ(RowTexts(&receipts, 0), QStringList(u"1|22.11.2026|-|180.00|да|0001.prh"_lines));
  EXPECT_EQ(RowTexts(&shipments, 0),
            QStringList(u"1|22.11.2026|-|180.00|0|180.00|нет|0001.uhd"_lines));
  EXPECT_EQ(RowTexts(&transfers, 0), QStringList({u"1"_s, u"22.11.2026"_s, u"Склад"_s, u"Магазин"_s,
                                                  u"180.00"_s, u"0001.vpr"_s}));
  const QWidget* const screens[] = {&receipts, &shipments, &transfers};
  const QString names[] = {u"TovPrih"_s, u"TovUhod"_s, u"vnutr"_s};
  const QString captions[] = {u"Приход"_s, u"Расход"_s, u"Внутреннее перемещение"_s};
  for (int i = 0; i < 3; ++i) {
    auto* screen = const_cast<QWidget*>(screens[i]);
    EXPECT_EQ(screen->objectName(), names[i]);
    EXPECT_EQ(screen->windowTitle(), captions[i]);
    EXPECT_EQ(Status(screen), u"Документов:1     Сумма:180.00");
    const int file = ListOf(screen)->Records()->columnCount() - 1;
    EXPECT_TRUE(ListOf(screen)->isColumnHidden(file));
    QAbstractItemModelTester(ListOf(screen)->model(),
                             QAbstractItemModelTester::FailureReportingMode::Fatal);
  }
}

TEST_F(RegisterScreens, EachOptionEnablesItsOwnInputAndRebuilds) {
  world_.Put(DocumentKind::kReceipt);
  world_.Put(DocumentKind::kReceipt, false, QDate(2026, 10, 22));
  world_.Put(DocumentKind::kReceipt, false, QDate(2025, 11, 22));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  EXPECT_EQ(Files(&screen), QStringList{u"0001.prh"_s});
  const char* const options[] = {"by_month", "by_year", "by_day"};
  const char* const inputs[] = {"month", "year", "day"};
  for (int chosen = 2; chosen >= 0; --chosen) {
    Find<QRadioButton>(&screen, options[chosen])->click();
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(Find<QWidget>(&screen, inputs[i])->isEnabled(), i == chosen);
    }
  }
  Find<QRadioButton>(&screen, "by_year")->click();
  EXPECT_EQ(Files(&screen), QStringList({u"0001.prh"_s, u"0002.prh"_s}));
  Find<QComboBox>(&screen, "year")->setCurrentText(u"2025"_s);
  EXPECT_EQ(Files(&screen), QStringList{u"0003.prh"_s});
  // "За месяц:" means the current year, whatever the year box says.
  Find<QRadioButton>(&screen, "by_month")->click();
  Find<QComboBox>(&screen, "month")->setCurrentIndex(9);
  EXPECT_EQ(Files(&screen), QStringList{u"0002.prh"_s});
  Find<QRadioButton>(&screen, "by_day")->click();
  EXPECT_EQ(Files(&screen), QStringList{u"0001.prh"_s});
  Find<DateField>(&screen, "day")->setDate(QDate(2025, 11, 22));
  EXPECT_EQ(Files(&screen), QStringList{u"0003.prh"_s});
  Find<QComboBox>(&screen, "warehouse")->setCurrentText(u"Магазин"_s);
  EXPECT_EQ(Status(&screen), u"Документов:0     Сумма:0.00");
}

TEST_F(RegisterScreens, OrderIsKeptAtOnceAndTransfersKeepTheirOwn) {
  for (int i = 0; i < 2; ++i) {
    world_.Put(DocumentKind::kShipment);
    world_.Put(DocumentKind::kTransfer);
  }
  {
    DocumentRegisterScreen receipts(world_.Context(), DocumentKind::kReceipt);
    Find<QRadioButton>(&receipts, "last_to_first")->click();
  }
  EXPECT_EQ(world_.Settings().Read(settings::kSort), u"ZA");
  EXPECT_EQ(world_.Settings().Read(settings::kTransferSort), u"AZ");
  DocumentRegisterScreen shipments(world_.Context(), DocumentKind::kShipment);
  EXPECT_TRUE(Find<QRadioButton>(&shipments, "last_to_first")->isChecked());
  EXPECT_EQ(Files(&shipments), QStringList({u"0002.uhd"_s, u"0001.uhd"_s}));
  DocumentRegisterScreen transfers(world_.Context(), DocumentKind::kTransfer);
  EXPECT_EQ(Files(&transfers), QStringList({u"0001.vpr"_s, u"0002.vpr"_s}));
}

TEST_F(RegisterScreens, TheFilterFoldsAwayAndEscapeCloses) {
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  auto* fold = Find<QAbstractButton>(&screen, "GoldButton1");
  EXPECT_TRUE(fold->text().startsWith(u'-'));
  const int before = ListOf(&screen)->height();
  Click(&screen, "GoldButton1");
  EXPECT_TRUE(fold->text().startsWith(u'+'));
  // The layouts pass the room on from one to the next.
  EXPECT_TRUE(QTest::qWaitFor([&] { return ListOf(&screen)->height() > before; }));
  Click(&screen, "Command9");  // no row, no journal
  EXPECT_EQ(world_.ViewerStarts(), 0);
  QTest::keyClick(ListOf(&screen), Qt::Key_Escape);
  EXPECT_FALSE(screen.isVisible());
}

struct DeletionCase {
  const char* name;
  DocumentKind kind;
  bool closed;
  QMessageBox::StandardButton answer;
  QString question;
  bool gone;
  QStringList stock;  // товар.usl of "Склад" afterwards
};

class Deletions : public RegisterScreens, public testing::WithParamInterface<DeletionCase> {};

TEST_P(Deletions, AskAndDoThis) {
  const DeletionCase& c = GetParam();
  world_.Put(c.kind, c.closed);
  DocumentRegisterScreen screen(world_.Context(), c.kind);
  ShowActive(&screen);
  ModalAnswers answers({[&](QWidget* box) {
    EXPECT_EQ(box->windowTitle(), u"Удаление");
    Press(c.answer, c.question)(box);
  }});
  QTest::keyClick(ListOf(&screen), Qt::Key_Delete);
  EXPECT_EQ(ListOf(&screen)->Records()->rowCount(), c.gone ? 0 : 1);
  EXPECT_EQ(world_.Temp().Lines(u"0001\\Склад\\товар.usl"_s), c.stock);
}

constexpr auto kYes = QMessageBox::Yes;
constexpr auto kNo = QMessageBox::No;
constexpr auto kCancel = QMessageBox::Cancel;
const QString kSure = u"Вы уверены?"_s;
const QString kWriteOff = u"Списать товар со склада?"_s;
const QString kReturn = u"Возвратить товар на склад?"_s;
const QString kBoth = u"Возвратить/списать?"_s;
const QStringList kReceived = u"Чай|3|шт."_lines;
const QStringList kIssued = u"Чай|-3.00|шт."_lines;
const QStringList kMinus = u"Чай|- 3|шт."_lines;
const QStringList kPlus = u"Чай|3|шт."_lines;

const DeletionCase kDeletions[] = {
    {"OpenReceiptYes", DocumentKind::kReceipt, false, kYes, kSure, true, {}},
    {"OpenReceiptNo", DocumentKind::kReceipt, false, kNo, kSure, false, {}},
    {"ReceiptYes", DocumentKind::kReceipt, true, kYes, kWriteOff, true, kReceived + kMinus},
    {"ReceiptNo", DocumentKind::kReceipt, true, kNo, kWriteOff, true, kReceived},
    {"ReceiptCancel", DocumentKind::kReceipt, true, kCancel, kWriteOff, false, kReceived},
    {"OpenShipmentYes", DocumentKind::kShipment, false, kYes, kSure, true, {}},
    {"ShipmentYes", DocumentKind::kShipment, true, kYes, kReturn, true, kIssued + kPlus},
    {"ShipmentNo", DocumentKind::kShipment, true, kNo, kReturn, true, kIssued},
    {"ShipmentCancel", DocumentKind::kShipment, true, kCancel, kReturn, false, kIssued},
    {"TransferYes", DocumentKind::kTransfer, false, kYes, kBoth, true, kIssued + kPlus},
    {"TransferNo", DocumentKind::kTransfer, false, kNo, kBoth, true, kIssued},
    {"TransferCancel", DocumentKind::kTransfer, false, kCancel, kBoth, false, kIssued},
};

INSTANTIATE_TEST_SUITE_P(RegisterScreens, Deletions, testing::ValuesIn(kDeletions),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(RegisterScreens, TheSelectionStaysInItsPlace) {
  for (int i = 0; i < 4; ++i) world_.Put(DocumentKind::kReceipt);
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  RecordList* list = ListOf(&screen);
  const auto remove = [&] {
    ModalAnswers answers({Press(kYes)});
    Click(&screen, "Command3");
  };
  list->SelectRow(1);
  remove();
  EXPECT_EQ(list->CurrentRow(), 1);
  EXPECT_EQ(RowTexts(&screen, 1).constLast(), u"0003.prh");
  list->SelectRow(2);
  remove();
  EXPECT_EQ(list->CurrentRow(), 1);  // the last of those left
  {
    ModalAnswers answers({Escape()});
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(list->CurrentRow(), 1);
  }
  // Where that place is no more, the last row is the nearest.
  ModalAnswers answers({[&](QWidget* editor) {
    EXPECT_TRUE(QFile::remove(world_.Temp().Data().Resolve(u"0001\\Склад\\PRH\\0003.prh"_s)));
    Escape()(editor);
  }});
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(list->CurrentRow(), 0);
}

TEST_F(RegisterScreens, ASavedDocumentThatTheFilterHidesIsToldAndShownOnRequest) {
  world_.Put(DocumentKind::kReceipt);
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  auto* note = Find<QLabel>(&screen, "hidden_note");
  {
    ModalAnswers answers({[](QWidget* editor) {
      Find<DateField>(editor, "date")->setDate(QDate(2025, 12, 31));
      Click(editor, "ok");
    }});
    Click(&screen, "Command2");
  }
  EXPECT_EQ(Files(&screen), QStringList());
  EXPECT_TRUE(note->isVisible());
  EXPECT_TRUE(
      note->text().startsWith(u"Накладная 1 от 31.12.2025 сохранена, фильтр её не показывает."));
  emit note->linkActivated(u"show"_s);
  EXPECT_EQ(Files(&screen), QStringList{u"0001.prh"_s});
  EXPECT_FALSE(note->isVisible());
}

TEST_F(RegisterScreens, AQuestionThatDeletesNamesTheDocumentAndTheEnterKeyDeletesNothing) {
  for (const bool closed : {false, true}) {
    world_.Put(DocumentKind::kReceipt, closed);
    DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
    ShowActive(&screen);
    ModalAnswers answers({[&](QWidget* dialog) {
      const QString told = qobject_cast<QMessageBox*>(dialog)->informativeText();
      EXPECT_TRUE(
          told.startsWith(u"Накладная %1 от 22.11.2026, -, на сумму 180.00."_s.arg(closed + 1)));
      EXPECT_EQ(told.contains(u"не проведена"), !closed);
      QTest::keyClick(dialog, Qt::Key_Return);
    }});
    ListOf(&screen)->SelectRow(closed);
    QTest::keyClick(ListOf(&screen), Qt::Key_Delete);
    EXPECT_EQ(Files(&screen).size(), closed + 1);
  }
}

TEST_F(RegisterScreens, ASearchNarrowsTheListGoesOnInGoodsAndOffersAllDays) {
  for (int i = 0; i < 3; ++i) world_.Put(DocumentKind::kShipment);
  world_.Put(DocumentKind::kShipment, false, QDate(2025, 3, 1));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kShipment);
  ShowActive(&screen);
  Type(ListOf(&screen), u"2"_s);  // a search begins in the list
  auto* search = Find<TextLine>(&screen, "search");
  EXPECT_TRUE(search->hasFocus());
  EXPECT_EQ(Files(&screen), QStringList{u"0002.uhd"_s});
  EXPECT_EQ(Status(&screen), u"Документов:1     Сумма:180.00");
  search->setText(u"чай"_s);
  EXPECT_EQ(Files(&screen), QStringList()) << "heads first";
  EXPECT_TRUE(QTest::qWaitFor([&] { return Files(&screen).size() == 3; }));
  search->setText(u"чай 4"_s);
  EXPECT_FALSE(search->Fault().isEmpty());
  emit Find<QLabel>(&screen, "search_note")->linkActivated(u"all"_s);
  EXPECT_EQ(Files(&screen), QStringList{u"0004.uhd"_s});
  QTest::keyClick(search, Qt::Key_Escape);
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(Files(&screen).size(), 4);
}

TEST_F(RegisterScreens, HeadingsSortAndTheSelectionAddsUp) {
  for (int day : {5, 3, 4}) world_.Put(DocumentKind::kShipment, false, QDate(2026, 11, day));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kShipment);
  ShowActive(&screen);
  auto* list = ListOf(&screen);
  const QStringList by_file = u"0001.uhd|0002.uhd|0003.uhd"_lines;
  const QStringList by_day = u"0002.uhd|0003.uhd|0001.uhd"_lines;
  QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                    {list->header()->sectionViewportPosition(1) + 5, 5});
  EXPECT_EQ(Files(&screen), by_day);
  EXPECT_EQ(list->CurrentRow(), 2) << "the document stays selected";
  QTest::keyClick(list, Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Files(&screen), QStringList(by_day.rbegin(), by_day.rend()));
  QTest::keyClick(list, Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Files(&screen), by_file);
  list->SelectRow(0);
  auto* selection = Find<QLabel>(&screen, "selection");
  EXPECT_FALSE(selection->isVisible());
  QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(selection->text(), u"Выделено: 2, сумма: 360.00, со скидкой: 360.00");
  EXPECT_EQ(Status(&screen), u"Документов:3     Сумма:540.00");
}

TEST_F(RegisterScreens, ACopyAsksForPricesOnceAndOpensAsANewDocument) {
  world_.Put(DocumentKind::kReceipt, true, QDate(2026, 11, 3));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  ModalAnswers answers({[](QWidget* dialog) {
                          EXPECT_EQ(dialog->objectName(), u"copydoc"_s);
                          Find<QRadioButton>(dialog, "of_document")->setChecked(true);
                          Click(dialog, "ok");
                        },
                        [](QWidget* editor) {
                          EXPECT_EQ(TextOf(editor, "date"), u"22.11.2026"_s);
                          Click(editor, "ok");
                        }});
  QTest::keyClick(ListOf(&screen), Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(RowTexts(&screen, 1), QStringList(u"2|22.11.2026|-|180.00|нет|0002.prh"_lines));
  EXPECT_EQ(ListOf(&screen)->CurrentRow(), 1);
}

TEST_F(RegisterScreens, CommandsOnAnEmptyListDoNothing) {
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  ModalAnswers none({});
  for (const char* command : {"Command2", "Command3", "Command8"}) Click(&screen, command);
  QTest::keyClick(ListOf(&screen), Qt::Key_Return);
  QTest::keyClick(ListOf(&screen), Qt::Key_Delete);
}

TEST_F(RegisterScreens, AMissingLedgerIsToldAndNoEditorOpens) {
  QFile::remove(world_.Temp().Data().Resolve(u"0001\\Склад\\товар.usl"_s));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  ModalAnswers answers({[](QWidget* box) {
    auto* message = qobject_cast<QMessageBox*>(box);
    ASSERT_NE(message, nullptr);
    EXPECT_TRUE(message->text().contains(u"товар.usl"));
    EXPECT_EQ(message->windowTitle(), u"Внимание!");
    QTest::mouseClick(message->button(QMessageBox::Ok), Qt::LeftButton);
  }});
  Click(&screen, "Command1");
  EXPECT_EQ(Files(&screen), QStringList());
}

TEST_F(RegisterScreens, AWarehouseThatIsGoneShowsNoRowsOfAnother) {
  world_.Put(DocumentKind::kReceipt);
  QDir(world_.Temp().Data().Resolve(u"0001\\Магазин"_s)).removeRecursively();
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  ModalAnswers answers({Press(QMessageBox::Ok)});
  Find<QComboBox>(&screen, "warehouse")->setCurrentText(u"Магазин"_s);
  EXPECT_EQ(Status(&screen), u"Документов:0     Сумма:0.00");
}

TEST_F(RegisterScreens, WithoutWarehousesTheyOpenEmpty) {
  world_.CurrentSession().warehouses.clear();
  ModalAnswers none({});
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  EXPECT_EQ(Files(&screen), QStringList());
}

TEST_F(RegisterScreens, TransfersAreThereWithoutWarehousesToo) {
  world_.Put(DocumentKind::kTransfer);
  world_.CurrentSession().warehouses.clear();
  ModalAnswers none({});
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kTransfer);
  ShowActive(&screen);
  EXPECT_EQ(Files(&screen), QStringList(u"0001.vpr"_s));
}

// Empty, cut, random and huge files: shown where they have a date, opened with what they hold.
TEST_F(RegisterScreens, DamagedDocumentsNeitherCrashNorHang) {
  const auto put = [&](const QString& name, const QByteArray& bytes) {
    world_.Temp().Put(u"0001\\Склад\\PRH\\"_s + name, bytes);
  };
  const QByteArray head = EncodeText(u"1\r\n22.11.2026\r\n-\r\n5.00\r\nда\r\n");
  QByteArray noise(300000, Qt::Uninitialized);
  quint32 seed = 7;
  for (char& byte : noise) byte = static_cast<char>((seed = seed * 1664525 + 1013904223) >> 24);
  put(u"0001.prh"_s, {});
  put(u"0002.prh"_s, noise);
  put(u"0003.prh"_s, head + noise);
  put(u"0004.prh"_s, head.first(15));
  put(u"0005.prh"_s, head + QByteArray(50 << 20, '\0'));
  put(u"0006.prh"_s, head + EncodeText(u"Чай\r\n3"));
  DocumentRegisterScreen screen(world_.Context(), DocumentKind::kReceipt);
  ShowActive(&screen);
  EXPECT_EQ(Files(&screen), QStringList(u"0003.prh|0004.prh|0005.prh|0006.prh"_lines));
  for (int row = 0; row < 4; ++row) {
    ListOf(&screen)->SelectRow(row);
    ModalAnswers answers({Escape(), Escape()});
    Click(&screen, "Command2");
    ListOf(&screen)->SelectRow(row);
    Click(&screen, "Command8");
  }
}

}  // namespace
}  // namespace kladez
