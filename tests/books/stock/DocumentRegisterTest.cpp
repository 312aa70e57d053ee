#include <filesystem>

#include "SmallBooks.h"
#include "books/stock/DocumentNumbers.h"
#include "books/stock/DocumentRegister.h"
#include "books/stock/RegisterView.h"

namespace kladez {
namespace {

using Files = std::map<QString, QStringList>;
using Period = RegisterFilter::Period;

const QDate kToday(2026, 11, 22);

class Register : public testing::Test {
 protected:
  Register() { SmallBooks(temp_.Data(), session_).Warehouses(u"Склад|Магазин"_lines); }

  void Receipt(const QString& file, const QString& date, const QString& sum = u"1.00"_s,
               const QString& number = u"1"_s) const {
    temp_.PutLines(u"0001\\Склад\\PRH\\"_s + file, {number, date, u"-"_s, sum, u"нет"_s});
  }
  QStringList Shown(DocumentKind kind, const RegisterFilter& filter, bool descending = false) {
    kind_ = kind;
    rows_.emplace(temp_.Data(), session_, kind);
    rows_->Load(u"Склад"_s, filter, kToday, descending);
    QStringList files;
    for (const RegisterRow& row : rows_->Rows()) files << row.file;
    return files;
  }

  RegisterView View() const { return {kind_, rows_->Rows()}; }

