// make_corpus DIRECTORY writes a first file for each fuzzer, by the program's own writers, so that
// the fuzzers begin with well-formed ones.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

#include "books/copies/Archive.h"
#include "books/copies/CopyNote.h"
#include "books/store/SaveManifest.h"
#include "formats/CurrencyFile.h"
#include "formats/DescriptorFile.h"
#include "formats/DocumentFile.h"
#include "formats/GoodsFile.h"
#include "formats/LedgerFile.h"
#include "formats/OwnRecords.h"
#include "formats/PartyFile.h"
#include "formats/PriceFile.h"
#include "formats/TaxRatesFile.h"
#include "formats/TextLines.h"

using namespace kladez;
using namespace Qt::StringLiterals;

namespace {

struct Seed {
  const char* target;
  QByteArray bytes;
};

Document SampleDocument(const QString& destination) {
  return {{u"7"_s, u"05.03.2026"_s, u"ООО «Рога и копыта»"_s, destination, u"180.00"_s, u"5"_s,
           u"171.00"_s, u"да"_s},
          {{u"Чай чёрный, 100 г"_s, u"2"_s, u"пач."_s, u"45.00"_s, u"60.00"_s, u"57.00"_s},
           {u"Кофе"_s, u"0.5"_s, u"кг"_s, u"100.00"_s, u"120.00"_s, u"114.00"_s}}};
}

Party SampleParty(int lines) {
  Party party(lines, u"-"_s);
  party.first() = u"Ваша фирма"_s;
  return party;
}

OwnRecords SampleRecords() {
  OwnRecords records;
  records.Set(u"Рога и копыта"_s, u"Цены"_s, u"Опт"_s);
  records.Set(u"Рога и копыта"_s, u"Скидка, %"_s, u"5"_s);
  records.Set(u"Чай чёрный"_s, u"Штрихкод"_s, u"4601234567893"_s);
  return records;
}

QByteArray SampleArchive() {
  const QTemporaryDir directory;
  const QByteArray file = QFile::encodeName(QDir(directory.path()).canonicalPath() + u"/a"_s);
  ArchiveWriter writer(file);
  writer.AddFile("0001.us", 0, WriteDescriptor({u"0001\\"_s, u"Магазин"_s}));
  writer.AddDirectory("0001", 0);
  writer.AddFile("0001/marked", 0, {});
  writer.Finish([](quint64 sum) {
    const QDateTime time(QDate(2026, 11, 23), QTime(9, 0));
    return NoteFrame({.base = u"0001"_s, .name = {}, .time = time, .why = {}, .sum = sum});
  });
  return ArchiveBytes(file);
}

std::vector<Seed> Seeds() {
  using Kind = SaveSet::Kind;
  const std::vector<SaveSet::Change> changes = {
      {Kind::kWrite, "/d/0001.us", {}, true, {}},
      {Kind::kRename, "/d/0001/A", "/d/0001/B", false, {}},
      {Kind::kDeleteTree, "/d/0002", {}, false, {}},
  };
  return {
      {"lines", EncodeLines({u"Ёлка"_s, u""_s, u" группа"_s, u"№ 1"_s})},
      {"goods", WriteGoods({{u" Чай"_s, {}, {}, {}, {}},
                            {u"Чай чёрный"_s, u"Индия"_s, u"10702030"_s, u"пач."_s, u"45.00"_s}})},
      {"prices", WritePrices({{u" Чай"_s, {}, {}, {}},
                              {u"Чай чёрный"_s, u"пач."_s, u"45.00"_s, u"60.00"_s}})},
      {"ledger", WriteLedger({{u"Чай"_s, u"120"_s, u"пач."_s}, {u"Чай"_s, u"- 5"_s, u"пач."_s}})},
      {"firms", WriteParties({SampleParty(15), SampleParty(15)})},
      {"partners", WriteParties({SampleParty(14), SampleParty(14)})},
      {"receipts", WriteDocument(DocumentKind::kReceipt, SampleDocument({}))},
      {"shipments", WriteDocument(DocumentKind::kShipment, SampleDocument({}))},
      {"transfers", WriteDocument(DocumentKind::kTransfer, SampleDocument(u"Лавка"_s))},
      {"currency", WriteCurrency(RoubleCurrency())},
      {"taxrates", WriteTaxRates({u"20"_s, u"5"_s})},
      {"ownrecords", WriteOwnRecords(SampleRecords())},
      {"sheets",
       u"Товар;Ед.;Цена, руб.;Штрихкод\r\nЧай;пач.;1 046,50;4601234567893\r\n"_s.toUtf8() +
           u"\"Кофе; 100 г\";;7;\r\n"_s.toUtf8()},
      {"descriptor", WriteDescriptor({u"0001\\"_s, u"Магазин"_s})},
      {"backup", WriteBackupIndex({{u"0001.us"_s, {u"0001\\"_s, u"Магазин"_s}}})},
      {"archive", SampleArchive()},
      {"check", WriteDocument(DocumentKind::kShipment, SampleDocument({})).replace("\r\n", "\n")},
      {"settings", QByteArray("[Kladez4]\nMain\\basename=\"0001\\\\\"\nOptions\\Tip=1\n")},
      {"manifest", ManifestBytes("k.", changes, "/d")},
      {"paths", QByteArray("0001\\spr\\firma.spr")},
      {"numbers", QByteArray("- 1 234,50e-2")},
      {"dates", QByteArray("05.03.2026 ")},
      {"names", EncodeText(u"Ёлкаелка")},
      {"words", QByteArray("1234.50")},
  };
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: make_corpus DIRECTORY\n", stderr);
    return 2;
  }
  const QDir directory(QString::fromLocal8Bit(argv[1]));
  for (const Seed& seed : Seeds()) {
    const QString target = QString::fromLatin1(seed.target);
    QFile file(directory.filePath(target + u"/seed"_s));
    if (!directory.mkpath(target) || !file.open(QIODevice::WriteOnly)) {
      std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
      return 1;
    }
    file.write(seed.bytes);
  }
  return 0;
}
