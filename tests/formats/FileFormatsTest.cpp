// The records of every file by whole bytes: what stands in which line, and that nothing of a
// well-formed file is lost by being read and written.
#include <gtest/gtest.h>

#include <functional>

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

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

// Text to the bytes of a file: one line for each line of the literal.
QByteArray File(const char* text) {
  QStringList lines = QString::fromUtf8(text).split(u'\n');
  lines.removeLast();
  return EncodeLines(lines);
}

TEST(FileFormats, WellFormedFilesKeepEveryByte) {
  using Rewrite = std::function<QByteArray(const QByteArray&)>;
  const auto document = [](DocumentKind kind) -> Rewrite {
    return [kind](const QByteArray& b) { return WriteDocument(kind, ReadDocument(kind, b)); };
  };
  const auto parties = [](PartyKind kind) -> Rewrite {
    return [kind](const QByteArray& b) { return WriteParties(ReadParties(kind, b)); };
  };
  const Rewrite goods = [](auto& b) { return WriteGoods(ReadGoods(b)); };
  const Rewrite prices = [](auto& b) { return WritePrices(ReadPrices(b)); };
  const Rewrite ledger = [](auto& b) { return WriteLedger(ReadLedger(b)); };
  const struct {
    const char* name;
    Rewrite rewrite;
    QByteArray bytes;
  } cases[] = {
      {"goods", goods,
       File(" Чай и кофе\nЧай чёрный\nИндия\n10702030/01\nпач.\n45.00\n"
            " Пустая\n \nКофе\n\n\n\n0\n\n-\n-\n-\n- 5\n")},
      {"prices", prices, File(" Чай\nЧай чёрный\nпач.\n45.00\n60.00\n  \nКофе\n\n\n\n")},
      {"ledger", ledger, File("Чай чёрный\n120\nпач.\nКофе\n- 5\n\nЧай чёрный\n0\n0\n")},
      {"firms", parties(PartyKind::kFirm),
       File("Ваша фирма\n-\n-\n-\n-\n-\n-\n-\n-\n-\n-\n-\n-\n"
            "-\n-\n«Б»\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n")},
      {"clients", parties(PartyKind::kClient),
       File("А\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n"
            "Б\n\n\n\n\n\n\n\n\n\n\n\n\n\n")},
      {"receipt", document(DocumentKind::kReceipt),
       File("7\n05.03.2026\n-\n90.00\nнет\nЧай\n2\nпач.\n45.00\n")},
      {"shipment", document(DocumentKind::kShipment),
       File("7\n05.03.2026\nРога и копыта\n120.00\n5\n114.00\nда\nЧай\n2\nпач.\n45.00\n60.00\n57.00"
            "\nКофе\n0\n\n\n\n\n")},
      {"transfer", document(DocumentKind::kTransfer),
       File("7\n05.03.2026\nГлавный склад\nЛавка\n120.00\nЧай\n2\nпач.\n45.00\n60.00\n")},
      {"document without lines", document(DocumentKind::kReceipt), File("1\n\n\n0.00\nда\n")},
      {"currency", [](auto& b) { return WriteCurrency(ReadCurrency(b)); },
       WriteCurrency(RoubleCurrency())},
      {"tax rates", [](auto& b) { return WriteTaxRates(*ReadTaxRates(b)); },
       File("НДС, %\n20\nНСП, %\n\n")},
      {"own records", [](auto& b) { return WriteOwnRecords(*ReadOwnRecords(b)); },
       File("Рога\nСкидка, %\n5\nЦены\nОпт\n\nЧай\nМинимум\n 2\n\n\n")},
      {"no own records", [](auto& b) { return WriteOwnRecords(*ReadOwnRecords(b)); }, File("\n")},
      {"descriptor", [](auto& b) { return WriteDescriptor(ReadDescriptor(b)); },
       File("0001\\\nМагазин на Садовой\n")},
      {"backup", [](auto& b) { return WriteBackupIndex(ReadBackupIndex(b)); },
       File("0001.us\n0001\\\nМагазин\n0003.us\n0003\\\nСклад\n")},
      {"empty goods", goods, {}},
      {"empty ledger", ledger, {}},
      {"empty prices", prices, {}},
      {"no clients", parties(PartyKind::kClient), {}},
      {"empty backup", [](auto& b) { return WriteBackupIndex(ReadBackupIndex(b)); }, {}},
  };
  for (const auto& c : cases) EXPECT_EQ(c.rewrite(c.bytes), c.bytes) << c.name;
}

