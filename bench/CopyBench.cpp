// A copy of a Database of ten years, 100,000 shipments of five lines that agree in nothing: prints
// the seconds (of the clock, of the processor) and the size of a copy made of it, once with the
// files in memory and once with their data out of it.
//
//   copy_bench [shipments]
#include <sys/resource.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <array>
#include <cstdio>
#include <random>
#include <stdexcept>

#include "PlainReading.h"
#include "books/copies/CopyFolder.h"
#include "books/copies/CopyJob.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"
#include "formats/TextLines.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

constexpr int kDays = 3650;
constexpr int kGoods = 2'000;
constexpr int kClients = 300;
constexpr std::array<const char*, 10> kWords = {"Чай чёрный", "Мыло", "Соль",  "Гвозди",  "Краска",
                                                "Сахар",      "Мука", "Крупа", "Порошок", "Бумага"};

class Books {
 public:
  explicit Books(int count) {
    QDir().mkpath(Folder());
    Put(directory_.path() + u"/0001.us"_s, "1\r\n");
    for (int i = 0; i < count; ++i) {
      Put(Folder() + u"/%1.uhd"_s.arg(i + 1, 6, 10, QChar(u'0')),
          Shipment(i, QDate(2016, 11, 24).addDays(qint64{i} * kDays / count)));
    }
  }

  QByteArray Root() const { return QFile::encodeName(directory_.path()); }
  QString Folder() const { return directory_.path() + u"/0001/Склад/UHD"_s; }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  QByteArray Shipment(int i, QDate day) {
    LineWriter file;
    double sum = 0;
    QStringList lines;
    for (int line = 0; line < 5; ++line) {
      const int item = Below(kGoods);
      const int quantity = 1 + Below(50);
      const double price = 10 + Below(100'000) / 100.0;
      sum += quantity * price;
      lines << QString::fromUtf8(kWords[item % kWords.size()]) + u" № "_s + QString::number(item)
            << QString::number(quantity) << u"шт."_s << FormatMoney(price * 0.7)
            << FormatMoney(price) << FormatMoney(price);
    }
    for (const QString& line :
         {QString::number(i + 1), DateText(day), u"ООО «Клиент %1»"_s.arg(Below(kClients)),
          FormatMoney(sum), u"0"_s, FormatMoney(sum), u"да"_s}) {
      file.Add(line);
    }
    for (const QString& line : lines) file.Add(line);
    return file.Take();
  }

  static void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
      throw std::runtime_error("no room for the shipments");
    }
  }

  QTemporaryDir directory_;
  std::mt19937 random_{20261124};
};

double ProcessorSeconds() {
  struct rusage usage;
  ::getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1e6; };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void Measure(const char* what, const Books& books) {
  QTemporaryDir folder;
  CopyNote note;
  note.base = u"0001"_s;
  note.time = QDateTime(QDate(2026, 11, 24), QTime(9, 0));
  const double before = ProcessorSeconds();
  QElapsedTimer clock;
  clock.start();
  CopyJob job({books.Root(),
               "0001",
               "0001.us",
               QFile::encodeName(folder.path()),
               {},
               qint64{1} << 30,
               note});
  job.Wait();
  const double elapsed = static_cast<double>(clock.elapsed()) / 1000;
  const auto copies = ListCopies(QFile::encodeName(folder.path()));
  const qint64 size = QFileInfo(QFile::decodeName(copies.at(0).file)).size();
  std::printf("%s: %.2f s, %.2f s of the processor, %.2f MB\n", what, elapsed,
              ProcessorSeconds() - before, static_cast<double>(size) / 1e6);
}

}  // namespace
}  // namespace kladez

int main(int argc, char** argv) {
  using namespace kladez;
  const Books books(argc > 1 ? std::atoi(argv[1]) : 100'000);
  Measure("in memory", books);
  ForgetFiles(books.Folder().toStdString());
  Measure("from the disk", books);
}
