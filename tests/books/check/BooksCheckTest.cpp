#include "TempData.h"
#include "books/check/BooksCheck.h"
#include "books/check/Repairs.h"
#include "books/check/StrictLines.h"
#include "books/store/Catalogue.h"

namespace kladez {
namespace {

const QString kShop = u"Главный склад"_s;

// Sound books: two goods, a supplier, a client, a document of each kind.
class BooksCheckTest : public testing::Test {
 protected:
  BooksCheckTest() {
    session_.chosen_base = CreateDatabase(temp_.Data(), u"Лавка"_s);
    SaveSet save(temp_.Data());
    AddNewWarehouse(save, u"0001\\Подвал"_s);
    save.Commit();
    Lines(u"склад.usd", {kShop, u"Подвал"_s});
    Lines(u"SPR\\товар.spr", u" Бакалея|Чай|Индия||пач.|45.00|Соль|||кг|10"_lines);
    Lines(u"SPR\\post.spr", QStringList{u"ООО Заря"_s} + QStringList(13));
    Lines(u"SPR\\klient.spr", QStringList{u"ИП Петров"_s} + QStringList(13));
    Lines(u"Главный склад\\PRH\\0001.prh", Receipt());
    Lines(u"Главный склад\\UHD\\0001.uhd",
          u"1|02.03.2026|ИП Петров|120.00|10|108.00|да|Чай|2|пач.|45.00|60.00|54.00"_lines);
    Lines(u"ВНПЕР\\0001.vpr", {u"1"_s, u"03.03.2026"_s, kShop, u"Подвал"_s, u"60.00"_s, u"Чай"_s,
                               u"1"_s, u"пач."_s, u"45.00"_s, u"60.00"_s});
    Lines(u"Главный склад\\товар.usl", u"Чай|7.00|пач.|Соль|5|кг"_lines);
    Lines(u"Подвал\\товар.usl", u"Чай|1|пач."_lines);
    EXPECT_TRUE(OpenDatabase(session_, temp_.Data()));
  }

  static QStringList Receipt() {
    return u"1|01.03.2026|ООО Заря|450.00|да|Чай|10|пач.|45.00"_lines;
  }

  void Lines(QStringView file, const QStringList& lines) {
    temp_.PutLines(u"0001\\" + file, lines);
  }
  CheckResult Check() { return CheckBooks(temp_.Data(), u"0001\\"_s); }

