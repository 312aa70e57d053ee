#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QFileDialog>
#include <QFont>
#include <QMenu>
#include <QSignalSpy>

#include "ScreenDriver.h"
#include "ui/controls/Fields.h"
#include "ui/controls/ListSearch.h"
#include "ui/controls/ListTable.h"
#include "ui/controls/RecordList.h"
#include "ui/controls/TableSaving.h"

namespace kladez {
namespace {

class RecordListTest : public ::testing::Test {
 protected:
  RecordListTest() {
    list.SetRecords(&model);
    field.setParent(&window);
    list.setParent(&window);
    list.setGeometry(0, 40, 400, 200);
    ShowActive(&window);
  }

  std::vector<QString> rows = {u" Чай"_s, u"Ассам"_s, u"ассорти"_s, u"Ёлочный"_s};
  QString number = u"1"_s;
  std::vector<bool> ticks = {false, false, false, false};
  RecordModel model{
      {{u"Наименование"_s, 3100, false, true}, {u"Кол-во"_s, 1050, true}, {u"Файл"_s, 0}},
      {.count = [this] { return static_cast<int>(rows.size()); },
       .text = [this](int row, int column) { return column == 0 ? rows[row] : number; },
       .is_group = [this](int row) { return rows[row].startsWith(u' '); },
       .checked = [this](int row) { return ticks[row]; },
       .set_checked = [this](int row, bool on) { ticks[row] = on; }}};
  QWidget window;
  RecordList list;
  TextLine field;
};

TEST_F(RecordListTest, TheModelKeepsItsPromisesThroughChanges) {
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.Insert(1, [&] {
    rows.insert(rows.begin() + 1, u"Новый"_s);
    ticks.push_back(false);
  });
  model.Remove(0, [&] { rows.erase(rows.begin()); });
  rows.clear();
  model.Reset();
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(RecordListTest, GroupsAreBoldAndPureBlue) {
  const QModelIndex group = model.index(0, 0);
  EXPECT_TRUE(group.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(group.data(Qt::ForegroundRole).value<QBrush>().color(), QColor(0, 0, 255));
  EXPECT_FALSE(model.index(1, 0).data(Qt::ForegroundRole).isValid());
}

TEST_F(RecordListTest, SearchFindsTheFirstRowThatBeginsSoWhateverTheCase) {
  ASSERT_TRUE(list.SelectFirst(u"АССО"_s));
  EXPECT_EQ(list.CurrentRow(), 2);
  ASSERT_TRUE(list.SelectFirst(u"ас"_s));
  EXPECT_EQ(list.CurrentRow(), 1);
  ASSERT_TRUE(list.SelectFirst(u" ч"_s));
  EXPECT_EQ(list.CurrentRow(), 0);
  ASSERT_TRUE(list.SelectFirst(u"елочн"_s));
  EXPECT_EQ(list.CurrentRow(), 3);
  EXPECT_FALSE(list.SelectFirst(u"кофе"_s));
  EXPECT_EQ(list.CurrentRow(), 3);
  model.Insert(0, [&] {
    rows.insert(rows.begin(), u"Кофе"_s);
    ticks.push_back(false);
  });
  ASSERT_TRUE(list.SelectFirst(u"кофе"_s)) << "the names are those of now";
}

TEST_F(RecordListTest, TypingInTheListStartsANewSearchInTheField) {
  WireSearch(&field, &list);
  field.setText(u"старое"_s);
  list.setFocus();
  Type(&list, u"ё"_s);
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(field.text(), u"ё"_s);
  EXPECT_EQ(list.CurrentRow(), 3);
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_TRUE(list.hasFocus());
}

TEST_F(RecordListTest, ASearchThatFindsNothingSaysSoAndSelectsNothing) {
  WireSearch(&field, &list);
  list.SelectRow(2);
  field.setFocus();
  Type(&field, u"щщщ"_s);
  EXPECT_EQ(field.Fault(), u"не найдено"_s);
  EXPECT_EQ(list.CurrentRow(), -1);
  EXPECT_TRUE(list.SelectedRows().empty());
  field.clear();
  EXPECT_EQ(field.Fault(), QString());
  EXPECT_EQ(list.CurrentRow(), 2);
  Type(&field, u"fcc"_s);  // "асс" in the other layout
  EXPECT_EQ(list.CurrentRow(), 1);
  Type(&field, u"щ"_s);
  EXPECT_NE(field.Fault(), QString());
  list.SelectRow(0);
  EXPECT_EQ(field.Fault(), QString());
}

TEST_F(RecordListTest, KeysOfTheListWorkInAllOfItsScreen) {
  WireSearch(&field, &list);
  QPushButton button(&window);
  button.show();
  TextLine other(&window);
  other.show();
  int printed = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++printed; });
  ShareListKeys(&window, &list, &button);
  QSignalSpy insert(&list, &RecordList::InsertPressed);
  QSignalSpy remove(&list, &RecordList::DeletePressed);
  QSignalSpy enter(&list, &RecordList::EnterPressed);
  list.SelectRow(1);
  button.setFocus();
  for (const Qt::Key key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return})
    QTest::keyClick(&button, key);
  QTest::keyClick(&button, Qt::Key_P, Qt::ControlModifier);
  QTest::keyClick(&button, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"Ассам\t1"_s);
  EXPECT_EQ(insert.count(), 1);
  EXPECT_EQ(remove.count(), 1);
  EXPECT_EQ(enter.count(), 1);
  EXPECT_EQ(printed, 1);
  QTest::keyClick(&button, Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(field.hasFocus());
  Type(&field, u"асс"_s);
  QTest::keyClick(&field, Qt::Key_F3);
  EXPECT_EQ(list.CurrentRow(), 2);
  QTest::keyClick(&field, Qt::Key_F3);
  EXPECT_EQ(list.CurrentRow(), 1);
  // A field uses its own keys.
  QTest::keyClick(&field, Qt::Key_Delete);
  other.setFocus();
  QTest::keyClick(&other, Qt::Key_Return);
  EXPECT_EQ(remove.count(), 1);
  EXPECT_EQ(enter.count(), 1);
  field.setFocus();
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(enter.count(), 2);
}

TEST_F(RecordListTest, AListWithoutASearchFieldGoesToWhatIsTyped) {
  Type(&list, u"асс"_s);
  EXPECT_EQ(list.CurrentRow(), 1);
  Type(&list, u"о"_s);
  EXPECT_EQ(list.CurrentRow(), 2);
  QTest::keyClick(&list, Qt::Key_Backspace);
  EXPECT_EQ(list.CurrentRow(), 1);
  QTest::keyClick(&list, Qt::Key_F3);
  EXPECT_EQ(list.CurrentRow(), 2);
}

TEST_F(RecordListTest, EveryRowCanBeReadOnAnyDesktop) {
  const QPalette before = QApplication::palette();
  for (const QColor ground : {QColor(Qt::white), QColor(0x1A, 0x1F, 0x21)}) {
    QApplication::setPalette(QPalette(ground, ground));
    const RecordList fresh;
    const QPalette& colors = fresh.palette();
    const auto apart = [&](QPalette::ColorRole text, QPalette::ColorRole behind) {
      return std::abs(colors.color(text).lightness() - colors.color(behind).lightness());
    };
    EXPECT_GT(apart(QPalette::Text, QPalette::AlternateBase), 120);
    EXPECT_GT(apart(QPalette::HighlightedText, QPalette::Highlight), 120);
  }
  QApplication::setPalette(before);
}

TEST_F(RecordListTest, NumbersAreNeverCut) {
  number = u"123456789012.50"_s;
  model.Reset();
  QApplication::processEvents();
  EXPECT_GE(list.columnWidth(1), list.fontMetrics().horizontalAdvance(number) + 2);
}

TEST_F(RecordListTest, KeysOfTheListAreCommandsAndNeverSearchText) {
  QSignalSpy typed(&list, &RecordList::CharacterTyped);
  QSignalSpy insert(&list, &RecordList::InsertPressed);
  QSignalSpy remove(&list, &RecordList::DeletePressed);
  QSignalSpy enter(&list, &RecordList::EnterPressed);
  QSignalSpy divide(&list, &RecordList::DividePressed);
  for (const int key : {Qt::Key_Insert, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter})
    QTest::keyClick(&list, static_cast<Qt::Key>(key));
  QTest::keyClick(&list, Qt::Key_Slash, Qt::KeypadModifier);
  EXPECT_EQ(insert.count(), 1);
  EXPECT_EQ(remove.count(), 1);
  EXPECT_EQ(enter.count(), 2);
  EXPECT_EQ(divide.count(), 1);
  EXPECT_EQ(typed.count(), 0);
}

TEST_F(RecordListTest, ADivideKeyThatIsNoCommandIsSearchText) {
  list.SetSearchField(&field);
  QSignalSpy typed(&list, &RecordList::CharacterTyped);
  QTest::keyClick(&list, Qt::Key_Slash, Qt::KeypadModifier);
  ASSERT_EQ(typed.count(), 1);
  EXPECT_EQ(typed[0][0].toString(), u"/"_s);
}

TEST_F(RecordListTest, TheSpaceKeyTicksTheRowOfTheWorkingCopy) {
  list.SelectRow(1);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(ticks, (std::vector<bool>{false, true, false, false}));
}

TEST_F(RecordListTest, AColumnOfWidthZeroIsHidden) {
  EXPECT_TRUE(list.isColumnHidden(2));
  EXPECT_EQ(list.columnWidth(1), 70);
}

TEST_F(RecordListTest, RowsAreTakenAlongByKeysAndMenu) {
  const auto copied = [] { return QApplication::clipboard()->text(); };
  number = u"1234.50"_s;
  list.setFocus();
  list.SelectRow(1);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copied(), u"Ассам\t1234,50"_s);
  const QString all =
      u"Наименование\tКол-во\n Чай\t1234,50\nАссам\t1234,50\nассорти\t1234,50\nЁлочный\t1234,50"_s;
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(copied(), all);
  list.setSelectionMode(QAbstractItemView::ExtendedSelection);
  list.selectAll();
  QApplication::clipboard()->clear();
  QStringList commands;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions()) commands << action->objectName();
    menu->actions().front()->trigger();
    menu->close();
  });
  QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5), list.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(list.viewport(), &asked);
  EXPECT_EQ(commands, (QStringList{u"copy"_s, u"copy_all"_s, u"save_table"_s}));
  EXPECT_EQ(copied(), all);  // all are selected: with their headings
}

TEST_F(RecordListTest, ATableIsSavedWhereAskedInTheKindThatItsNameSays) {
  const QTemporaryDir folder;
  window.setWindowTitle(u"Остатки: все/\"склады\""_s);
  const auto save = [&](const QString& name) {
    QString proposed;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      proposed = dialog->selectedFiles().value(0).section(u'/', -1);
      dialog->setDirectory(folder.path());
      dialog->selectFile(name);
      static_cast<QDialog*>(dialog)->accept();
    });
    QTest::keyClick(&list, Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(proposed.startsWith(u"Остатки все склады 20"_s)) << proposed.toStdString();
    QFile file(folder.filePath(QDir(folder.path()).entryList({name + u'*'}).value(0)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<none>");
  };
  EXPECT_EQ(save(u"а.csv"_s).toStdString(),
            "\xEF\xBB\xBFНаименование;Кол-во\r\n Чай;1\r\nАссам;1\r\nассорти;1\r\nЁлочный;1\r\n");
  EXPECT_TRUE(save(u"б"_s).startsWith("PK"));
  EXPECT_TRUE(save(u"в.xlsx"_s).startsWith("PK"));
}

}  // namespace
}  // namespace kladez
