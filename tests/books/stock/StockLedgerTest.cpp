#include <random>

#include "TempData.h"
#include "books/stock/StockLedger.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

struct PostingCase {
  const char* name;
  Posting posting;
  QStringList before;
  std::vector<LedgerRecord> records;
  QStringList after;
};

void PrintTo(const PostingCase& c, std::ostream* out) { *out << c.name; }

class Postings : public testing::TestWithParam<PostingCase> {};

TEST_P(Postings, LeaveTheseLines) {
  const PostingCase& c = GetParam();
  StockLedger ledger(EncodeLines(c.before));
  ledger.Post(c.posting, c.records);
  EXPECT_EQ(DecodeLines(ledger.Bytes()), c.after);
}

const PostingCase kPostingCases[] = {
    {"EmptyLedgerGetsThreeLinesEach",
     Posting::kReceive,
     {},
     {{u"Чай"_s, u"5"_s, u"пач."_s}, {u"Кофе"_s, u"0.125"_s, u"кг"_s}},
     {u"Чай"_s, u"5"_s, u"пач."_s, u"Кофе"_s, u"0.125"_s, u"кг"_s}},
    {"ReceivingKeepsFullPrecision",
     Posting::kReceive,
     {u"Чай"_s, u"1.5"_s, u"пач."_s},
     {{u"Чай"_s, u"0.125"_s, u"кор."_s}},
     {u"Чай"_s, u"1.625"_s, u"пач."_s}},
    {"IssuingKeepsTwoDecimals",
     Posting::kIssue,
     {u"Чай"_s, u"10"_s, u"пач."_s},
     {{u"Чай"_s, u"0.125"_s, u"пач."_s}},
     {u"Чай"_s, u"9.88"_s, u"пач."_s}},
    {"IssuingWhatIsNotThereGoesNegative",
     Posting::kIssue,
     {},
     {{u"Чай"_s, u"3"_s, u"пач."_s}, {u"Кофе"_s, u"0"_s, u"кг"_s}},
     {u"Чай"_s, u"-3.00"_s, u"пач."_s, u"Кофе"_s, u"0.00"_s, u"кг"_s}},
    {"ReceiptEntersTheTextTransferTheNumber",
     Posting::kReceiveAsNumber,
     {},
     {{u"Чай"_s, u"5.500"_s, u"пач."_s}},
     {u"Чай"_s, u"5.5"_s, u"пач."_s}},
    {"TheSameNameTwiceAddsTwice",
     Posting::kReceive,
     {},
     {{u"Чай"_s, u"5"_s, u"пач."_s}, {u"Чай"_s, u"2"_s, u"пач."_s}},
     {u"Чай"_s, u"7"_s, u"пач."_s}},
    {"OnlyTheFirstRecordOfANameChanges",
     Posting::kReceive,
     {u"Чай"_s, u"5"_s, u"пач."_s, u"Чай"_s, u"- 2"_s, u"пач."_s},
     {{u"Чай"_s, u"1"_s, u"пач."_s}},
     {u"Чай"_s, u"6"_s, u"пач."_s, u"Чай"_s, u"- 2"_s, u"пач."_s}},
    {"AReversalIsReadAsNegative",
     Posting::kReceive,
     {u"Чай"_s, u"- 5"_s, u"пач."_s},
     {{u"Чай"_s, u"2"_s, u"пач."_s}},
     {u"Чай"_s, u"-3"_s, u"пач."_s}},
    {"AUnitEqualToTheNameIsFoundFirst",
     Posting::kReceive,
     {u"Бумага"_s, u"1"_s, u"пачка"_s, u"Ручка"_s, u"2"_s, u"шт."_s, u"пачка"_s, u"3"_s, u"шт."_s},
     {{u"пачка"_s, u"4"_s, u"шт."_s}},
     // The line after the unit is the next record's name.
     {u"Бумага"_s, u"1"_s, u"пачка"_s, u"4"_s, u"2"_s, u"шт."_s, u"пачка"_s, u"3"_s, u"шт."_s}},
    {"AQuantityEqualToTheNameIsFoundFirst",
     Posting::kIssue,
     {u"Чай"_s, u"7"_s, u"пач."_s, u"7"_s, u"10"_s, u"шт."_s},
     {{u"7"_s, u"1"_s, u"шт."_s}},
     {u"Чай"_s, u"7"_s, u"-1.00"_s, u"7"_s, u"10"_s, u"шт."_s}},
    {"AQuantityJustMadeEqualToALaterNameIsFound",
     Posting::kReceive,
     {u"Чай"_s, u"3"_s, u"пач."_s, u"5"_s, u"100"_s, u"шт."_s},
     {{u"Чай"_s, u"2"_s, u"пач."_s}, {u"5"_s, u"1"_s, u"шт."_s}},
     {u"Чай"_s, u"5"_s, u"1"_s, u"5"_s, u"100"_s, u"шт."_s}},
    {"AQuantityChangedAwayIsFoundNoMore",
     Posting::kReceive,
     {u"Чай"_s, u"5"_s, u"пач."_s, u"5"_s, u"100"_s, u"шт."_s},
     {{u"Чай"_s, u"2"_s, u"пач."_s}, {u"5"_s, u"1"_s, u"шт."_s}},
     {u"Чай"_s, u"7"_s, u"пач."_s, u"5"_s, u"101"_s, u"шт."_s}},
    {"ANameInTheVeryLastLineCountsAsNotFound",
     Posting::kReceive,
     {u"Чай"_s, u"5"_s, u"пач."_s},
     {{u"пач."_s, u"1"_s, u"шт."_s}},
     {u"Чай"_s, u"5"_s, u"пач."_s, u"пач."_s, u"1"_s, u"шт."_s}},
    {"LetterCaseAndBlanksMakeAnotherName",
     Posting::kReceive,
     {u"чай"_s, u"5"_s, u"пач."_s, u"Чай "_s, u"5"_s, u"пач."_s},
     {{u"Чай"_s, u"1"_s, u"пач."_s}},
     {u"чай"_s, u"5"_s, u"пач."_s, u"Чай "_s, u"5"_s, u"пач."_s, u"Чай"_s, u"1"_s, u"пач."_s}},
    {"GroupLinesAndEmptyLinesStayInPlace",
     Posting::kIssue,
     {u" Чай и кофе"_s, u"Чай"_s, u"5"_s, QString(), QString(), u"Кофе"_s, u"0"_s, u"0"_s},
     {{u"Кофе"_s, u"1,5"_s, u"кг"_s}},
     {u" Чай и кофе"_s, u"Чай"_s, u"5"_s, QString(), QString(), u"Кофе"_s, u"-1.50"_s, u"0"_s}},
};

