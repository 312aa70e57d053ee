#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>

#include "ScreenDriver.h"
#include "ui/controls/FieldNote.h"
#include "ui/controls/Fields.h"

namespace kladez {
namespace {

struct TypingCase {
  QString before;
  int caret;
  QString keys;
  QString after;
};

template <typename Field>
void ExpectTyping(const std::vector<TypingCase>& cases) {
  for (const TypingCase& c : cases) {
    Field field;
    field.setText(c.before);
    field.setCursorPosition(c.caret);
    Type(&field, c.keys);
    EXPECT_EQ(field.text(), c.after)
        << c.before.toStdString() << " at " << c.caret << " typed " << c.keys.toStdString();
  }
}

TEST(Fields, NumbersSwallowWhatIsNoDigitAndASecondPoint) {
  ExpectTyping<TextLineNumber>({{u"1"_s, 1, u"a2"_s, u"12"_s},
                                {u"1"_s, 1, u"-е"_s, u"1"_s},
                                {u"1.5"_s, 3, u".25"_s, u"1.525"_s},
                                {u"110"_s, 3, u",40"_s, u"110.40"_s},
                                {u"0"_s, 1, u",25"_s, u"0.25"_s},
                                {u"1"_s, 1, u".12345"_s, u"1.12345"_s}});
}

TEST(Fields, MoneyStopsAfterTwoDecimalsButTakesDigitsBeforeThePoint) {
  ExpectTyping<TextLineDecimal>({{u"1.50"_s, 4, u"7"_s, u"1.50"_s},
                                 {u"1.50"_s, 3, u"7"_s, u"1.50"_s},
                                 {u"1.50"_s, 2, u"7"_s, u"1.50"_s},
                                 {u"1.50"_s, 1, u"7"_s, u"17.50"_s},
                                 {u"1.50"_s, 0, u"7"_s, u"71.50"_s},
                                 {u"1.5"_s, 3, u"7"_s, u"1.57"_s},
                                 {u"12"_s, 2, u".345"_s, u"12.34"_s}});
}

TEST(Fields, BackspaceWorksWhereDigitsAreRefused) {
  TextLineDecimal field;
  field.setText(u"1.50"_s);
  field.setCursorPosition(4);
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(field.text(), u"1.5"_s);
}

TEST(Fields, EnteringAFieldSelectsItSoThatTypingReplacesMoney) {
  QWidget window;
  TextLineDecimal first(&window);
  TextLineDecimal second(&window);
  second.setText(u"45.00"_s);
  ShowActive(&window);
  first.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&first, Qt::Key_Tab);
  ASSERT_TRUE(second.hasFocus());
  Type(&second, u"7"_s);
  EXPECT_EQ(second.text(), u"7"_s);
}

TEST(Fields, ANumberFieldIsNeverEmptyAndRepairsAForeignSeparator) {
  TextLineNumber field;
  field.setText(u"12"_s);
  field.clear();
  EXPECT_EQ(field.text(), u"0"_s);
  field.setText(u"1,5"_s);
  EXPECT_EQ(field.text(), u"1.5"_s);
  field.setText(u"."_s);
  EXPECT_EQ(field.text(), u"0"_s);
  field.setText(u"пять"_s);
  EXPECT_EQ(field.text(), u"0"_s);
}

TEST(Fields, AFieldTellsOfTheTypedTextAndThenOfTheRepairedOne) {
  TextLineNumber field;
  field.setText(u"12"_s);
  QStringList told;
  QObject::connect(&field, &TextLine::Change, [&] { told.append(field.text()); });
  field.clear();
  EXPECT_EQ(told, QStringList({QString(), u"0"_s}));
}

TEST(Fields, TheNextDigitReplacesTheZeroOfAnEmptiedField) {
  TextLineDecimal field;
  field.setText(u"45.00"_s);
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Delete);
  Type(&field, u"7"_s);
  EXPECT_EQ(field.text(), u"7"_s);
  field.selectAll();
  Type(&field, u"..5"_s);  // a point alone is no number and gives the zero before the next point
  EXPECT_EQ(field.text(), u"0.5"_s);
  // Over a selected number with a point of its own too.
  field.setText(u"45.00"_s);
  field.selectAll();
  Type(&field, u",5"_s);
  EXPECT_EQ(field.text(), u"0.5"_s);
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&field, Qt::Key_Comma, Qt::KeypadModifier);
  QTest::keyClick(&field, Qt::Key_2, Qt::KeypadModifier);
  EXPECT_EQ(field.text(), u"0.2"_s);
}