TEST(FileFormats, TaxRatesThatAreCutOrNoNumbersAreNone) {
  EXPECT_EQ(ReadTaxRates(File("Акциз\n3\nНСП, %\n5\nНДС, %\n20\n")), (TaxRates{u"20"_s, u"5"_s}));
  for (const char* damaged :
       {"", "НДС, %\n20\nНСП, %", "НДС, %\n20\n", "НДС, %\nмного\nНСП, %\n0\n"}) {
    EXPECT_EQ(ReadTaxRates(File(damaged)), std::nullopt) << damaged;
  }
}

TEST(FileFormats, OwnRecordsThatAreCutAnywhereAreNone) {
  const QByteArray whole = File("Рога\nСкидка, %\n5\nЦены\nОпт\n\nЧай\nМинимум\n2\n\n\n");
  ASSERT_TRUE(ReadOwnRecords(whole));
  for (qsizetype size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(ReadOwnRecords(whole.first(size)), std::nullopt) << size;
  }
  EXPECT_EQ(ReadOwnRecords(QByteArray(whole + "\r\n")), std::nullopt);
}

TEST(FileFormats, OwnRecordsFollowNamesThatSwapGoAndMeet) {
  OwnRecords records;
  for (const QString& name : {u"А"_s, u"Б"_s, u"В"_s, u"Г"_s}) records.Set(name, u"поле"_s, name);
  records.Follow(
      {{u"А"_s, u"Б"_s}, {u"Б"_s, u"А"_s}, {u"В"_s, {}}, {{}, u"Д"_s}, {u"?"_s, u"Г"_s}});
  EXPECT_EQ(records.Value(u"А"_s, u"поле"_s), u"Б"_s);
  EXPECT_EQ(records.Value(u"Б"_s, u"поле"_s), u"А"_s);
  EXPECT_EQ(records.Names(), (QStringList{u"А"_s, u"Б"_s, u"Г"_s}));
  records.Follow({{u"А"_s, u"А"_s}, {u"А"_s, u"Е"_s}, {u"Б"_s, u"А"_s}});
  EXPECT_EQ(records.Value(u"А"_s, u"поле"_s), u"Б"_s);
  EXPECT_EQ(records.Value(u"Е"_s, u"поле"_s), u"Б"_s);
}

TEST(FileFormats, GoodsStandUnderTheirGroupsWithAReadablePrice) {
  const auto records = ReadGoods(File(" Чай\nА\nИндия\nГТД\nпач.\n1,5\nБ\n\n\n\nдорого\n"));
  const std::vector<GoodsRecord> expected = {
      {u" Чай"_s, {}, {}, {}, {}},
      {u"А"_s, u"Индия"_s, u"ГТД"_s, u"пач."_s, u"1.5"_s},
      {u"Б"_s, {}, {}, {}, u"0"_s},
  };
  EXPECT_EQ(records, expected);
  EXPECT_TRUE(records[0].IsGroup());
  EXPECT_FALSE(records[1].IsGroup());
}

// A group line in a ledger is one line and no record; a name line is never taken for one.
TEST(FileFormats, LedgerReaderPassesOverGroupLinesOnly) {
  const auto records = ReadLedger(File(" Группа\nА\n1\nшт\n Ещё\n \nБ\n 2\n кг\n\n3\n\n"));
  const std::vector<LedgerRecord> expected = {
      {u"А"_s, u"1"_s, u"шт"_s}, {u"Б"_s, u" 2"_s, u" кг"_s}, {u""_s, u"3"_s, u""_s}};
  EXPECT_EQ(records, expected);
}

TEST(FileFormats, FieldsOfADocumentStandInTheirLines) {
  const QByteArray bytes = File("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n");
  const Document shipment = ReadDocument(DocumentKind::kShipment, bytes);
  EXPECT_EQ(shipment.head.sum, u"4"_s);
  EXPECT_EQ(shipment.head.discount, u"5"_s);
  EXPECT_EQ(shipment.head.net_sum, u"6"_s);
  EXPECT_EQ(shipment.head.closed, u"7"_s);
  ASSERT_EQ(shipment.lines.size(), 1u);
  EXPECT_EQ(shipment.lines[0], (DocumentLine{u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s, u"13"_s}));
  const Document transfer = ReadDocument(DocumentKind::kTransfer, bytes);
  EXPECT_EQ(transfer.head.party, u"3"_s);
  EXPECT_EQ(transfer.head.destination, u"4"_s);
  EXPECT_EQ(transfer.head.sum, u"5"_s);
  ASSERT_EQ(transfer.lines.size(), 2u);
  EXPECT_EQ(transfer.lines[0], (DocumentLine{u"6"_s, u"7"_s, u"8"_s, u"9"_s, u"10"_s, {}}));
  const Document receipt = ReadDocument(DocumentKind::kReceipt, bytes);
  EXPECT_EQ(receipt.lines[0], (DocumentLine{u"6"_s, u"7"_s, u"8"_s, {}, u"9"_s, {}}));
  EXPECT_EQ(receipt.head, ReadDocumentHead(DocumentKind::kReceipt, bytes));
}

