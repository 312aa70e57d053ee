// Time and memory of what a shop sees grow with its books: prints, for the number of shipments that
// it is given, the processor seconds and the most memory of the home screen, the register of a year
// and the sales report, each in a process of its own, and the seconds of the least reading.
//
//   growth 1000 10000 100000
#include <cstdio>
#include <functional>

#include "ChildRun.h"
#include "ShipmentBooks.h"
#include "books/reports/ChartSeries.h"
#include "books/reports/SalesFigures.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"
#include "books/stock/DocumentRegister.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QDate kToday(2026, 11, 22);
const ReportScope kEverything{kAllWarehouses.toString(), {PeriodKind::kAll, kToday, {}, {}}};

// Of the largest books one run tells enough.
Figures Measure(int count, const std::function<void()>& work) {
  return MeasureInChild(count > 100'000 ? 1 : 5, work);
}

void Print(int count, const char* what, const Figures& figures) {
  std::printf("%d\t%s\t%.4f\t%.1f\n", count, what, figures.seconds, figures.megabytes);
}

void PrintAll(int count) {
  const ShipmentBooks books(count, kToday);
  Print(count, "plain reading", Measure(count, [&] {
          for (const std::string& directory : books.Directories()) PlainlyRead(directory);
        }));
  Print(count, "home screen",
        Measure(count, [&] { CollectSalesFigures(books.data, books.session, kToday); }));
  Print(count, "register", Measure(count, [&] {
          DocumentRegister rows(books.data, books.session, DocumentKind::kShipment);
          const RegisterFilter year{.period = RegisterFilter::Period::kYear, .year = u"2026"_s};
          for (const QString& name : books.session.warehouses) rows.Load(name, year, kToday, true);
        }));
  Print(count, "sales report",
        Measure(count, [&] { CollectSales(books.data, books.session, kEverything); }));
  Print(count, "speed report",
        Measure(count, [&] { CollectSpeed(books.data, books.session, kEverything); }));
  Print(count, "chart of a year", Measure(count, [&] {
          CollectSalesChart(books.data, books.session,
                            {kEverything.warehouse, false, kToday.year(), 0});
        }));
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) kladez::PrintAll(std::atoi(argv[i]));
}
