// The page of a report: its title and heading, the warehouse, the period, and one table with heads,
// rows and the bold line of totals.
#pragma once

#include <QString>
#include <vector>

#include "printing/PageWriter.h"
#include "reports/ReportScope.h"

namespace kladez {

class ReportPage {
 public:
  // `heading` goes before the date of today: "Отчет по продажам от ".
  ReportPage(const QString& heading, const ReportScope& scope);

  struct Head {
    QString title;
    int width;  // percent
  };
  // The heads of the columns; the first `texts` of them stand left, the others, units among them,
  // right.
  void Heads(std::vector<Head> heads, size_t texts);
  void Row(const std::vector<QString>& values);
  void Total(const std::vector<QString>& values);
  QByteArray Take();

 private:
  std::vector<PageCell> Cells(const std::vector<QString>& values) const;

  PageWriter page_;
  std::vector<Head> heads_;
  size_t texts_ = 0;
};

// "22.11.26" of the key 261122.
QString DayOfKey(int day_key);

}  // namespace kladez
