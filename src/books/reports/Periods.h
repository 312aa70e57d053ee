// The periods that people ask for by name, as the days that they have, and the period before one.
// Weeks begin on Monday; a quarter is that of the year.
#pragma once

#include <QDate>
#include <QStringView>
#include <array>

#include "books/reports/ReportScope.h"

namespace kladez {

struct DateRange {
  QDate from;  // both included
  QDate to;

  bool operator==(const DateRange&) const = default;
};

struct NamedPeriod {
  QStringView name;
  DateRange (*days)(QDate today);
};

// "Сегодня", "Вчера", this and the last week, month, quarter, year.
extern const std::array<NamedPeriod, 10> kNamedPeriods;

// What a period is set beside: of whole months as many months before it, of any others as many
// days. Of a period that is still going on the one before counts as far as this one has come:
// November up to the 23rd stands beside October up to the 23rd.
DateRange RangeBefore(const DateRange& range, QDate today);

}  // namespace kladez
