// A register of 20,000 documents, from the listing of its directory to the rows of its model,
// against a plain program that lists, opens, reads and closes the same files. Prints the ratios.
#include <QDir>
#include <QTemporaryDir>
#include <string>

#include "PlainReading.h"
#include "RatioReporter.h"
#include "books/stock/DocumentRegister.h"
#include "books/stock/DocumentScan.h"
#include "books/stock/RegisterView.h"
#include "books/store/Catalogue.h"
#include "formats/Numbers.h"
#include "ui/controls/RecordModel.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kDocuments = 20'000;
constexpr int kLines = 6;

// Shipments over two years, so that a filter of one year keeps half of them.
struct Books {
  Books() : data(directory.path()) {
    session.base_path = u"0001\\"_s;
    session.warehouses = {u"Склад"_s};
    QDir().mkpath(directory.path() + u"/0001/Склад/UHD"_s);
    for (int i = 0; i < kDocuments; ++i) {
      Document document;
      const QDate date = QDate(2025, 1, 1).addDays(i * 730 / kDocuments);
      document.head = {.number = QString::number(i + 1),
                       .date = date.toString(u"dd.MM.yyyy"_s),
                       .party = u"Общество с ограниченной ответственностью № %1"_s.arg(i % 90),
                       .destination = {},
                       .sum = u"1200.50"_s,
                       .discount = u"5"_s,
                       .net_sum = u"1140.48"_s,
                       .closed = u"да"_s};
      for (int line = 0; line < kLines; ++line) {
        document.lines.push_back({u"Чай чёрный байховый № %1"_s.arg(line), u"3"_s, u"пач."_s,
                                  u"45.50"_s, u"60.00"_s, u"57.00"_s});
      }
      QFile file(directory.path() + u"/0001/Склад/UHD/"_s + NumberedName(i + 1) + u".uhd"_s);
      if (!file.open(QIODevice::WriteOnly)) qFatal("no room for the documents");
      file.write(WriteDocument(DocumentKind::kShipment, document));
    }
  }

  QTemporaryDir directory;
  DataDir data;
  Session session;
};

const Books& TheBooks() {
  static const Books books;
  return books;
}

void ReadPlainly(benchmark::State& state) {
  const std::string directory = TheBooks().data.Resolve(u"0001\\Склад\\UHD"_s).toStdString();
  for (auto _ : state) benchmark::DoNotOptimize(PlainlyRead(directory));
}

void ScanLines(benchmark::State& state) {
  const Books& books = TheBooks();
  for (auto _ : state) {
    double total = 0;
    ScanDocuments(books.data, DocumentKind::kShipment, u"0001\\Склад\\UHD"_s, Unreadable::kStop,
                  [&](ScannedDocument& document) {
                    if (!document.Date()) return true;
                    while (document.NextLine()) {
                      total += NumberOr(document.Line(&DocumentLine::quantity)) *
                               NumberOr(document.Line(&DocumentLine::net_price));
                    }
                    return true;
                  });
    benchmark::DoNotOptimize(total);
  }
}

void ShowRegister(benchmark::State& state, const QString& year) {
  const Books& books = TheBooks();
  const RegisterFilter filter{.period = RegisterFilter::Period::kYear, .year = year};
  DocumentRegister rows(books.data, books.session, DocumentKind::kShipment);
  RegisterView view(DocumentKind::kShipment, rows.Rows());
  RowSource source;
  source.count = [&] { return view.Count(); };
  source.text = [&](int row, int) { return view.Row(row).head.net_sum; };
  RecordModel model({{u"Сумма"_s, 1400}}, source);
  for (auto _ : state) {
    rows.Load(u"Склад"_s, filter, QDate(2026, 11, 22), true);
    view.TakeRows();
    model.Reset();
    benchmark::DoNotOptimize(model.rowCount());
    benchmark::DoNotOptimize(view.StatusText());
  }
}

template <typename... Arguments>
void Compare(const std::string& name, Arguments... arguments) {
  const auto add = [](benchmark::internal::Benchmark* one) {
    one->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ReportAggregatesOnly();
  };
  add(benchmark::RegisterBenchmark((name + "/ours").c_str(), arguments...));
  add(benchmark::RegisterBenchmark((name + "/baseline plain reading").c_str(), ReadPlainly));
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  using namespace Qt::StringLiterals;
  benchmark::Initialize(&argc, argv);
  Compare("lines of all documents", ScanLines);
  Compare("register of one year", ShowRegister, u"2026"_s);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