  TempData temp_;
  Session session_;
  DocumentKind kind_ = DocumentKind::kReceipt;
  std::optional<DocumentRegister> rows_;
};

TEST_F(Register, EachFilterKeepsItsDocuments) {
  Receipt(u"0001.prh"_s, u"05.11.2026"_s);
  Receipt(u"0002.prh"_s, u"5.11.2025 "_s);
  Receipt(u"0003.prh"_s, u"06.10.2026"_s);
  Receipt(u"0004.prh"_s, u"05.11.1926"_s);
  Receipt(u"0005.prh"_s, u"вчера"_s);
  Receipt(u"0006.prh"_s, u"31.11.2026"_s);
  temp_.Put(u"0001\\Склад\\PRH\\0007.prh"_s, {});
  const struct {
    RegisterFilter filter;
    QStringList files;
  } cases[] = {
      {{.period = Period::kMonth, .month = 11, .year = u"2025"_s}, {u"0001.prh"_s}},
      {{.period = Period::kMonth, .month = 9}, {}},
      {{.period = Period::kYear, .year = u"2026"_s}, {u"0001.prh"_s, u"0003.prh"_s}},
      {{.period = Period::kYear, .year = u"2025"_s}, {u"0002.prh"_s}},
      {{.period = Period::kYear, .year = u"26"_s}, {}},
      // Two digits of the year: the same day a century apart passes.
      {{.period = Period::kDay, .day = QDate(2026, 11, 5)}, {u"0001.prh"_s, u"0004.prh"_s}},
      {{.period = Period::kRange, .from = QDate(2025, 11, 5), .to = QDate(2026, 10, 6)},
       {u"0002.prh"_s, u"0003.prh"_s}},
  };
  for (const auto& c : cases) EXPECT_EQ(Shown(DocumentKind::kReceipt, c.filter), c.files);
}

TEST_F(Register, FiguresAreNumberTextsAndADateHasNoBlankAtItsEnd) {
  temp_.PutLines(u"0001\\Склад\\UHD\\0001.uhd"_s, u"1|5.11.2026 |-|1 200,5|много| 7.10|да"_lines);
  ASSERT_EQ(Shown(DocumentKind::kShipment, {.period = Period::kMonth, .month = 11}).size(), 1);
  const DocumentHead& head = rows_->Rows()[0].head;
  EXPECT_EQ(QStringList({head.date, head.sum, head.discount, head.net_sum}),
            QStringList(u"5.11.2026|1 200.5|0| 7.10"_lines));
  EXPECT_EQ(View().StatusText(), u"Документов:1     Сумма:7.10"_s);
}

// The bytes that this process has read so far.
qint64 BytesRead() {
  QFile counters(u"/proc/self/io"_s);
  if (!counters.open(QIODevice::ReadOnly)) return 0;
  const QByteArray line = counters.readLine();
  return line.mid(line.indexOf(' ')).trimmed().toLongLong();
}

TEST_F(Register, AnotherShowingSeesWhateverHasChangedAndReadsNothingElse) {
  const RegisterFilter year{.period = Period::kYear, .year = u"2026"_s};
  for (int i = 1; i < 6; ++i) Receipt(u"000%1.prh"_s.arg(i), u"05.11.2026"_s);
  DocumentRegister rows(temp_.Data(), session_, DocumentKind::kReceipt);
  const auto shown = [&](bool descending) {
    rows.Load(u"Склад"_s, year, kToday, descending);
    QStringList all;
    for (const RegisterRow& row : rows.Rows()) all << row.file.first(4) + u'=' + row.head.sum;
    return all.join(u' ');
  };
  EXPECT_EQ(shown(false), u"0001=1.00 0002=1.00 0003=1.00 0004=1.00 0005=1.00"_s);
  temp_.PutLines(u"0001\\Склад\\PRH\\0001.prh"_s,
                 {u"1"_s, u"05.11.2026"_s, u"-"_s, u"1.00"_s, u"нет"_s, QString(100'000, u'x')});
  shown(false);
  const qint64 read = BytesRead();
  EXPECT_EQ(shown(true), u"0005=1.00 0004=1.00 0003=1.00 0002=1.00 0001=1.00"_s);
  EXPECT_LT(BytesRead() - read, 50'000);
  Receipt(u"0002.prh"_s, u"05.11.2026"_s, u"2.00"_s);  // in place
  Receipt(u"0003.prh"_s, u"05.11.2025"_s);             // left the filter
  QFile::remove(temp_.Data().Resolve(u"0001\\Склад\\PRH\\0004.prh"_s));
  Receipt(u"0000.prh"_s, u"05.11.2026"_s, u"7.00"_s);
  EXPECT_EQ(shown(false), u"0000=7.00 0001=1.00 0002=2.00 0005=1.00"_s);
  QDir(temp_.Root()).rename(u"0001/Склад/PRH"_s, u"0001/Склад/old"_s);
  Receipt(u"0009.prh"_s, u"05.11.2026"_s, u"9.00"_s);
  EXPECT_EQ(shown(false), u"0009=9.00"_s) << "another directory under the old path";
}

TEST_F(Register, OrderGoesByFileNamesNotByDateOrNumber) {
  const RegisterFilter year{.period = Period::kYear, .year = u"2026"_s};
  Receipt(u"0002.prh"_s, u"01.01.2026"_s);
  Receipt(u"10000.prh"_s, u"02.01.2026"_s);
  Receipt(u"0010.PRH"_s, u"03.01.2026"_s);
  const QStringList files = u"0002.prh|0010.PRH|10000.prh"_lines;
  EXPECT_EQ(Shown(DocumentKind::kReceipt, year), files);
  EXPECT_EQ(Shown(DocumentKind::kReceipt, year, true), QStringList(files.rbegin(), files.rend()));
  EXPECT_EQ(View().PlaceOf(u"0010.PRH"_s), 1);
  EXPECT_EQ(View().PlaceOf(u"0001.prh"_s), -1);
}

TEST_F(Register, TotalsAddWhatEachKindTells) {
  const RegisterFilter year{.period = Period::kYear, .year = u"2026"_s};
  EXPECT_EQ(Shown(DocumentKind::kReceipt, year), QStringList());
  EXPECT_EQ(View().StatusText(), u"Документов:0     Сумма:0.00");
  Receipt(u"0001.prh"_s, u"01.01.2026"_s, u"10,5"_s);
  Receipt(u"0002.prh"_s, u"01.01.2026"_s, u"сто"_s);
  Receipt(u"0003.prh"_s, u"01.01.2026"_s, u"0.005"_s);
  Shown(DocumentKind::kReceipt, year);
  EXPECT_EQ(View().StatusText(), u"Документов:3     Сумма:10.51");
  EXPECT_EQ(rows_->Rows()[0].head.sum, u"10.5");
  EXPECT_EQ(rows_->Rows()[1].head.sum, u"0");
  temp_.PutLines(u"0001\\Склад\\UHD\\0001.uhd"_s,
                 {u"1"_s, u"01.01.2026"_s, u"-"_s, u"100.00"_s, u"10"_s, u"90.00"_s, u"да"_s});
  Shown(DocumentKind::kShipment, year);
  EXPECT_EQ(View().StatusText(), u"Документов:1     Сумма:90.00");
  temp_.PutLines(u"0001\\ВНПЕР\\0001.vpr"_s,
                 {u"1"_s, u"01.01.2026"_s, u"Склад"_s, u"Снесённый"_s, u"7.00"_s});
  Shown(DocumentKind::kTransfer, year);
  EXPECT_EQ(View().StatusText(), u"Документов:1     Сумма:7.00");
  EXPECT_EQ(rows_->Rows()[0].head.destination, u"Снесённый");
}

TEST_F(Register, ASearchFindsNumbersPartiesSumsAndGoods) {
  const auto put = [&](const QString& file, const QStringList& head, const QStringList& goods) {
    QStringList lines = head;
    for (const QString& name : goods)
      lines << name << u"1"_s << u"шт."_s << u"1"_s << u"2"_s << u"2"_s;
    temp_.PutLines(u"0001\\Склад\\UHD\\"_s + file, lines);
  };
  put(u"0001.uhd"_s, u"0012|01.01.2026|ИП Семёнов|1500.00|10|1350.00|да"_lines,
      u"Чай «Ладья»|Сахар"_lines);
  put(u"0002.uhd"_s, u"120|03.01.2026|ООО Свет|12.50|0|12.50|да"_lines, u"Сахар"_lines);
  put(u"0003.uhd"_s, u"7|02.01.2026|ООО Заря|15000.00|0|15000.00|нет"_lines, u"Мёд"_lines);
  const RegisterFilter year{.period = Period::kYear, .year = u"2026"_s};
  Shown(DocumentKind::kShipment, year);
  const DocumentGoods goods(temp_.Data(), kind_, u"0001\\Склад\\UHD"_s, rows_->Rows());
  RegisterView view = View();
  const auto found = [&](const QString& text, const DocumentGoods* in) {
    view.Search(text, in);
    QString numbers;
    for (int i = 0; i < view.Count(); ++i) numbers += view.Row(i).head.number + u' ';
    return numbers.trimmed();
  };
  const struct {
    QString text;
    QString in_heads;
    QString in_goods_too;
  } cases[] = {
      {u" "_s, u"0012 120 7"_s, u"0012 120 7"_s},
      {u"12"_s, u"0012 120"_s, u"0012 120"_s},  // numbers, and 12 roubles
      {u"1500"_s, u"0012"_s, u"0012"_s},
      {u"1350"_s, u"0012"_s, u"0012"_s},
      {u"12,5"_s, u"120"_s, u"120"_s},
      {u"семенов"_s, u"0012"_s, u"0012"_s},
      {u"cdtn"_s, u"120"_s, u"120"_s},  // "свет" in the other layout
      {u"сахар"_s, {}, u"0012 120"_s},
      {u"сахар ооо"_s, {}, u"120"_s},
      {u"мед заря"_s, {}, u"7"_s},
      {u"мед свет"_s, {}, {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(found(c.text, nullptr), c.in_heads) << c.text.toStdString();
    EXPECT_EQ(found(c.text, &goods), c.in_goods_too) << c.text.toStdString();
  }
  using H = DocumentHead;
  const auto sorted = [&](QString H::*field, bool descending = false) {
    view.Sort({field, descending});
    return found({}, nullptr);
  };
  EXPECT_EQ(sorted(&H::number), u"7 0012 120"_s);
  EXPECT_EQ(sorted(&H::date), u"0012 7 120"_s);
  EXPECT_EQ(sorted(&H::sum, true), u"7 0012 120"_s);
  EXPECT_EQ(sorted(&H::party), u"0012 7 120"_s);
  EXPECT_EQ(found(u"12"_s, nullptr), u"0012 120"_s);
  EXPECT_EQ(view.StatusText(), u"Документов:2     Сумма:1362.50"_s);
  EXPECT_EQ(view.Sums({0}).sum, 1500);
  EXPECT_EQ(view.Sums({0}).net_sum, 1350);
}

TEST_F(Register, AMissingDirectoryIsToldAndKeepsTheRows) {
  Receipt(u"0001.prh"_s, u"01.01.2026"_s);
  const RegisterFilter year{.period = Period::kYear, .year = u"2026"_s};
  Shown(DocumentKind::kReceipt, year);
  EXPECT_THROW(rows_->Load(u"Нет"_s, year, kToday, false), std::filesystem::filesystem_error);
  EXPECT_EQ(rows_->Rows().size(), 1);
}

TEST_F(Register, FileNamesAndNumbersCountApart) {
  const struct {
    QStringList files;
    QString number;  // in the last of them
    QString new_file;
    QString new_number;
  } cases[] = {
      {{}, {}, u"0001.prh"_s, u"1"_s},
      {{u"0001.prh"_s}, u"15"_s, u"0002.prh"_s, u"16"_s},
      {{u"0001.prh"_s, u"0007.prh"_s}, u"7/а"_s, u"0008.prh"_s, u"8"_s},
      {{u"0009.prh"_s}, u"б/н"_s, u"0010.prh"_s, u"1"_s},
      {{u"0009.prh"_s}, {}, u"0010.prh"_s, u"1"_s},
      {{u"0009.prh"_s}, u" 1 0 №"_s, u"0010.prh"_s, u"11"_s},
      {{u"0009.prh"_s}, u"2.5"_s, u"0010.prh"_s, u"3.5"_s},
      // "10000" stands before "9999": the last name stays, and the new file takes its place.
      {{u"9999.prh"_s}, u"1"_s, u"10000.prh"_s, u"2"_s},
      {{u"10000.prh"_s, u"9999.prh"_s}, u"1"_s, u"10000.prh"_s, u"2"_s},
      {{u"0005.prh"_s, u"копия.prh"_s}, u"1"_s, u"0001.prh"_s, u"2"_s},
      {{u"1e999.prh"_s}, u"1"_s, u"0001.prh"_s, u"2"_s},
      {{u"99999999999.prh"_s}, u"1"_s, u"100000000000.prh"_s, u"2"_s},
  };
  for (const auto& c : cases) {
    for (const QString& file : c.files) {
      Receipt(file, u"01.01.2026"_s, u"1.00"_s, file == c.files.constLast() ? c.number : u"77"_s);
    }
    const NewDocumentNumbers numbers =
        NumbersForNew(temp_.Data(), DocumentKind::kReceipt, u"0001\\Склад\\PRH"_s);
    EXPECT_EQ(numbers.file, c.new_file);
    EXPECT_EQ(numbers.number, c.new_number);
    for (const QString& file : c.files) {
      QFile::remove(temp_.Data().Resolve(u"0001\\Склад\\PRH\\"_s + file));
    }
  }
}

class Deletion : public Register {
 protected:
  const QStringList tea_ = u"Чай|10|шт."_lines;
  void SetUp() override {
    for (const QString& name : session_.warehouses)
      temp_.PutLines(LedgerPath(session_, name), tea_);
  }
};

TEST_F(Deletion, ReversalIsASecondRecordAtTheEnd) {
  const QStringList lines = u"Чай|2,5|шт.|45|Кофе|-1|кг|9"_lines;
  temp_.PutLines(u"0001\\Склад\\PRH\\0001.prh"_s,
                 QStringList(u"1|01.01.2026|-|1.00|да"_lines) + lines);
  DeleteDocument(temp_.Data(), session_, DocumentKind::kReceipt, u"Склад"_s, u"0001.prh"_s, true);
  EXPECT_EQ(Filled(temp_),
            (Files{{u"Склад/товар.usl"_s, tea_ + QStringList(u"Чай|- 2,5|шт.|Кофе|- -1|кг"_lines)},
                   {u"Магазин/товар.usl"_s, tea_}}));
}

TEST_F(Deletion, AReturnedShipmentKeepsTheTextOfItsQuantity) {
  temp_.PutLines(u"0001\\Склад\\UHD\\0001.uhd"_s,
                 u"1|01.01.2026|-|1|0|1|да|Чай|0.125|шт.|4|5|5"_lines);
  DeleteDocument(temp_.Data(), session_, DocumentKind::kShipment, u"Склад"_s, u"0001.uhd"_s, true);
  EXPECT_EQ(Filled(temp_),
            (Files{{u"Склад/товар.usl"_s, tea_ + QStringList(u"Чай|0.125|шт."_lines)},
                   {u"Магазин/товар.usl"_s, tea_}}));
}

TEST_F(Deletion, ATransferIsTakenBackFromBothLedgers) {
  const QStringList document = u"1|01.01.2026|Магазин|Склад|1|Чай|3|шт.|4|5"_lines;
  temp_.PutLines(u"0001\\ВНПЕР\\0001.vpr"_s, document);
  DeleteDocument(temp_.Data(), session_, DocumentKind::kTransfer, {}, u"0001.vpr"_s, true);
  EXPECT_EQ(Filled(temp_),
            (Files{{u"Магазин/товар.usl"_s, tea_ + QStringList(u"Чай|3|шт."_lines)},
                   {u"Склад/товар.usl"_s, tea_ + QStringList(u"Чай|- 3|шт."_lines)}}));
}

TEST_F(Deletion, WithoutReversalOnlyTheFileGoes) {
  Receipt(u"0001.prh"_s, u"01.01.2026"_s);
  DeleteDocument(temp_.Data(), session_, DocumentKind::kReceipt, u"Склад"_s, u"0001.prh"_s, false);
  EXPECT_EQ(Filled(temp_), (Files{{u"Склад/товар.usl"_s, tea_}, {u"Магазин/товар.usl"_s, tea_}}));
}

TEST_F(Deletion, AWarehouseThatIsGoneStopsItWhole) {
  temp_.PutLines(u"0001\\ВНПЕР\\0001.vpr"_s, u"1|01.01.2026|Склад|Снесённый|1|Чай|3|шт.|4|5"_lines);
  const auto before = temp_.Tree();
  EXPECT_THROW(
      DeleteDocument(temp_.Data(), session_, DocumentKind::kTransfer, {}, u"0001.vpr"_s, true),
      std::filesystem::filesystem_error);
  EXPECT_EQ(temp_.Tree(), before);
}

}  // namespace
}  // namespace kladez
