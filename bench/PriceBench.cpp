// Loading a price list of 20,000 goods and a goods directory of 100,000, in both views, against
// reading the same files, each with one call, and finding their lines. Prints the ratios.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "PlainReading.h"
#include "RatioReporter.h"
#include "books/directories/GoodsDirectory.h"
#include "books/prices/PriceStore.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Every tenth row of the price list is of goods that the directory lost; every fourth is ticked.
struct Books {
  explicit Books(int count) : data(directory.path()) {
    session.base_path = u"0001\\"_s;
    session.warehouses = {u"Склад"_s};
    QDir().mkpath(directory.path() + u"/0001/spr"_s);
    QDir().mkpath(directory.path() + u"/0001/Склад/PRICE"_s);
    LineWriter goods;
    LineWriter prices;
    LineWriter marked;
    for (int i = 0; i < count; ++i) {
      const QString name = u"Чай чёрный байховый № %1, 100 г"_s.arg(i * 7919LL % count);
      if (i % 50 == 0) {
        goods.Add(u" Группа %1"_s.arg(i / 50));
        prices.Add(u" Группа %1"_s.arg(i / 50));
      }
      for (const QString& line : {name, u"Индия"_s, u"10702030/010105/%1"_s.arg(i % 2000),
                                  u"пач."_s, u"%1.50"_s.arg(i % 900)}) {
        goods.Add(line);
      }
      for (const QString& line : {i % 10 == 0 ? name + u" (старый)" : name, u"пач."_s,
                                  u"%1.50"_s.arg(i % 900), u"%1.25"_s.arg(i % 1200)}) {
        prices.Add(line);
      }
      if (i % 4 == 0) marked.Add(name);
    }
    Put(kGoods, goods.Take());
    Put(kPrices, prices.Take());
    Put(kMarked, marked.Take());
  }

  void Put(const QString& path, const QByteArray& bytes) const {
    QFile file(data.Resolve(path));
    if (!file.open(QIODevice::WriteOnly)) qFatal("no room for the books");
    file.write(bytes);
  }

  static inline const QString kGoods = u"0001\\spr\\товар.spr"_s;
  static inline const QString kPrices = u"0001\\Склад\\PRICE\\0001.prc"_s;
  static inline const QString kMarked = u"0001\\marked"_s;

  QTemporaryDir directory;
  DataDir data;
  Session session;
};

void Read(benchmark::State& state, const Books* books, const QStringList& files) {
  for (auto _ : state) {
    for (const QString& file : files) {
      benchmark::DoNotOptimize(PlainlyReadFile(books->data.Resolve(file).toStdString(), true));
    }
  }
}

void LoadPrices(benchmark::State& state, const Books* books, GoodsView view) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        PriceStore(books->data, books->session).Load(u"Склад"_s, 0, view).Rows().size());
  }
}

void LoadGoods(benchmark::State& state, const Books* books, GoodsView view) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(GoodsDirectory(books->data, books->session, view).Rows().size());
  }
}

void Register(const std::string& name, const Books* books, const QStringList& files,
              void (*load)(benchmark::State&, const Books*, GoodsView)) {
  for (const auto& [view, suffix] : {std::pair(GoodsView::kGroups, ", groups"),
                                     std::pair(GoodsView::kGoodsOnly, ", goods only")}) {
    const std::string full = name + suffix;
    benchmark::RegisterBenchmark((full + "/ours").c_str(), load, books, view)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((full + "/baseline lines found").c_str(), Read, books, files)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  benchmark::Initialize(&argc, argv);
  const Books priced(20'000);
  const Books large(100'000);
  Register("price list", &priced, {Books::kGoods, Books::kPrices, Books::kMarked}, LoadPrices);
  Register("goods directory", &large, {Books::kGoods}, LoadGoods);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
