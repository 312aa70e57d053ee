#include <cmath>
#include <map>
#include <set>

#include "TempData.h"
#include "books/store/Session.h"
#include "demo/DemoBooks.h"
#include "formats/Dates.h"
#include "formats/DocumentFile.h"
#include "formats/GoodsFile.h"
#include "formats/LedgerFile.h"
#include "formats/Numbers.h"
#include "formats/PartyFile.h"
#include "formats/PriceFile.h"

namespace kladez {
namespace {

const QDate kToday(2026, 11, 22);

class DemoBooks : public ::testing::Test {
 protected:
  DemoBooks() {
    session.chosen_base = WriteDemonstrationBooks(temp.Data(), kToday);
    EXPECT_TRUE(OpenDatabase(session, temp.Data()));
  }

  std::vector<Document> Documents(const QString& directory, DocumentKind kind) const {
    std::vector<Document> documents;
    for (const QString& file : temp.Data().List(directory, FormatOf(kind).extension)) {
      documents.push_back(ReadDocument(kind, temp.Data().Read(directory + u'\\' + file)));
    }
    return documents;
  }

  TempData temp;
  Session session;
};

TEST_F(DemoBooks, LedgersAreWhatTheDocumentsLeaveAndNeverNegative) {
  std::map<std::pair<QString, QString>, double> expected;
  for (const QString& warehouse : session.warehouses) {
    for (const auto& receipt :
         Documents(session.Path(warehouse, u"PRH"_s), DocumentKind::kReceipt)) {
      if (!receipt.head.IsClosed()) continue;
      for (const auto& line : receipt.lines)
        expected[{warehouse, line.name}] += NumberOr(line.quantity);
    }
    for (const auto& shipment :
         Documents(session.Path(warehouse, u"UHD"_s), DocumentKind::kShipment)) {
      if (!shipment.head.IsClosed()) continue;
      for (const auto& line : shipment.lines)
        expected[{warehouse, line.name}] -= NumberOr(line.quantity);
    }
  }
  for (const auto& transfer : Documents(session.Path(u"ВНПЕР"_s), DocumentKind::kTransfer)) {
    for (const auto& line : transfer.lines) {
      expected[{transfer.head.party, line.name}] -= NumberOr(line.quantity);
      expected[{transfer.head.destination, line.name}] += NumberOr(line.quantity);
    }
  }
  std::map<std::pair<QString, QString>, double> ledgers;
  for (const QString& warehouse : session.warehouses) {
    for (const auto& record :
         ReadLedger(temp.Data().Read(session.Path(warehouse, u"товар.usl"_s)))) {
      ledgers[{warehouse, record.name}] += NumberOr(record.quantity);
    }
  }
  EXPECT_EQ(ledgers.size(), expected.size());
  for (const auto& [key, quantity] : expected) {
    EXPECT_NEAR(ledgers[key], quantity, 1e-9) << key.second.toStdString();
    EXPECT_GE(quantity, 0) << key.second.toStdString();
  }
}

TEST_F(DemoBooks, HoldWhatANewcomerNeedsToLookAround) {
  EXPECT_EQ(session.warehouses.size(), 2);
  EXPECT_EQ(session.Parties(PartyKind::kFirm).size(), 2);
  EXPECT_EQ(session.Parties(PartyKind::kSupplier).size(), 8);
  EXPECT_EQ(session.Parties(PartyKind::kClient).size(), 12);
  const auto goods = ReadGoods(temp.Data().Read(session.Path(u"spr\\товар.spr"_s)));
  EXPECT_EQ(std::count_if(goods.begin(), goods.end(), [](auto& g) { return g.IsGroup(); }), 8);
  EXPECT_EQ(goods.size(), 68u);
  std::set<QString> names;
  for (const auto& record : goods) EXPECT_TRUE(names.insert(record.name).second);
  int receipts = 0;
  std::map<bool, int> shipments;
  std::set<bool> discounted;
  for (const QString& warehouse : session.warehouses) {
    receipts += static_cast<int>(
        Documents(session.Path(warehouse, u"PRH"_s), DocumentKind::kReceipt).size());
    for (const auto& shipment :
         Documents(session.Path(warehouse, u"UHD"_s), DocumentKind::kShipment)) {
      ++shipments[shipment.head.IsClosed()];
      discounted.insert(shipment.head.discount != u"0"_s);
      const auto date = ParseDate(shipment.head.date);
      ASSERT_TRUE(date);
      EXPECT_LE(*date, kToday);
      EXPECT_GE(*date, kToday.addYears(-1));
      EXPECT_FALSE(shipment.lines.empty());
    }
  }
  EXPECT_EQ(receipts, 25);
  EXPECT_EQ(shipments[true] + shipments[false], 80);
  EXPECT_GT(shipments[false], 0);
  EXPECT_EQ(discounted.size(), 2u);
}

TEST_F(DemoBooks, SalePricesDifferFromPurchasePricesInEveryList) {
  for (const QString& warehouse : session.warehouses) {
    for (const QString& list : {u"0001"_s, u"0002"_s, u"0003"_s}) {
      const auto rows = ReadPrices(
          temp.Data().Read(session.Path(warehouse, QString(u"PRICE\\"_s + list + u".prc"_s))));
      EXPECT_EQ(rows.size(), 68u);
      for (const auto& row : rows) {
        if (row.IsGroup()) continue;
        EXPECT_GT(NumberOr(row.sale), NumberOr(row.purchase)) << row.name.toStdString();
      }
    }
  }
}

TEST_F(DemoBooks, GoBesideADatabaseThatIsThereAndAreTheSameOnTheSameDay) {
  EXPECT_EQ(WriteDemonstrationBooks(temp.Data(), kToday), u"0002\\"_s);
  const auto tree = temp.Tree();
  for (const auto& [path, bytes] : tree) {
    if (!path.starts_with("0001/")) continue;
    const auto twin = tree.find("0002" + path.substr(4));
    ASSERT_NE(twin, tree.end()) << path;
    EXPECT_EQ(twin->second, bytes) << path;
  }
}

}  // namespace
}  // namespace kladez
