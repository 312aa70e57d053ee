#include <QCalendarWidget>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "ScreenDriver.h"
#include "books/store/Clock.h"
#include "ui/controls/DateField.h"
#include "ui/controls/FieldNote.h"

namespace kladez {
namespace {

const QDate kToday(2026, 11, 22);

class DateFieldTest : public ::testing::Test {
 protected:
  DateFieldTest() {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&field);
    layout->addWidget(&other);
    ShowActive(&window);
    field.setFocus(Qt::TabFocusReason);
  }

  void TypeOver(const QString& text) {
    field.selectAll();
    Type(&field, text);
  }
  void Leave() { QTest::keyClick(&field, Qt::Key_Tab); }

  Clock clock{QDateTime(kToday, QTime(12, 0))};
  QWidget window;
  DateField field{QDate(2026, 4, 5), clock};
  TextLine other;
};

TEST_F(DateFieldTest, WhatIsTypedStaysUntilTheFieldIsLeftAndIsThenWrittenOut) {
  const struct {
    QStringView typed;
    QDate date;
  } cases[] = {{u"31.12.2027", QDate(2027, 12, 31)},
               {u"28.2.2026", QDate(2026, 2, 28)},
               {u"29022028", QDate(2028, 2, 29)},
               {u"01.01.1999", QDate(1999, 1, 1)},
               {u"31122027", QDate(2027, 12, 31)},
               {u"5,3", QDate(2026, 3, 5)},
               {u"7", QDate(2026, 11, 7)}};
  for (const auto& c : cases) {
    field.setFocus(Qt::TabFocusReason);
    TypeOver(c.typed.toString());
    EXPECT_EQ(field.text(), c.typed.toString());
    EXPECT_TRUE(FieldsAreSound(&window));
    Leave();
    EXPECT_EQ(field.date(), c.date);
    EXPECT_EQ(field.text(), c.date.toString(u"dd.MM.yyyy"_s));
  }
}

TEST_F(DateFieldTest, ATextThatIsNoDateSaysSoAndHoldsCommandsBack) {
  TypeOver(u"31.02.2026"_s);
  EXPECT_NE(FieldNote::Of(&field), QString());
  Leave();
  EXPECT_EQ(field.text(), u"31.02.2026"_s) << "nothing is changed behind the typing";
  EXPECT_FALSE(FieldsAreSound(&window));
  EXPECT_TRUE(field.hasFocus());
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.text(), u"31.02.2026"_s);
  field.setEnabled(false);
  EXPECT_TRUE(FieldsAreSound(&window)) << "a field that is not in use holds nobody back";
  field.setEnabled(true);
  field.setFocus(Qt::TabFocusReason);
  TypeOver(u"28.02.2026"_s);
  EXPECT_EQ(FieldNote::Of(&field), QString());
  EXPECT_TRUE(FieldsAreSound(&window));
}

TEST_F(DateFieldTest, ADateIsToldOnceItIsMeant) {
  QSignalSpy told(&field, &DateField::dateChanged);
  TypeOver(u"12.11"_s);
  EXPECT_EQ(told.count(), 0) << "the first and the twelfth of the month were on the way only";
  QTest::keyClick(&field, Qt::Key_Return);
  ASSERT_EQ(told.count(), 1);
  EXPECT_EQ(told[0][0].toDate(), QDate(2026, 11, 12));
  Type(&field, u"с"_s);
  EXPECT_EQ(told.count(), 2);
  EXPECT_EQ(field.text(), u"22.11.2026"_s);
  field.setDate(kToday);
  EXPECT_EQ(told.count(), 2);
  TypeOver(u"13"_s);
  EXPECT_TRUE(told.wait(5000)) << "a pause in typing is enough";
}

TEST_F(DateFieldTest, KeysAndTheWheelGoByDaysAndTheCalendarPicks) {
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.date(), QDate(2026, 4, 6));
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_EQ(field.text(), u"04.04.2026"_s);
  const auto turn = [&](int by) {
    QWheelEvent wheel(QPointF(2, 2), field.mapToGlobal(QPointF(2, 2)), {}, QPoint(0, by),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &wheel);
  };
  turn(120);
  EXPECT_EQ(field.date(), QDate(2026, 4, 5));
  other.setFocus();
  turn(120);
  EXPECT_EQ(field.date(), QDate(2026, 4, 5)) << "the wheel only passes by";

  field.setFocus();
  QTest::keyClick(&field, Qt::Key_Down, Qt::AltModifier);
  auto* calendar = field.findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  EXPECT_TRUE(calendar->isVisible());
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 4, 5));
  emit calendar->activated(QDate(2026, 5, 1));
  EXPECT_FALSE(calendar->isVisible());
  EXPECT_EQ(field.text(), u"01.05.2026"_s);
}

TEST_F(DateFieldTest, ADateOlderThanTheCalendarIsShownAndKept) {
  field.setDate(QDate(1700, 2, 28));
  EXPECT_EQ(field.text(), u"28.02.1700"_s);
  Leave();
  EXPECT_TRUE(FieldsAreSound(&window));
  EXPECT_EQ(field.date(), QDate(1700, 2, 28));
}

}  // namespace
}  // namespace kladez
