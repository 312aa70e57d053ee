// The page of a report: its title and heading, the warehouse, the period, and one table with heads,
// rows and the bold line of totals. It goes to its file as it is made: the report of years has half
// a million rows.
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "books/printing/PageWriter.h"
#include "books/reports/ReportScope.h"

namespace kladez {

class ReportPage {
 public:
  // `heading` goes before the date of today: "Отчет по продажам от ".
  ReportPage(const QString& heading, const ReportScope& scope, const ByteSink& sink);

  struct Head {
    QString title;
    int width;  // percent
  };
  // The heads of the columns; the first `texts` of them stand left, the others, units among them,
  // right.
  void Heads(std::vector<Head> heads, size_t texts);
  void Row(const std::vector<QString>& values);
  // Many rows, each asked for when its turn comes. Throws WorkCancelled.
  void Rows(size_t count, const std::function<std::vector<QString>(size_t)>& values,
            const Progress& progress);
  // The bold row, those that the scope sets below it, and the end of the page.
  void Total(const std::vector<QString>& values);

 private:
  std::vector<PageCell> Cells(const std::vector<QString>& values) const;

  const ByteSink& sink_;
  const std::vector<std::vector<QString>> below_total_;
  PageWriter page_;
  std::vector<Head> heads_;
  size_t texts_ = 0;
};

// "Период: с 01.11.2026 по 30.11.2026", "Месяц: Ноябрь", empty for all documents.
QString PeriodLine(const ReportPeriod& period);

// "22.11.26" of the key 261122.
QString DayOfKey(int day_key);

}  // namespace kladez
