#include "books/reports/Periods.h"

#include <algorithm>

namespace kladez {
namespace {

DateRange DaysFrom(QDate from, int days) { return {from, from.addDays(days - 1)}; }
DateRange MonthsFrom(QDate first, int months) {
  return {first, first.addMonths(months).addDays(-1)};
}

QDate WeekOf(QDate today) { return today.addDays(1 - today.dayOfWeek()); }
QDate MonthOf(QDate today) { return {today.year(), today.month(), 1}; }
QDate QuarterOf(QDate today) { return {today.year(), (today.month() - 1) / 3 * 3 + 1, 1}; }
QDate YearOf(QDate today) { return {today.year(), 1, 1}; }

// 0 where the period is not of whole months.
int WholeMonths(const DateRange& range) {
  if (range.from.day() != 1 || range.to.addDays(1).day() != 1) return 0;
  const QDate end = range.to.addDays(1);
  return (end.year() - range.from.year()) * 12 + end.month() - range.from.month();
}

}  // namespace

const std::array<NamedPeriod, 10> kNamedPeriods = {{
    {u"Сегодня", [](QDate today) { return DaysFrom(today, 1); }},
    {u"Вчера", [](QDate today) { return DaysFrom(today.addDays(-1), 1); }},
    {u"Эта неделя", [](QDate today) { return DaysFrom(WeekOf(today), 7); }},
    {u"Прошлая неделя", [](QDate today) { return DaysFrom(WeekOf(today).addDays(-7), 7); }},
    {u"Этот месяц (только этого года)", [](QDate today) { return MonthsFrom(MonthOf(today), 1); }},
    {u"Прошлый месяц", [](QDate today) { return MonthsFrom(MonthOf(today).addMonths(-1), 1); }},
    {u"Этот квартал", [](QDate today) { return MonthsFrom(QuarterOf(today), 3); }},
    {u"Прошлый квартал", [](QDate today) { return MonthsFrom(QuarterOf(today).addMonths(-3), 3); }},
    {u"Этот год", [](QDate today) { return MonthsFrom(YearOf(today), 12); }},
    {u"Прошлый год", [](QDate today) { return MonthsFrom(YearOf(today).addYears(-1), 12); }},
}};

DateRange RangeBefore(const DateRange& range, QDate today) {
  if (!range.from.isValid() || range.to < range.from) return range;
  const int months = WholeMonths(range);
  const auto days = static_cast<int>(range.from.daysTo(range.to)) + 1;
  DateRange before = months > 0 ? MonthsFrom(range.from.addMonths(-months), months)
                                : DaysFrom(range.from.addDays(-days), days);
  if (range.from <= today && today < range.to) {
    before.to = std::min(before.to, before.from.addDays(range.from.daysTo(today)));
  }
  return before;
}

}  // namespace kladez