INSTANTIATE_TEST_SUITE_P(StockLedger, Postings, testing::ValuesIn(kPostingCases),
                         [](const auto& one) { return std::string(one.param.name); });

// The posting as it is told, line by line, without any index.
void PostPlainly(QStringList& lines, Posting posting, const LedgerRecord& record) {
  const double quantity = NumberOr(record.quantity);
  for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
    if (lines[i] != record.name) continue;
    const double old = NumberOr(lines[i + 1]);
    lines[i + 1] =
        posting == Posting::kIssue ? FormatLedger(old - quantity) : GeneralText(old + quantity);
    return;
  }
  lines << record.name
        << (posting == Posting::kIssue ? FormatLedger(0 - quantity) : record.quantity)
        << record.unit;
}

// Names, quantities and units from one small set, so that lines meet names at every turn.
TEST(StockLedger, FindsWhatAWalkOverAllLinesFinds) {
  const QStringList words = {u"1"_s,    u"2"_s,     u"3"_s,   u"4"_s,
                             u"1.00"_s, u"-1.00"_s, u"шт."_s, u""_s};
  std::mt19937 random(20261122);
  const auto word = [&] { return words[static_cast<qsizetype>(random() % words.size())]; };
  for (int round = 0; round < 2000; ++round) {
    QStringList lines;
    for (int left = static_cast<int>(random() % 14); left > 0; --left) lines << word();
    const Posting posting = random() % 2 == 0 ? Posting::kReceive : Posting::kIssue;
    std::vector<LedgerRecord> records(1 + random() % 6);
    for (LedgerRecord& record : records) record = {word(), word(), word()};
    StockLedger ledger(EncodeLines(lines));
    ledger.Post(posting, records);
    for (const LedgerRecord& record : records) PostPlainly(lines, posting, record);
    ASSERT_EQ(ledger.Bytes(), EncodeLines(lines)) << "round " << round;
  }
}

TEST(StockLedger, BytesThatAreNoTextPassThrough) {
  QByteArray bytes;
  for (int i = 1; i < 256; ++i) bytes.append(static_cast<char>(i));
  bytes.append("\r\nx\ry\r\n");
  StockLedger ledger(bytes);
  ledger.Post(Posting::kReceive, {});
  EXPECT_EQ(ledger.Bytes(), bytes);
}

TEST(StockLedger, AppendingKeepsTheFirstRecordAndAnOpenLastLine) {
  const TempData temp;
  temp.Put(u"0001\\Склад\\товар.usl"_s, EncodeText(u"Чай\r\n5\r\nпач."));
  const std::vector<LedgerRecord> records = {{u"Чай"_s, u"- 5"_s, u"пач."_s}};
  SaveSet save(temp.Data());
  AppendToLedger(save, u"0001\\Склад\\товар.usl"_s, records);
  AppendToLedger(save, u"0001\\Склад\\товар.usl"_s, records);
  save.Commit();
  const QStringList reversal = {u"Чай"_s, u"- 5"_s, u"пач."_s};
  EXPECT_EQ(temp.Lines(u"0001\\Склад\\товар.usl"_s),
            QStringList({u"Чай"_s, u"5"_s, u"пач."_s}) + reversal + reversal);
}

}  // namespace
}  // namespace kladez
