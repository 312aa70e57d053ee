#include "Targets.h"

#include <QTemporaryDir>
#include <cmath>
#include <stdexcept>

#include "books/check/DocumentCheck.h"
#include "books/copies/Archive.h"
#include "books/copies/CopyNote.h"
#include "books/directories/GoodsOrder.h"
#include "books/prices/BringPlanner.h"
#include "books/printing/AmountInWords.h"
#include "books/stock/DocumentScan.h"
#include "books/stock/StockLedger.h"
#include "books/store/Errors.h"
#include "books/store/SaveManifest.h"
#include "formats/CurrencyFile.h"
#include "formats/Dates.h"
#include "formats/DescriptorFile.h"
#include "formats/GoodsFile.h"
#include "formats/GoodsRows.h"
#include "formats/IniFile.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/OwnRecords.h"
#include "formats/PartyFile.h"
#include "formats/PriceFile.h"
#include "formats/TaxRatesFile.h"
#include "formats/TextLines.h"
#include "formats/tables/Sheet.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

void Require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

// What a reader makes of any bytes, its writer writes in a form that is read as the same.
template <typename Read, typename Write>
void RequireStable(QByteArrayView bytes, const Read& read, const Write& write) {
  const auto records = read(bytes);
  Require(read(write(records)) == records, "what was read is written and read as the same");
}

void Lines(QByteArrayView bytes) {
  RequireStable(bytes, DecodeLines, EncodeLines);
  const bool whole = bytes.isEmpty() || bytes.endsWith("\r\n");
  Require(!whole || EncodeLines(DecodeLines(bytes)) == bytes, "no byte of a whole file is lost");
}

void Goods(QByteArrayView bytes) {
  RequireStable(bytes, ReadGoods, WriteGoods);
  const std::vector<GoodsRecord> records = ReadGoods(bytes);
  const GoodsRows rows(bytes.toByteArray());
  Require(rows.Records() == records, "a row taken apart is the record");
  Require(rows.Bytes() == WriteGoods(records), "rows are written as their records are");
  std::vector<GoodsRecord> goods = SortedByName(records);
  std::erase_if(goods, [](const GoodsRecord& record) { return record.IsGroup(); });
  Require(GoodsRows::ByName(bytes.toByteArray()).Records() == goods, "both ways to sort agree");
}

void Prices(QByteArrayView bytes) { RequireStable(bytes, ReadPrices, WritePrices); }

void Ledger(QByteArrayView bytes) {
  RequireStable(bytes, ReadLedger, WriteLedger);
  const std::vector<LedgerRecord> records = ReadLedger(bytes);
  StockLedger ledger(bytes.toByteArray());
  ledger.Post(Posting::kReceive, records);
  ledger.Post(Posting::kIssue, records);
  Require(DecodeLines(ledger.Bytes()).size() >= DecodeLines(bytes).size(),
          "a posting loses no line");
}

template <PartyKind kind>
void Parties(QByteArrayView bytes) {
  const auto read = [](QByteArrayView view) { return ReadParties(kind, view); };
  RequireStable(bytes, read, WriteParties);
}

template <DocumentKind kind>
void Documents(QByteArrayView bytes) {
  const auto write = [](const Document& document) { return WriteDocument(kind, document); };
  // Each reading cuts one blank after the date, and a damaged file may have more of them.
  const auto read = [](QByteArrayView view) {
    Document document = ReadDocument(kind, view);
    while (document.head.date.endsWith(u' ')) document.head.date.chop(1);
    return document;
  };
  RequireStable(bytes, read, write);
  const Document whole = ReadDocument(kind, bytes);
  Require(ReadDocumentHead(kind, bytes) == whole.head, "the head alone is the document's head");
  const QString file = u"0001"_s;
  ScannedDocument scanned(FormatOf(kind), file, bytes);
  size_t lines = 0;
  for (; scanned.NextLine(); ++lines) {
    Require(lines < whole.lines.size() &&
                DecodeText(scanned.Line(&DocumentLine::name)) == whole.lines[lines].name,
            "the scanner sees the lines that the reader reads");
  }
  Require(lines + (scanned.IsCut() ? 1 : 0) >= whole.lines.size(), "the scanner misses no line");
}

