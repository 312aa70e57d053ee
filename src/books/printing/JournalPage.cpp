#include "books/printing/JournalPage.h"

#include "books/printing/PageWriter.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr PageFont kHeadFont{.size = 4};
constexpr PageFont kRowFont{.size = 3};

std::vector<PageCell> CellsOf(const std::vector<JournalColumn>& columns,
                              const std::function<QString(const JournalColumn&)>& text) {
  std::vector<PageCell> cells;
  for (const JournalColumn& column : columns) {
    cells.push_back(column.number ? NumberCell(text(column), column.width)
                                  : NameCell(text(column), column.width));
  }
  return cells;
}

void WriteHead(PageWriter& page, const Journal& journal, QDate today) {
  page.Line(u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Журнал: "_s + journal.title + u" от "_s +
            LongDateText(today) + u"</FONT></B><br></p>"_s);
  QStringList lines = {ChosenText(journal.chosen, today)};
  if (!journal.warehouse.isEmpty()) lines.prepend(journal.warehouse);
  if (!journal.sought.isEmpty()) lines << u"Найдено по словам: "_s + journal.sought;
  for (const QString& line : lines) page.Line(FontHtml(kRowFont, line) + u"<br>"_s);
  page.Line(u"<br>"_s);
}

}  // namespace

QString ChosenText(const RegisterFilter& filter, QDate today) {
  switch (filter.period) {
    case RegisterFilter::Period::kMonth:
      return u"Месяц: %1 %2"_s.arg(MonthName(filter.month)).arg(today.year());
    case RegisterFilter::Period::kYear:
      return u"Год: "_s + filter.year;
    case RegisterFilter::Period::kDay:
      return u"Число: "_s + DateText(filter.day);
    case RegisterFilter::Period::kRange:
      return u"Период: с "_s + DateText(filter.from) + u" по "_s + DateText(filter.to);
  }
  Q_UNREACHABLE();
}

void WriteJournal(const RegisterView& rows, const Journal& journal, QDate today,
                  const ByteSink& sink, const Progress& progress) {
  PageWriter page(u"Журнал"_s, LineWriter(sink));
  WriteHead(page, journal, today);
  page.OpenTable();
  page.Row(CellsOf(journal.columns, [](const JournalColumn& column) { return column.title; }),
           kHeadFont);
  std::vector<double> totals(journal.columns.size());
  constexpr int kRowsBetweenProgress = 256;
  for (int i = 0; i < rows.Count(); ++i) {
    if (i % kRowsBetweenProgress == 0) progress.Tell(static_cast<double>(i) / rows.Count());
    const DocumentHead& head = rows.Row(i).head;
    for (size_t at = 0; at < totals.size(); ++at) {
      if (journal.columns[at].total) totals[at] += NumberOr(head.*journal.columns[at].field);
    }
    page.Row(CellsOf(journal.columns, [&](const auto& column) { return head.*column.field; }),
             kRowFont);
  }
  size_t next = 0;
  page.TotalRow(CellsOf(journal.columns,
                        [&](const JournalColumn& column) {
                          const size_t at = next++;
                          if (at == 0) return u"ИТОГО: %1"_s.arg(rows.Count());
                          return column.total ? FormatMoney(totals[at]) : QString();
                        }),
                kRowFont);
  page.Line(u"</TABLE>"_s);
  page.Line(u"</body></html>"_s);
  sink(page.Take());
}

}  // namespace kladez
