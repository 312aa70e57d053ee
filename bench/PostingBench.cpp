// Closing a receipt of 50 lines over a ledger of 50,000 records, from opening the document to the
// last sync of its save, against reading the ledger, splitting it into lines and writing it back
// durably. Prints the ratio.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <random>

#include "RatioReporter.h"
#include "books/stock/DocumentDraft.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kRecords = 50'000;
constexpr int kLines = 50;

QString GoodsName(int i) { return u"Чай чёрный байховый № %1, 100 г"_s.arg(i); }

struct Books {
  Books() : data(directory.path()) {
    session.base_path = u"0001\\"_s;
    session.warehouses = {u"Склад"_s};
    QDir().mkpath(directory.path() + u"/0001/Склад/PRH"_s);
    LineWriter ledger;
    for (int i = 0; i < kRecords; ++i) {
      ledger.Add(GoodsName(i));
      ledger.Add(QString::number(i % 900));
      ledger.Add(u"пач."_s);
    }
    Put(u"0001\\Склад\\товар.usl"_s, ledger.Take());

    Document document;
    document.head.number = u"1"_s;
    document.head.date = u"22.11.2026"_s;
    document.head.party = u"-"_s;
    document.head.sum = u"100.00"_s;
    document.head.closed = u"нет"_s;
    std::mt19937 random(1);
    for (int i = 0; i < kLines; ++i) {
      // One in ten is new to the warehouse.
      const int item = static_cast<int>(random() % (kRecords + kRecords / 10));
      document.lines.push_back({GoodsName(item), u"2"_s, u"пач."_s, {}, u"45.00"_s, {}});
    }
    row = {.file = u"0001.prh"_s, .head = document.head};
    open_document = WriteDocument(DocumentKind::kReceipt, document);
  }

  void Put(const QString& path, const QByteArray& bytes) const {
    QFile file(data.Resolve(path));
    if (!file.open(QIODevice::WriteOnly)) qFatal("no room for the books");
    file.write(bytes);
  }

  QTemporaryDir directory;
  DataDir data;
  Session session;
  RegisterRow row;
  QByteArray open_document;
};

const Books& TheBooks() {
  static const Books books;
  return books;
}

void CloseReceipt(benchmark::State& state) {
  const Books& books = TheBooks();
  for (auto _ : state) {
    state.PauseTiming();
    books.Put(u"0001\\Склад\\PRH\\0001.prh"_s, books.open_document);
    state.ResumeTiming();
    DocumentDraft draft = DocumentDraft::Open(
        {books.data, books.session, DocumentKind::kReceipt, u"Склад"_s}, books.row);
    draft.SetClosed(true);
    draft.Save();
  }
}

void RewritePlainly(benchmark::State& state) {
  const QByteArray path = QFile::encodeName(TheBooks().data.Resolve(u"0001\\Склад\\товар.usl"_s));
  const QByteArray directory = path.first(path.lastIndexOf('/'));
  for (auto _ : state) {
    QByteArray bytes;
    {
      const int fd = ::open(path.constData(), O_RDONLY);
      struct stat status;
      ::fstat(fd, &status);
      bytes.resize(status.st_size);
      bytes.resize(std::max<ssize_t>(0, ::read(fd, bytes.data(), bytes.size())));
      ::close(fd);
    }
    std::vector<QByteArrayView> lines;
    for (LineReader reader(bytes); !reader.AtEnd();) lines.push_back(reader.NextRaw());
    QByteArray out;
    out.reserve(bytes.size());
    for (const QByteArrayView line : lines) out.append(line).append("\r\n");
    const QByteArray scratch = path + ".tmp";
    const int fd = ::open(scratch.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (::write(fd, out.constData(), out.size()) != out.size()) qFatal("no room for the ledger");
    ::fsync(fd);
    ::close(fd);
    ::rename(scratch.constData(), path.constData());
    const int parent = ::open(directory.constData(), O_RDONLY | O_DIRECTORY);
    ::fsync(parent);
    ::close(parent);
  }
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  benchmark::Initialize(&argc, argv);
  const auto add = [](const char* name, void (*measure)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name, measure)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Repetitions(5)
        ->ReportAggregatesOnly();
  };
  add("closing a receipt/ours", CloseReceipt);
  add("closing a receipt/baseline plain rewriting", RewritePlainly);
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
