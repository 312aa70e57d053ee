#include <gtest/gtest.h>

#include "formats/Dates.h"
#include "formats/TypedDate.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QDate kToday(2026, 11, 22);

QString Number(int number, int places) {
  return QString::number(number).rightJustified(places, u'0');
}

// Reads the day, month and year in every way in which they can be written.
void ExpectInEveryWriting(QDate date) {
  const auto expect = [&](const QString& text, QDate today) {
    ASSERT_EQ(ReadTypedDate(text, today), date)
        << text.toStdString() << " on " << DateText(today).toStdString();
  };
  const int year = date.year();
  const QDate this_year(year, 1, 1);
  const QDate this_month(year, date.month(), 1);
  const bool short_year = year >= kToday.year() - 30 && year < kToday.year() + 70;
  for (const int places : {1, 2}) {
    const QString day = Number(date.day(), places);
    const QString month = Number(date.month(), places);
    expect(day, this_month);
    for (const QString& mark : {u"."_s, u","_s, u"/"_s, u"-"_s, u" "_s, u". "_s}) {
      expect(day + mark + month, this_year);
      expect(day + mark + month + mark, this_year);
      expect(day + mark + month + mark + Number(year, 4), kToday);
      if (short_year) expect(day + mark + month + mark + Number(year % 100, 2), kToday);
    }
  }
  const QString bare = Number(date.day(), 2) + Number(date.month(), 2);
  expect(bare, this_year);
  expect(bare + Number(year, 4), kToday);
  expect(bare + Number(year, 4) + u" г."_s, kToday);
  if (short_year) expect(bare + Number(year % 100, 2), kToday);
}

TEST(TypedDate, EveryDayIsReadInEveryWayOfWriting) {
  for (QDate date(1999, 1, 1); date.year() <= 2100; date = date.addDays(1)) {
    ExpectInEveryWriting(date);
    if (HasFatalFailure()) return;
  }
}

// No text of digits and points of such a length is read as a day other than the one it tells.
TEST(TypedDate, ADayThatDoesNotExistIsNone) {
  for (int day = 0; day <= 99; ++day) {
    for (int month = 0; month <= 99; ++month) {
      for (const int year : {1900, 2000, 2024, 2026, 2100, 2199}) {
        const bool exists = QDate::isValid(year, month, day);
        const QString text = Number(day, 2) + u'.' + Number(month, 2) + u'.' + Number(year, 4);
        ASSERT_EQ(ReadTypedDate(text, kToday).has_value(), exists) << text.toStdString();
        ASSERT_EQ(ReadTypedDate(QString(text).remove(u'.'), kToday).has_value(), exists);
      }
    }
  }
}

TEST(TypedDate, WhatIsNoDateOrCouldBeTwoIsNone) {
  for (const QStringView text :
       {u"",           u" ",          u".",     u"31.02.2026", u"311",       u"51226",
        u"3112202",    u"311220266",  u"1.1.1", u"1.1.026",    u"1.1.20266", u"001.1.2026",
        u"1.001.2026", u"1..1",       u"1.,1",  u".1.1",       u"1.1.26.",   u"1.1.26.5",
        u"1,1,1899",   u"01.01.2200", u"32",    u"0",          u"5 марта",   u"вчера",
        u"-5",         u"1+1",        u"сс",    u"٠5.03.2026", u"2026-03-05"}) {
    EXPECT_FALSE(ReadTypedDate(text, kToday)) << text.toString().toStdString();
  }
}

TEST(TypedDate, TodayHasALetterOfItsOwn) {
  for (const QStringView text : {u"с", u"С", u"c", u"C", u" с "}) {
    EXPECT_EQ(ReadTypedDate(text, kToday), kToday);
  }
}

}  // namespace
}  // namespace kladez
