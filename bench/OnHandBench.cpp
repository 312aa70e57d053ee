// Stock on hand of 40 warehouses with 20,000 records each, joined with 20,000 goods, against a
// plain program that reads the same files and finds their lines: with the ledgers in one order, and
// with each in a random order of its own. Prints the ratios.
#include <QTemporaryDir>
#include <algorithm>
#include <numeric>
#include <random>
#include <string>

#include "PlainReading.h"
#include "RatioReporter.h"
#include "books/stock/OnHand.h"
#include "books/store/SaveSet.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kWarehouses = 40;
constexpr int kGoods = 20'000;

QString GoodsName(int i) { return u"Чай чёрный байховый № %1, 100 г"_s.arg(i); }

// Every fifth record is a name that only begins longer ones, and every third quantity has decimals.
struct Books {
  explicit Books(bool shuffled) : data(directory.path()) {
    session.base_path = u"0001\\"_s;
    SaveSet save(data);
    save.MakeDirectory(u"0001"_s);
    save.MakeDirectory(u"0001\\spr"_s);
    LineWriter goods;
    for (int i = 0; i < kGoods; ++i) {
      if (i % 50 == 0) goods.Add(u" Группа %1"_s.arg(i / 50));
      goods.Add(GoodsName(i));
      for (const QString& line : {u"Индия"_s, u"10702030/010105/0001"_s, u"пач."_s, u"45.50"_s})
        goods.Add(line);
    }
    save.Write(u"0001\\spr\\товар.spr"_s, goods.Take());
    std::mt19937 random(1);
    std::vector<int> order(kGoods);
    std::iota(order.begin(), order.end(), 0);
    std::shuffle(order.begin(), order.end(), random);
    for (int w = 0; w < kWarehouses; ++w) {
      if (shuffled) std::shuffle(order.begin(), order.end(), random);
      session.warehouses.append(u"Склад %1"_s.arg(w));
      save.MakeDirectory(u"0001\\"_s + session.warehouses.back());
      LineWriter ledger;
      for (const int item : order) {
        const QString name = GoodsName(item);
        ledger.Add(item % 5 == 0 ? name.chopped(7) : name);
        ledger.Add(item % 3 == 0 ? u"%1.25"_s.arg(item % 90) : QString::number(item % 900));
        ledger.Add(u"пач."_s);
      }
      save.Write(session.Path(session.warehouses.back(), u"товар.usl"), ledger.Take());
    }
    save.Commit();
  }

  QStringList Files() const {
    QStringList files{session.Path(u"spr\\товар.spr")};
    for (const QString& name : session.warehouses) files.append(session.Path(name, u"товар.usl"));
    return files;
  }

  QTemporaryDir directory;
  DataDir data;
  Session session;
};

void ReadLines(benchmark::State& state, const Books* books) {
  for (auto _ : state) {
    for (const QString& file : books->Files()) {
      benchmark::DoNotOptimize(PlainlyReadFile(books->data.Resolve(file).toStdString(), true));
    }
  }
}

void Load(benchmark::State& state, const Books* books, GoodsView view) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        LoadOnHand(books->data, books->session, books->session.warehouses, view));
  }
}

void Register(const std::string& name, const Books* books) {
  for (const auto& [view, suffix] : {std::pair(GoodsView::kGroups, ", groups"),
                                     std::pair(GoodsView::kGoodsOnly, ", goods only")}) {
    const std::string full = name + suffix;
    benchmark::RegisterBenchmark((full + "/ours").c_str(), Load, books, view)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((full + "/baseline lines found").c_str(), ReadLines, books)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  benchmark::Initialize(&argc, argv);
  const Books alike(false);
  const Books shuffled(true);
  Register("on hand", &alike);
  Register("on hand, shuffled", &shuffled);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
