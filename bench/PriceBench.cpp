// Loading a price list of 20,000 goods, against splitting the same files into decoded lines.
#include "RatioReporter.h"
#include "books/prices/PriceList.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGoods = 20'000;

struct Files {
  QByteArray goods;
  QByteArray prices;
  QByteArray marked;
};

// Every tenth row of the price list is of goods that the directory lost; every fourth is ticked.
Files MakeFiles() {
  LineWriter goods;
  LineWriter prices;
  LineWriter marked;
  for (int i = 0; i < kGoods; ++i) {
    const QString name = u"Чай чёрный байховый № %1, 100 г"_s.arg(i);
    if (i % 50 == 0) {
      goods.Add(u" Группа %1"_s.arg(i / 50));
      prices.Add(u" Группа %1"_s.arg(i / 50));
    }
    for (const QString& line :
         {name, u"Индия"_s, u"10702030/010105/0001"_s, u"пач."_s, u"%1.50"_s.arg(i % 900)}) {
      goods.Add(line);
    }
    for (const QString& line : {i % 10 == 0 ? name + u" (старый)" : name, u"пач."_s,
                                u"%1.50"_s.arg(i % 900), u"%1.25"_s.arg(i % 1200)}) {
      prices.Add(line);
    }
    if (i % 4 == 0) marked.Add(name);
  }
  return {goods.Take(), prices.Take(), marked.Take()};
}

const Files& TheFiles() {
  static const Files files = MakeFiles();
  return files;
}

void Split(benchmark::State& state) {
  const Files& files = TheFiles();
  for (auto _ : state) {
    for (const QByteArray* bytes : {&files.goods, &files.prices, &files.marked}) {
      benchmark::DoNotOptimize(DecodeLines(*bytes));
    }
  }
}

void Load(benchmark::State& state, GoodsView view) {
  const Files& files = TheFiles();
  for (auto _ : state) {
    benchmark::DoNotOptimize(PriceList(files.goods, files.prices, files.marked, view));
  }
}

void Register(const std::string& name, GoodsView view) {
  benchmark::RegisterBenchmark((name + "/ours").c_str(), Load, view)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark((name + "/baseline decoded lines").c_str(), Split)
      ->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  benchmark::Initialize(&argc, argv);
  Register("price list, groups", GoodsView::kGroups);
  Register("price list, goods only", GoodsView::kGoodsOnly);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