// What a check tells of a document lies in it, and whole line ends leave nothing to tell of ends.
void Checks(QByteArrayView bytes) {
  StrictLines lines;
  FindingList findings;
  lines.Read({}, bytes, findings);
  LineWriter whole;
  for (const QByteArrayView line : lines.Lines()) whole.AddRaw(line);
  const QByteArray mended = whole.Take();
  StrictLines again;
  FindingList rest;
  again.Read({}, mended, rest);
  Require(again.Lines() == lines.Lines(), "mended lines are the same lines");
  for (const Finding& finding : rest.Take()) {
    Require(finding.repair != Repair::kLineEnds, "mended line ends need no repair");
  }
  for (const auto kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    DirectoryNames names;
    names.warehouses = {u"Склад"_s};
    names.goods.Add("x");
    StockCheck stock(names.warehouses, names.goods);
    DocumentCheck check(kind, u"d"_s, kind == DocumentKind::kTransfer ? -1 : 0, names, stock,
                        findings);
    check.Add(u"0001"_s + FormatOf(kind).extension, bytes);
    check.Finish();
    stock.Tell(findings);
    names.goods.TellUnknown(u"Товара"_s, findings);
  }
  for (const Finding& finding : findings.Take()) {
    Require(finding.line >= 0 && finding.line <= static_cast<int>(lines.Lines().size()),
            "a finding lies in the file");
  }
}

void Currencies(QByteArrayView bytes) { RequireStable(bytes, ReadCurrency, WriteCurrency); }

void TaxRateFiles(QByteArrayView bytes) {
  const auto rates = ReadTaxRates(bytes);
  Require(!rates || ReadTaxRates(WriteTaxRates(*rates)) == rates,
          "rates that were read are written and read as the same");
}

void OwnRecordFiles(QByteArrayView bytes) {
  const auto records = ReadOwnRecords(bytes);
  if (!records) return;
  const QByteArray written = WriteOwnRecords(*records);
  Require(ReadOwnRecords(written) == records, "own records are written and read as the same");
  Require(!ReadOwnRecords(QByteArrayView(written).chopped(1)),
          "own records that are cut are known");
}

// Whatever stands in a foreign table, what is taken of it can be written and read again.
void Sheets(QByteArrayView bytes) {
  const Sheet sheet = ReadSheet(DecodeSheet(bytes));
  const std::vector<GoodsRecord> goods = {{u" Чай"_s, {}, {}, {}, {}},
                                          {u"Чай"_s, {}, {}, u"пач."_s, u"45.00"_s}};
  const OwnRecords extras;
  const PriceList prices;
  BringChoice choice;
  choice.layout = GuessLayout(sheet, PlainPrice::kPurchase);
  for (const BroughtRow& row : BringPlanner(goods, extras, prices, choice).Plan(sheet).rows) {
    if (row.fate == Fate::kRefused) continue;
    const bool lost =
        row.fate != Fate::kHeading && ReadGoods(WriteGoods({row.goods})) != std::vector{row.goods};
    Require(!lost, "what a table brings is written and read as the same");
    Require(BarcodeFault(row.extras.barcode).isEmpty(), "no false barcode is taken");
  }
}

void Descriptors(QByteArrayView bytes) { RequireStable(bytes, ReadDescriptor, WriteDescriptor); }

void Backups(QByteArrayView bytes) { RequireStable(bytes, ReadBackupIndex, WriteBackupIndex); }

void Manifests(QByteArrayView bytes) {
  const QByteArray root = "/root";
  const auto manifest = ParseManifest(bytes.toByteArray(), root);
  if (!manifest) return;
  Require(!manifest->key.contains('/'), "the key of staged files leads nowhere");
  for (const SaveSet::Change& change : manifest->changes) {
    for (const QByteArray& path : {change.path, change.to}) {
      Require(path.isEmpty() || (path.startsWith("/root/") && !path.contains("/../")),
              "a manifest names paths inside the data directory only");
    }
  }
  const QByteArray key = manifest->key.isEmpty() ? QByteArray("k.") : manifest->key;
  const auto again = ParseManifest(ManifestBytes(key, manifest->changes, root), root);
  Require(again && again->changes.size() == manifest->changes.size(),
          "a manifest is read as it was written");
}

void Paths(QByteArrayView bytes) {
  static const QTemporaryDir directory;
  static const DataDir data(directory.path());
  IgnoreErrors([&] {
    const QString path = data.Resolve(QString::fromUtf8(bytes));
    Require(path.startsWith(data.Root() + u'/') && !path.endsWith(u"/.."_s) &&
                !path.contains(u"/../"_s) && !path.contains(QChar(0)),
            "no path leads out of the data directory");
  });
}

void CheckPictures(double value) {
  const QString general = GeneralText(value);
  const auto read = ParseStrict(general);
  Require(read && std::fabs(*read - value) <= std::fabs(value) * 1e-14, "a number is read again");
  const QString money = FormatMoney(value);
  Require(ParseStrict(money).has_value(), "money is a number");
  Require(ParseStrict(money) == ParseStrict(FormatGrouped(value)), "grouping changes no number");
  Require(FormatMoney(RoundMoney(value)) == money, "rounding twice is rounding once");
  Require(money != u"-0.00"_s, "zero has no sign");
}

