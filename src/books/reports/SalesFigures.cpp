#include "books/reports/SalesFigures.h"

#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {

using namespace Qt::StringLiterals;

SalesFigures CollectSalesFigures(const DataDir& data, const Session& session, QDate today,
                                 const Progress& progress) {
  SalesFigures figures;
  figures.by_day = NumberedChartGrid(
      u"График продаж за "_s + MonthName(today.month()) + u' ' + GeneralText(today.year()),
      today.daysInMonth(), {u"Реализация"_s});
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date || date->year() != today.year()) return;
    const double total = NumberOr(document.Head(&DocumentHead::net_sum));
    figures.year += total;
    if (date->month() != today.month()) return;
    figures.month += total;
    figures.by_day.Cell(date->day() - 1, 0) += total;
    if (date->day() == today.day()) figures.day += total;
  };
  ScanWarehouses(data, session, session.warehouses, DocumentKind::kShipment, Unreadable::kPassOver,
                 progress, visit);
  return figures;
}

}  // namespace kladez