TEST(Fields, APastedNumberLosesItsGroupsAndComma) {
  const struct {
    QStringView pasted;
    QStringView number;
    QStringView note;
  } cases[] = {{u"1 234,50", u"1234.50", u""},
               {u"1\u00A0234,50", u"1234.50", u""},
               {u"1\u202F234\u2009567.5", u"1234567.5", u""},
               {u" 12 ", u"12", u""},
               {u"-5", u"-5", u""},
               {u"1 234,50 руб.", u"0", u"«1 234,50 руб.» — не число."}};
  QWidget window;
  TextLineDecimal field(&window);
  ShowActive(&window);
  for (const auto& c : cases) {
    field.setText(u"7"_s);
    field.selectAll();
    QApplication::clipboard()->setText(c.pasted.toString());
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), c.number.toString());
    EXPECT_EQ(FieldNote::Of(&field), c.note.toString());
  }
  field.setText(u"1 234.50"_s);
  EXPECT_EQ(field.text(), u"1 234.50"_s) << "a file's own text stays";
}

TEST(Fields, WhatAFieldDoesNotTakeItTells) {
  QWidget window;
  TextLineDecimal field(&window);
  ShowActive(&window);
  field.setText(u"1.50"_s);
  const struct {
    QStringView typed;
    QStringView note;
  } cases[] = {{u"а", u"Здесь пишут цифры и точку."},
               {u".", u"Точка уже стоит."},
               {u"7", u"После точки две цифры."}};
  for (const auto& c : cases) {
    field.setCursorPosition(4);
    Type(&field, c.typed.toString());
    EXPECT_EQ(FieldNote::Of(&field), c.note.toString());
    EXPECT_EQ(field.text(), u"1.50"_s);
  }
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(FieldNote::Of(&field), QString());
}

TEST(Fields, WhatComesPastTheKeysIsFilteredAsKeysAre) {
  TextLineNumber field;
  field.setText(u"12"_s);
  for (const QString& typed : {u"\u00E9"_s, u"5"_s}) {
    QInputMethodEvent event;
    event.setCommitString(typed);
    QApplication::sendEvent(&field, &event);
  }
  EXPECT_EQ(field.text(), u"125"_s);
}

TEST(Fields, TheFieldsOwnMenuLeavesTheCaretWhereItWas) {
  QWidget window;
  TextLine field(&window);
  field.setText(u"Чай чёрный"_s);
  ShowActive(&window);
  field.setFocus(Qt::TabFocusReason);
  field.setCursorPosition(3);
  {
    QMenu menu;
    menu.popup(QPoint(0, 0));
    menu.close();
  }
  EXPECT_FALSE(field.hasSelectedText());
  EXPECT_EQ(field.cursorPosition(), 3);
}

TEST(Fields, AnOverlongLineOfADamagedFileIsNotCut) {
  TextLine field;
  const QString text(40000, u'ж');
  field.setText(text);
  EXPECT_EQ(field.text(), text);
}

TEST(Fields, TextRefusesOnlyTheCharactersThatFilesCannotHold) {
  TextLine field;
  QSignalSpy refused(&field, &TextLine::CharactersRefused);
  field.insert(u"Чай \u4E2D«Бодрость»\r\n№ 1\u2603"_s);
  EXPECT_EQ(field.text(), u"Чай «Бодрость» № 1"_s);
  ASSERT_EQ(refused.count(), 1);
  EXPECT_EQ(refused.first().first().toString(), u"\u4E2D\u2603"_s);
}

}  // namespace
}  // namespace kladez