void Numbers(QByteArrayView bytes) {
  const QString text = QString::fromLatin1(bytes);
  Require(ParseStrict(bytes) == ParseStrict(text), "bytes and text are one number");
  Require(NumberOr(bytes, 7) == NumberOr(text, 7), "bytes and text are one number, or none");
  const QString number = ToNumberOr(text);
  Require(ParseStrict(number).has_value(), "ToNumberOr gives a number");
  Require(*ParseStrict(number) == NumberOr(text), "NumberOr is ToNumberOr as a number");
  Require(std::isfinite(ParseLenient(text)), "the lenient parse always gives a number");
  CheckPictures(ParseLenient(text));
  if (bytes.size() >= 8) {
    double value;
    std::memcpy(&value, bytes.data(), sizeof value);
    if (std::isfinite(value) && std::fabs(value) < 1e300) CheckPictures(value);
  }
}

// A value comes back as it was written, whatever else stands in the file.
void Settings(QByteArrayView bytes) {
  RequireStable(
      bytes, [](QByteArrayView file) { return ReadIni(file.toByteArray()); }, WriteIni);
  IniLines lines = ReadIni(bytes.toByteArray());
  const QString section = u"Kladez4"_s, key = u"Main\\basename"_s;
  IniText(lines, section, key);
  const QString text = DecodeText(bytes.first(std::min<qsizetype>(bytes.size(), 200)));
  SetIniText(lines, section, key, text);
  Require(IniText(ReadIni(WriteIni(lines)), section, key) == text, "a value is kept");
}

// Whatever an archive claims, nothing but plain names below its directory comes out of it, and no
// more than the limits say.
void Archives(QByteArrayView bytes) {
  constexpr ArchiveLimits kLimits{.bytes = 1 << 20, .files = 1000};
  qsizetype size = 0, files = 0;
  IgnoreErrors([&] {
    ReadArchive(
        bytes, "a",
        [&](const ArchivedFile& file) {
          size += file.bytes.size();
          Require(++files <= kLimits.files && size <= kLimits.bytes, "the limits hold");
          const QByteArray path = '/' + file.name + '/';
          Require(!path.contains("/../") && !path.contains("//"), "no name leads out");
          return true;
        },
        kLimits);
  });
  const auto note = ReadNote(bytes);
  Require(!note || ReadNote(NoteFrame(*note)), "a note is read as it was written");
}

void Dates(QByteArrayView bytes) {
  const QString text = DecodeText(bytes);
  const auto date = ParseDate(text);
  Require(date == ParseDate(bytes), "bytes and text are one date");
  Require(!date || ParseDate(DateText(*date)) == date, "a date is read as it was written");
}

void Names(QByteArrayView bytes) {
  const qsizetype half = bytes.size() / 2;
  const QString a = DecodeText(bytes.first(half));
  const QString b = DecodeText(bytes.sliced(half));
  Require(OrderKey(FoldCase(a)) == OrderKey(a), "letter case does not change the order");
  Require((OrderKey(a) == OrderKey(b)) == (FoldCase(a) == FoldCase(b)),
          "what differs has an order");
}

void Words(QByteArrayView bytes) {
  const QString amount = DecodeText(bytes);
  Require(!AmountInWords(amount, RoubleCurrency()).isEmpty(), "every amount has words");
  Require(!AmountInWords(amount, ReadCurrency(bytes)).isNull(), "in any currency");
}

constexpr FuzzTarget kTargets[] = {
    {"lines", Lines},
    {"goods", Goods},
    {"prices", Prices},
    {"ledger", Ledger},
    {"firms", Parties<PartyKind::kFirm>},
    {"partners", Parties<PartyKind::kClient>},
    {"receipts", Documents<DocumentKind::kReceipt>},
    {"shipments", Documents<DocumentKind::kShipment>},
    {"transfers", Documents<DocumentKind::kTransfer>},
    {"currency", Currencies},
    {"taxrates", TaxRateFiles},
    {"ownrecords", OwnRecordFiles},
    {"sheets", Sheets},
    {"descriptor", Descriptors},
    {"backup", Backups},
    {"archive", Archives},
    {"check", Checks},
    {"settings", Settings},
    {"manifest", Manifests},
    {"paths", Paths, false},
    {"numbers", Numbers, false},
    {"dates", Dates, false},
    {"names", Names, false},
    {"words", Words, false},
};

}  // namespace

std::span<const FuzzTarget> FuzzTargets() { return kTargets; }

}  // namespace kladez
