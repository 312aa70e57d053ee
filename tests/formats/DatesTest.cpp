#include <gtest/gtest.h>

#include "formats/Dates.h"

namespace kladez {
namespace {

TEST(Dates, OnlyDayMonthAndFourDigitYearMakeADate) {
  const struct {
    const char* text;
    QDate date;  // an invalid one where the text is none
  } cases[] = {
      {"05.03.2026", QDate(2026, 3, 5)},
      {"5.3.2026", QDate(2026, 3, 5)},
      {"31.12.1999", QDate(1999, 12, 31)},
      {"29.02.2024", QDate(2024, 2, 29)},
      {"05.03.2026 ", QDate(2026, 3, 5)},  // old files carry one blank
      {"05.03.2026  ", {}},
      {" 05.03.2026", {}},
      {"29.02.2026", {}},
      {"31.04.2026", {}},
      {"00.03.2026", {}},
      {"05.00.2026", {}},
      {"05.13.2026", {}},
      {"05.03.0000", {}},
      {"05.03.26", {}},
      {"05.03.02026", {}},
      {"005.03.2026", {}},
      {"05.003.2026", {}},
      {"05/03/2026", {}},
      {"05-03-2026", {}},
      {"2026-03-05", {}},
      {"05.03.2026г", {}},
      {"05.03.", {}},
      {"05.03", {}},
      {"05..2026", {}},
      {".03.2026", {}},
      {"..", {}},
      {"", {}},
      {" ", {}},
      {"-5.03.2026", {}},
      {"٠5.03.2026", {}},
      {"нет даты", {}},
  };
  for (const auto& c : cases) {
    const QString text = QString::fromUtf8(c.text);
    EXPECT_EQ(ParseDate(text).value_or(QDate()), c.date) << '"' << c.text << '"';
    // Bytes of a file are read by the same rule.
    EXPECT_EQ(ParseDate(QByteArrayView(c.text)).value_or(QDate()), c.date) << '"' << c.text << '"';
  }
  EXPECT_FALSE(ParseDate(QByteArrayView(QByteArray(50'000'000, '1'))));
}

TEST(Dates, EveryTextOfADateHasItsPaddedForm) {
  const QDate early(2005, 3, 5);
  EXPECT_EQ(DateText(early), QStringLiteral("05.03.2005"));
  EXPECT_EQ(ShortDateText(early), QStringLiteral("05.03.05"));
  EXPECT_EQ(BackupDateText(early), QStringLiteral("05-03-05"));
  EXPECT_EQ(LongDateText(early), QStringLiteral("05 марта 2005"));
  const QString julian = QStringLiteral("03.09.1751");
  EXPECT_EQ(DateText(ParseDate(julian).value()), julian);
}

TEST(Dates, MonthsStandAloneInNominativeAndInDatesInGenitive) {
  const char* months[][2] = {
      {"Январь", "января"},   {"Февраль", "февраля"}, {"Март", "марта"},
      {"Апрель", "апреля"},   {"Май", "мая"},         {"Июнь", "июня"},
      {"Июль", "июля"},       {"Август", "августа"},  {"Сентябрь", "сентября"},
      {"Октябрь", "октября"}, {"Ноябрь", "ноября"},   {"Декабрь", "декабря"},
  };
  for (int month = 1; month <= 12; ++month) {
    EXPECT_EQ(MonthName(month).toStdString(), months[month - 1][0]);
    EXPECT_EQ(LongDateText(QDate(2026, month, 1)).toStdString(),
              std::string("01 ") + months[month - 1][1] + " 2026");
  }
}

}  // namespace
}  // namespace kladez
