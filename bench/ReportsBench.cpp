// The home screen's figures, reports and a chart over 100,000 shipments of five lines in three
// warehouses, against a plain loop that lists, opens, reads and closes the same files once: with
// the files in the system's memory, and the home screen with their data forgotten as well. Prints
// the ratios, and the most memory that the whole run took.
#include <QFile>
#include <cstdio>

#include "RatioReporter.h"
#include "ShipmentBooks.h"
#include "books/reports/ChartSeries.h"
#include "books/reports/SalesFigures.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kShipments = 100'000;
const QDate kToday(2026, 11, 22);

struct Books : ShipmentBooks {
  Books() : ShipmentBooks(kShipments, kToday) {}
  void Forget(benchmark::State& state) const {
    state.PauseTiming();
    ForgetAll();
    state.ResumeTiming();
  }
};

const Books& TheBooks() {
  static const Books books;
  return books;
}

void PlainLoop(benchmark::State& state, bool cold) {
  const Books& books = TheBooks();
  for (auto _ : state) {
    if (cold) books.Forget(state);
    for (const std::string& directory : books.Directories()) {
      benchmark::DoNotOptimize(PlainlyRead(directory));
    }
  }
}

const ReportScope kEverything{kAllWarehouses.toString(), {PeriodKind::kAll, kToday, {}, {}}};

// In memory the processor's time counts; with the files' data forgotten, the clock on the wall.
template <typename Work>
void Register(const std::string& name, Work work, bool cold = false) {
  const auto ours = [work, cold](benchmark::State& state) {
    const Books& books = TheBooks();
    for (auto _ : state) {
      if (cold) books.Forget(state);
      benchmark::DoNotOptimize(work(books.data, books.session));
    }
  };
  const auto add = [cold](benchmark::internal::Benchmark* one) {
    one->Unit(benchmark::kMillisecond);
    if (cold) one->UseRealTime()->Iterations(1);
  };
  add(benchmark::RegisterBenchmark((name + "/ours").c_str(), ours));
  add(benchmark::RegisterBenchmark((name + "/baseline plain reading").c_str(), PlainLoop, cold));
}

void PrintPeakMemory() {
  QFile status(u"/proc/self/status"_s);
  if (!status.open(QIODevice::ReadOnly)) return;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmHWM")) std::printf("%s\n", line.constData());
  }
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  benchmark::Initialize(&argc, argv);
  const auto home_screen = [](const DataDir& data, const Session& session) {
    return CollectSalesFigures(data, session, kToday);
  };
  Register("home screen", home_screen);
  Register("sales report", [](const DataDir& data, const Session& session) {
    return CollectSales(data, session, kEverything);
  });
  Register("speed report", [](const DataDir& data, const Session& session) {
    return CollectSpeed(data, session, kEverything);
  });
  Register("chart of a year", [](const DataDir& data, const Session& session) {
    return CollectSalesChart(data, session, {kEverything.warehouse, false, kToday.year(), 0});
  });
  Register("home screen, cold", home_screen, true);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintPeakMemory();
}