  TempData temp_;
  Session session_;
};

TEST_F(BooksCheckTest, SoundBooksHaveNoFindings) {
  const CheckResult result = Check();
  for (const Finding& finding : result.findings) {
    ADD_FAILURE() << PlaceText(finding).toStdString() << ": " << finding.text.toStdString();
  }
  EXPECT_EQ(result.documents, 3);
  ASSERT_EQ(result.stock.size(), 3u);
  const StockComparison& tea = result.stock[0];
  EXPECT_EQ(tea.name, u"Чай"_s);
  EXPECT_EQ((std::vector{tea.receipts, tea.shipments, tea.transfers, tea.on_hand, tea.Opening(),
                         tea.Difference()}),
            (std::vector<double>{10, 2, -1, 7, 0, 0}));
  EXPECT_EQ(result.stock[1].Opening(), 5);  // salt was entered without a document
}

struct Fault {
  const char* what;
  std::function<void(BooksCheckTest&, const TempData&)> make;
  const char* file;
  int line;
  const char* told;  // a part of the text
  Repair repair = Repair::kNone;
};

auto PutLine(const char* file, int line, const char* text) {
  return [=](BooksCheckTest&, const TempData& temp) {
    const QString path = u"0001\\"_s + QString::fromUtf8(file);
    QStringList lines = temp.Lines(path);
    while (lines.size() < line) lines.append(QString());
    lines[line - 1] = QString::fromUtf8(text);
    temp.PutLines(path, lines);
  };
}

auto PutBytes(const char* file, const QByteArray& bytes) {
  return [=](BooksCheckTest&, const TempData& temp) {
    temp.Put(u"0001\\"_s + QString::fromUtf8(file), bytes);
  };
}

auto Cut(const char* file, int lines) {
  return [=](BooksCheckTest&, const TempData& temp) {
    const QString path = u"0001\\"_s + QString::fromUtf8(file);
    temp.PutLines(path, temp.Lines(path).mid(0, lines));
  };
}

auto PutLongLine() {
  static const std::string line(1001, 'x');
  return PutLine("Главный склад\\PRH\\0001.prh", 8, line.c_str());
}

constexpr char kReceiptFile[] = "Главный склад\\PRH\\0001.prh";
constexpr char kShipmentFile[] = "Главный склад\\UHD\\0001.uhd";
constexpr char kTransferFile[] = "ВНПЕР\\0001.vpr";
constexpr char kLedgerFile[] = "Главный склад\\товар.usl";
constexpr char kGoodsFile[] = "SPR\\товар.spr";
constexpr char kPriceFile[] = "Подвал\\PRICE\\0002.prc";

const std::vector<Fault>& Faults() {
  const auto in_1251 = [](const char* text) { return EncodeText(QString::fromUtf8(text)); };
  static const std::vector<Fault> faults = {
      {"cut head", Cut(kReceiptFile, 3), kReceiptFile, 0, "обрезан"},
      {"cut line", Cut(kReceiptFile, 7), kReceiptFile, 6, "обрезана"},
      {"cut goods", Cut(kGoodsFile, 9), kGoodsFile, 7, "Запись «Соль» обрезана"},
      {"cut party", Cut("SPR\\klient.spr", 13), "SPR\\klient.spr", 1, "обрезана"},
      {"date", PutLine(kShipmentFile, 2, "31.02.2026"), kShipmentFile, 2, "Дата «31.02.2026»"},
      {"number", PutLine(kReceiptFile, 7, "десять"), kReceiptFile, 7, "Количество «десять»"},
      {"price", PutLine(kGoodsFile, 6, ""), kGoodsFile, 6, "Цена «»"},
      {"ledger", PutLine(kLedgerFile, 2, "7.0.0"), kLedgerFile, 2, "Количество «7.0.0»"},
      {"flag", PutLine(kReceiptFile, 5, "Да"), kReceiptFile, 5, "стоит «Да»"},
      {"long line", PutLongLine(), kReceiptFile, 8, "длиннее 1000"},
      {"no character", PutBytes("marked", "\x98\r\n"), "marked", 1, "нет в кодировке"},
      {"UTF-8", PutBytes("marked", "Чай\r\n"), "marked", 0, "UTF-8", Repair::kEncoding},
      {"LF", PutBytes(kPriceFile, in_1251("Чай\nпач.\n45\n60\n")), kPriceFile, 1,
       "чужим концом (не CR LF): 4", Repair::kLineEnds},
      {"CR", PutBytes(kPriceFile, in_1251("Чай\rпач.\r\n45\r\n60\r\n")), kPriceFile, 1,
       "чужим концом (не CR LF): 1", Repair::kLineEnds},
      {"no end", PutBytes("marked", in_1251("Чай")), "marked", 0, "не закончена",
       Repair::kLineEnds},
      {"empty end", PutBytes("склад.usd", in_1251("Главный склад\r\nПодвал\r\n\r\n")), "склад.usd",
       3, "пустые строки", Repair::kEmptyEnd},
      {"goods twice", PutLine(kGoodsFile, 7, "Чай"), kGoodsFile, 7, "не один раз"},
      {"warehouse twice", PutLine("склад.usd", 3, "Подвал"), "склад.usd", 3, "не один раз",
       Repair::kDoubleWarehouse},
      {"unknown goods", PutLine(kTransferFile, 6, "чаи"), kTransferFile, 6, "Похоже на «Чай»"},
      {"unknown client", PutLine(kShipmentFile, 3, "ИП Петровъ"), kShipmentFile, 3,
       "Клиента «ИП Петровъ» нет в справочнике. Похоже на «ИП Петров»"},
      {"unknown supplier", PutLine(kReceiptFile, 3, "Никто"), kReceiptFile, 3,
       "Поставщика «Никто» нет в справочнике."},
      {"unknown warehouse", PutLine(kTransferFile, 4, "Чердак"), kTransferFile, 4,
       "Склада «Чердак» нет"},
      {"sum", PutLine(kReceiptFile, 4, "450.01"), kReceiptFile, 4, "450.01, а его строк — 450.00"},
      {"net sum", PutLine(kShipmentFile, 6, "120.00"), kShipmentFile, 6, "должно быть 108.00"},
      {"number twice",
       [](BooksCheckTest&, const TempData& temp) {
         temp.Put(u"0001\\Главный склад\\UHD\\0002.uhd"_s,
                  temp.Bytes(u"0001\\Главный склад\\UHD\\0001.uhd"_s));
       },
       "Главный склад\\UHD\\0002.uhd", 1, "Номер 1 в 2026 году уже стоит в документе 0001.uhd"},
      {"gap",
       [](BooksCheckTest&, const TempData& temp) {
         for (const QString& name : {u"0003"_s, u"0007"_s}) {
           temp.PutLines(u"0001\\Подвал\\PRH\\"_s + name + u".prh"_s,
                         {name, u"01.03.2026"_s, u"-"_s, u"0.00"_s, u"нет"_s});
         }
       },
       "Подвал\\PRH", 0, "0004–0006"},
      {"stray name",
       [](BooksCheckTest&, const TempData& temp) {
         temp.PutLines(u"0001\\ВНПЕР\\копия.vpr"_s,
                       {u"9"_s, u"01.03.2026"_s, kShop, u"Подвал"_s, u"0.00"_s});
       },
       "ВНПЕР\\копия.vpr", 0, "Имя файла не число"},
      {"less than the documents", PutLine(kLedgerFile, 2, "6.5"), kLedgerFile, 0,
       "должно быть 7 (приход 10, расход 2, перемещения -1), на складе 6.5: не хватает 0.5"},
      {"below zero", PutLine(kLedgerFile, 5, "- 5"), kLedgerFile, 0,
       "«Соль» на складе меньше нуля"},
      {"price without goods", PutBytes(kPriceFile, in_1251("Кофе\r\nпач.\r\n1\r\n2\r\n")),
       kPriceFile, 1, "Цена товара «Кофе»", Repair::kUnknownPrices},
      {"tick without goods", PutBytes("marked", in_1251("Кофе\r\nЧай\r\n")), "marked", 1,
       "Отмечен товар «Кофе»", Repair::kUnknownMarks},
      {"folder of no warehouse", PutBytes("Гараж\\товар.usl", {}), "Гараж", 0, "нет в списке",
       Repair::kListWarehouse},
      {"warehouse without folder", PutLine("склад.usd", 3, "Чердак"), "склад.usd", 3, "нет папки",
       Repair::kMakeWarehouse},
      {"currency", Cut("currency.usd", 7), "currency.usd", 0, "а есть 7"},
      {"no ledger",
       [](BooksCheckTest&, const TempData& temp) {
         QFile::remove(temp.Data().Resolve(u"0001\\Подвал\\товар.usl"_s));
       },
       "Подвал\\товар.usl", 0, "нет такого файла"},
      {"price files",
       [](BooksCheckTest&, const TempData& temp) {
         for (int list = 1; list <= 4; ++list) {
           QFile::remove(temp.Data().Resolve(u"0001\\Подвал\\PRICE\\000%1.prc"_s.arg(list)));
         }
       },
       "Подвал\\price.usd", 0, "файлов с ценами 1"},
  };
  return faults;
}

TEST_F(BooksCheckTest, EveryFaultIsNamedAtItsPlaceAndItsRepairMendsIt) {
  for (const Fault& fault : Faults()) {
    SCOPED_TRACE(fault.what);
    const auto before = temp_.Tree();
    fault.make(*this, temp_);
    const CheckResult result = Check();
    const QString file = QString::fromUtf8(fault.file);
    const auto named = [&](const Finding& finding) {
      return finding.file == file && finding.line == fault.line &&
             finding.text.contains(QString::fromUtf8(fault.told)) && finding.repair == fault.repair;
    };
    const auto found = std::find_if(result.findings.begin(), result.findings.end(), named);
    if (found == result.findings.end()) {
      ADD_FAILURE() << "not found";
      for (const Finding& finding : result.findings) {
        std::cerr << PlaceText(finding).toStdString() << ": " << finding.text.toStdString() << '\n';
      }
    } else if (fault.repair != Repair::kNone) {
      QString copied;
      EXPECT_TRUE(MakeRepair(temp_.Data(), session_, *found, [&](auto& base) { copied = base; }));
      EXPECT_EQ(copied, u"0001\\"_s);
      const CheckResult after = Check();
      EXPECT_EQ(std::count_if(after.findings.begin(), after.findings.end(), named), 0);
      EXPECT_FALSE(MakeRepair(temp_.Data(), session_, *found));
    }
    QDir(temp_.Root()).removeRecursively();
    for (const auto& [path, bytes] : before) {
      const QString at = temp_.Root() + u'/' + QString::fromStdString(path);
      QDir().mkpath(QFileInfo(at).path());
      if (path.ends_with('/')) continue;
      QFile whole(at);
      ASSERT_TRUE(whole.open(QIODevice::WriteOnly));
      whole.write(QByteArray::fromStdString(bytes));
    }
  }
}

TEST_F(BooksCheckTest, RepairsKeepWhatIsSound) {
  Lines(u"marked", u"Соль|Кофе|Чай"_lines);
  const Finding ticks{u"marked"_s, 2, {}, Repair::kUnknownMarks};
  EXPECT_TRUE(MakeRepair(temp_.Data(), session_, ticks));
  EXPECT_EQ(temp_.Lines(u"0001\\marked"_s), (QStringList{u"Соль"_s, u"Чай"_s}));
  temp_.Put(u"0001\\Подвал\\PRICE\\0001.prc"_s,
            EncodeText(u" Бакалея\r\nЧай\r\nпач.\r\n45\r\n60\r\nКофе\r\n\r\n\r\n\r\n"));
  const Finding prices{u"Подвал\\PRICE\\0001.prc"_s, 6, {}, Repair::kUnknownPrices};
  EXPECT_TRUE(MakeRepair(temp_.Data(), session_, prices));
  EXPECT_EQ(temp_.Lines(u"0001\\Подвал\\PRICE\\0001.prc"_s), (u" Бакалея|Чай|пач.|45|60"_lines));
  // A copy that can't be made stops the repair.
  Lines(u"marked", {u"Кофе"_s});
  EXPECT_THROW(MakeRepair(temp_.Data(), session_, ticks,
                          [](auto&) { throw std::filesystem::filesystem_error("", {}); }),
               std::filesystem::filesystem_error);
  EXPECT_EQ(temp_.Lines(u"0001\\marked"_s), QStringList{u"Кофе"_s});
}

TEST_F(BooksCheckTest, ForeignFilesOfAnyLengthAreToldInFewWordsAndLeftAsTheyAre) {
  const QByteArray endless(static_cast<qsizetype>(kMostLines) + 5, '\n');
  temp_.Put(u"0001\\marked"_s, endless);
  constexpr int kBad = 9 * static_cast<int>(kMostFindings);
  temp_.Put(u"0001\\Подвал\\товар.usl"_s, EncodeText(u"Чай\r\nмного\r\nпач.\r\n"_s.repeated(kBad)));
  const CheckResult result = Check();
  ASSERT_EQ(result.findings.size(), static_cast<size_t>(kMostFindings));
  EXPECT_GE(result.untold, kBad - kMostFindings);
  const Finding& first = result.findings.front();
  EXPECT_EQ(first.file, u"marked"_s);
  EXPECT_TRUE(first.text.contains(u"слишком много строк"_s)) << first.text.toStdString();
  for (const Repair repair : {Repair::kLineEnds, Repair::kEmptyEnd}) {
    MakeRepair(temp_.Data(), session_, {u"marked"_s, 0, {}, repair});
    EXPECT_EQ(temp_.Data().Read(u"0001\\marked"_s).size(), endless.size());
  }
}

TEST_F(BooksCheckTest, ACancelledCheckEndsAndADatabaseThatIsGoneIsTold) {
  EXPECT_THROW(CheckBooks(temp_.Data(), u"0001\\"_s, [](double) { return false; }), WorkCancelled);
  EXPECT_THROW(CheckBooks(temp_.Data(), u"0009\\"_s), std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace kladez
