// The home screen's figures, reports and a chart over 100,000 shipments of five lines in three
// warehouses, against a plain loop that lists, opens, reads and closes the same files once. The
// files are in the cache. Prints the ratios, and the most memory that the whole run took.
#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "RatioReporter.h"
#include "books/reports/ChartSeries.h"
#include "books/reports/SalesFigures.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kShipments = 100'000;
constexpr int kWarehouses = 3;
constexpr int kLines = 5;
constexpr int kGoods = 2'000;
const QDate kToday(2026, 11, 22);

// Days of the last three years; every third shipment has a discount, every seventh line a fraction.
QByteArray Shipment(int i) {
  LineWriter file;
  const int discount = i % 3 == 0 ? 5 : 0;
  double sum = 0;
  QStringList lines;
  for (int line = 0; line < kLines; ++line) {
    const int item = static_cast<int>((qint64(i) * 7919 + line * 331) % kGoods);
    const double quantity = (item + line) % 7 == 0 ? 2.5 : 1 + item % 12;
    const double price = 10 + item % 900 + 0.45;
    const double net = RoundMoney(price - price * discount / 100);
    sum += quantity * net;
    lines << u"Чай чёрный байховый № %1, 100 г"_s.arg(item) << GeneralText(quantity) << u"пач."_s
          << FormatMoney(price * 0.7) << FormatMoney(price) << FormatMoney(net);
  }
  for (const QString& line :
       {QString::number(i), DateText(kToday.addDays(-(i % 1000))), u"ООО «Ромашка»"_s,
        FormatMoney(sum), QString::number(discount), FormatMoney(sum), u"да"_s}) {
    file.Add(line);
  }
  for (const QString& line : lines) file.Add(line);
  return file.Take();
}

struct Books {
  Books() : data(directory.path()) {
    session.base_path = u"0001\\"_s;
    for (int w = 0; w < kWarehouses; ++w) {
      session.warehouses << u"Склад %1"_s.arg(w + 1);
      QDir().mkpath(Directory(w));
    }
    for (int i = 0; i < kShipments; ++i) {
      QFile file(Directory(i % kWarehouses) +
                 u"/%1.uhd"_s.arg(i / kWarehouses + 1, 5, 10, QChar(u'0')));
      const QByteArray bytes = Shipment(i);
      if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("no room for the shipments");
      }
    }
  }

  QString Directory(int warehouse) const {
    return directory.path() + u"/0001/"_s + session.warehouses[warehouse] + u"/UHD"_s;
  }

  QTemporaryDir directory;
  DataDir data;
  Session session;
};

const Books& TheBooks() {
  static const Books books;
  return books;
}

size_t ReadAll(const QString& directory) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(
      ::opendir(QFile::encodeName(directory).constData()), &::closedir);
  static char buffer[64 * 1024];
  size_t total = 0;
  while (const dirent* entry = ::readdir(entries.get())) {
    if (entry->d_name[0] == '.') continue;
    const int file = ::openat(::dirfd(entries.get()), entry->d_name, O_RDONLY);
    ssize_t got = 0;
    while ((got = ::read(file, buffer, sizeof buffer)) > 0) total += static_cast<size_t>(got);
    ::close(file);
  }
  return total;
}

void PlainLoop(benchmark::State& state) {
  const Books& books = TheBooks();
  for (auto _ : state) {
    for (int w = 0; w < kWarehouses; ++w) benchmark::DoNotOptimize(ReadAll(books.Directory(w)));
  }
}

const ReportScope kEverything{kAllWarehouses.toString(), {PeriodKind::kAll, kToday, {}, {}}};

template <typename Work>
void Register(const std::string& name, Work work) {
  const auto ours = [work](benchmark::State& state) {
    const Books& books = TheBooks();
    for (auto _ : state) benchmark::DoNotOptimize(work(books.data, books.session));
  };
  benchmark::RegisterBenchmark((name + "/ours").c_str(), ours)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark((name + "/baseline plain loop").c_str(), PlainLoop)
      ->Unit(benchmark::kMillisecond);
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
  Register("home screen", [](const DataDir& data, const Session& session) {
    return CollectSalesFigures(data, session, kToday);
  });
  Register("sales report", [](const DataDir& data, const Session& session) {
    return CollectSales(data, session, kEverything);
  });
  Register("speed report", [](const DataDir& data, const Session& session) {
    return CollectSpeed(data, session, kEverything);
  });
  Register("chart of a year", [](const DataDir& data, const Session& session) {
    return CollectSalesChart(data, session, {kEverything.warehouse, false, kToday.year(), 0});
  });
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  PrintPeakMemory();
}
