#include "books/reports/ReportPage.h"

#include "formats/Dates.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr PageFont kHeadFont{.size = 4};
constexpr PageFont kRowFont{.size = 3};

}  // namespace

QString PeriodLine(const ReportPeriod& period) {
  switch (period.kind) {
    case PeriodKind::kAll:
      return {};
    case PeriodKind::kCurrentMonth:
      return u"Месяц: "_s + MonthName(period.today.month());
    case PeriodKind::kRange:
      return u"Период: с "_s + DateText(period.from) + u" по "_s + DateText(period.to);
  }
  Q_UNREACHABLE();
}

ReportPage::ReportPage(const QString& heading, const ReportScope& scope, const ByteSink& sink)
    : sink_(sink),
      below_total_(scope.below_total),
      page_(u"Отчет от "_s + LongDateText(scope.period.today), LineWriter(sink)) {
  page_.Line(u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>"_s + heading +
             LongDateText(scope.period.today) + u"</FONT></B><br></p>"_s);
  page_.Line(FontHtml({.size = 3}, scope.warehouse) + u"<br>"_s);
  const QString period = PeriodLine(scope.period);
  if (!period.isEmpty()) page_.Line(FontHtml({.size = 3}, period) + u"<br>"_s);
  page_.Line(u"<br>"_s);
  page_.Line(u"<CENTER>"_s);
  page_.OpenTable();
}

void ReportPage::Heads(std::vector<Head> heads, size_t texts) {
  heads_ = std::move(heads);
  texts_ = texts;
  std::vector<QString> titles;
  for (const Head& head : heads_) titles.push_back(head.title);
  page_.Row(Cells(titles), kHeadFont);
}

void ReportPage::Row(const std::vector<QString>& values) { page_.Row(Cells(values), kRowFont); }

void ReportPage::Rows(size_t count, const std::function<std::vector<QString>(size_t)>& values,
                      const Progress& progress) {
  constexpr size_t kRowsBetweenProgress = 256;
  for (size_t i = 0; i < count; ++i) {
    const double part = static_cast<double>(i) / static_cast<double>(count);
    if (i % kRowsBetweenProgress == 0) progress.Tell(part);
    Row(values(i));
  }
}

void ReportPage::Total(const std::vector<QString>& values) {
  page_.TotalRow(Cells(values), kRowFont);
  for (const std::vector<QString>& row : below_total_) page_.TotalRow(Cells(row), kRowFont);
  page_.Line(u"<tr>"_s);
  page_.Line(u"</center></table><p></p>"_s);
  page_.Line(u"</body></html>"_s);
  sink_(page_.Take());
}

std::vector<PageCell> ReportPage::Cells(const std::vector<QString>& values) const {
  std::vector<PageCell> cells;
  for (size_t i = 0; i < values.size(); ++i) {
    cells.push_back(i < texts_ ? NameCell(values[i], heads_[i].width)
                               : NumberCell(values[i], heads_[i].width));
  }
  return cells;
}

QString DayOfKey(int day_key) {
  const auto two = [](int number) { return QString::number(number).rightJustified(2, u'0'); };
  return two(day_key % 100) + u'.' + two(day_key / 100 % 100) + u'.' + two(day_key / 10000);
}

}  // namespace kladez