TEST(FileFormats, OnlyTheWordNoLeavesADocumentOpen) {
  for (const char* closed : {"да", "", "Нет", "нет ", "no"}) {
    const auto bytes = EncodeLines({u"1"_s, u"2"_s, u"3"_s, u"4"_s, QString::fromUtf8(closed)});
    EXPECT_TRUE(ReadDocumentHead(DocumentKind::kReceipt, bytes).IsClosed()) << closed;
  }
  EXPECT_FALSE(ReadDocumentHead(DocumentKind::kReceipt, File("1\n2\n3\n4\nнет\n")).IsClosed());
}

TEST(FileFormats, OneBlankBehindADocumentsDateIsCut) {
  EXPECT_EQ(ReadDocumentHead(DocumentKind::kReceipt, File("1\n05.03.2026 \n")).date,
            u"05.03.2026"_s);
  EXPECT_EQ(ReadDocumentHead(DocumentKind::kReceipt, File("1\n05.03.2026  \n")).date,
            u"05.03.2026 "_s);
}

// Firms and partners keep the same facts in different lines.
TEST(FileFormats, PartyFieldsAreFoundByMeaning) {
  Party firm, client;
  for (int line = 1; line <= 15; ++line) firm.append(QString::number(line));
  client = firm.mid(0, 14);
  const struct {
    PartyField field;
    const char* firm;
    const char* client;
  } cases[] = {
      {PartyField::kName, "1", "1"},
      {PartyField::kLegalAddress, "2", "2"},
      {PartyField::kActualAddress, "3", "3"},
      {PartyField::kPhone, "4", "4"},
      {PartyField::kFax, "5", "5"},
      {PartyField::kContact, "", "6"},
      {PartyField::kAccount, "6", "7"},
      {PartyField::kBank, "7", "8"},
      {PartyField::kCity, "", "9"},
      {PartyField::kCorrespondent, "8", "10"},
      {PartyField::kBankCode, "9", "11"},
      {PartyField::kTaxNumber, "10", "12"},
      {PartyField::kIndustryCode, "11", "13"},
      {PartyField::kFirmCode, "12", "14"},
      {PartyField::kShipper, "13", ""},
      {PartyField::kDirector, "14", ""},
      {PartyField::kAccountant, "15", ""},
  };
  for (const auto& c : cases) {
    const int number = static_cast<int>(c.field);
    EXPECT_EQ(FieldOf(PartyKind::kFirm, firm, c.field).toStdString(), c.firm) << number;
    EXPECT_EQ(FieldOf(PartyKind::kClient, client, c.field).toStdString(), c.client) << number;
    EXPECT_EQ(FieldOf(PartyKind::kSupplier, client, c.field).toStdString(), c.client) << number;
  }
}

TEST(FileFormats, ACutFileEndsInARecordWithEmptyFields) {
  EXPECT_EQ(ReadGoods(File("А\nИндия\n")),
            (std::vector<GoodsRecord>{{u"А"_s, u"Индия"_s, {}, {}, u"0"_s}}));
  EXPECT_EQ(ReadPrices("\xC0"), (std::vector<PriceRecord>{{u"А"_s, {}, {}, {}}}));
  EXPECT_EQ(ReadLedger(File("А\n")), (std::vector<LedgerRecord>{{u"А"_s, {}, {}}}));
  const auto clients = ReadParties(PartyKind::kClient, File("А\nБ\n"));
  ASSERT_EQ(clients.size(), 1u);
  EXPECT_EQ(clients[0].size(), 14);
  EXPECT_EQ(ReadDescriptor({}), DatabaseDescriptor());
  EXPECT_EQ(ReadCurrency(File("$\n")).forms[7], QString());
  EXPECT_EQ(WriteCurrency(ReadCurrency({})).count('\n'), 8);
  EXPECT_EQ(ReadDocument(DocumentKind::kShipment, {}), Document());
  EXPECT_EQ(ReadDocument(DocumentKind::kReceipt, File("1\n2\n3\n4\nда\nЧай\n")).lines[0].name,
            u"Чай"_s);
}

}  // namespace
}  // namespace kladez
