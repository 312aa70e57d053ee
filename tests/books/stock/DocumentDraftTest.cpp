#include <filesystem>

#include "SmallBooks.h"
#include "books/stock/DraftStock.h"
#include "system/SystemCalls.h"

namespace kladez {
namespace {

using Files = std::map<QString, QStringList>;
using Outcome = DocumentDraft::Outcome;

const QString kPrh = u"Склад/PRH/0001.prh"_s;
const QString kUhd = u"Склад/UHD/0001.uhd"_s;
const QString kVpr = u"ВНПЕР/0001.vpr"_s;
const QString kStock = u"Склад/товар.usl"_s;
const QString kShop = u"Магазин/товар.usl"_s;

class Drafts : public testing::Test {
 protected:
  Drafts() { books_.Warehouses(u"Склад|Магазин"_lines); }

  DocumentDraft New(DocumentKind kind) const {
    return DocumentDraft::New(books_.In(kind), QDate(2026, 11, 22));
  }
  // Opens the only document there is, as its register shows it.
  DocumentDraft Reopen(DocumentKind kind) const { return books_.Open(kind); }
  void Stock(const QString& warehouse, const QStringList& lines) const {
    temp_.PutLines(LedgerPath(session_, warehouse), lines);
  }

  TempData temp_;
  Session session_;
  SmallBooks books_{temp_.Data(), session_};
};

GoodsPick Pick(const QString& name, const QString& quantity, const QString& price,
               const QString& cost = {}) {
  return {.name = name, .quantity = quantity, .unit = u"шт."_s, .cost = cost, .price = price};
}

TEST_F(Drafts, AnOpenReceiptMovesNoStock) {
  DocumentDraft draft = New(DocumentKind::kReceipt);
  draft.SetParty(u"ООО Заря"_s);
  EXPECT_TRUE(draft.AddLine(Pick(u"Чай"_s, u"3"_s, u"45.00"_s)));
  EXPECT_TRUE(draft.AddLine(Pick(u"Чай"_s, u"0.333"_s, u"10"_s)));
  EXPECT_EQ(draft.Save(), Outcome::kSaved);
  EXPECT_EQ(
      Filled(temp_),
      (Files{
          {kPrh, u"1|22.11.2026|ООО Заря|138.33|нет|Чай|3|шт.|45.00|Чай|0.333|шт.|10.00"_lines}}));
}

TEST_F(Drafts, AReceiptPostsOnceWhenItIsClosed) {
  Stock(u"Склад"_s, u"Чай|1.5|шт."_lines);
  DocumentDraft draft = New(DocumentKind::kReceipt);
  draft.AddLine(Pick(u"Чай"_s, u"0.125"_s, u"45.00"_s));
  draft.AddLine(Pick(u"Кофе"_s, u"2"_s, u"100.00"_s));
  draft.Save();
  DocumentDraft again = Reopen(DocumentKind::kReceipt);
  EXPECT_FALSE(again.WasClosed());
  again.SetClosed(true);
  again.Save();
  const QStringList posted = u"Чай|1.625|шт.|Кофе|2|шт."_lines;
  EXPECT_EQ(Filled(temp_)[kStock], posted);
  // Its lines may still change; the ledger does not follow.
  DocumentDraft closed = Reopen(DocumentKind::kReceipt);
  EXPECT_TRUE(closed.WasClosed());
  closed.RemoveLine(1);
  closed.ChangeLine(0, u"7"_s, u"45"_s, u"315.00"_s);
  EXPECT_EQ(closed.Save(), Outcome::kSaved);
  EXPECT_EQ(Filled(temp_),
            (Files{{kPrh, u"1|22.11.2026|-|315.00|да|Чай|7|шт.|45.00"_lines}, {kStock, posted}}));
}

TEST_F(Drafts, AShipmentTakesTheDiscountOffSumAndPrices) {
  Stock(u"Склад"_s, u"Чай|10|шт."_lines);
  DocumentDraft draft = New(DocumentKind::kShipment);
  draft.SetParty(u"ООО Свет"_s);
  draft.AddLine(Pick(u"Чай"_s, u"0.125"_s, u"60.01"_s, u"45,5"_s));
  draft.AddLine(Pick(u"Кофе"_s, u"2"_s, u"99.99"_s, {}));
  draft.SetDiscount(u"7.5"_s);
  draft.SetClosed(true);
  EXPECT_EQ(draft.Save(), Outcome::kSaved);
  // 0.125 x 60.01 is 7.50; 207.48 less 7.5 percent is 191.919.
  EXPECT_EQ(Filled(temp_),
            (Files{{kUhd,
                    u"1|22.11.2026|ООО Свет|207.48|7.5|191.92|да|Чай|0.125|шт.|45,5|60.01|"
                    u"55.51|Кофе|2|шт.||99.99|92.49"_lines},
                   {kStock, u"Чай|9.88|шт.|Кофе|-2.00|шт."_lines}}));
}

TEST_F(Drafts, WithoutADiscountBothSumsAreOne) {
  DocumentDraft draft = New(DocumentKind::kShipment);
  draft.AddLine(Pick(u"Чай"_s, u"3"_s, u"60"_s, u"45"_s));
  draft.Save();
  EXPECT_EQ(Filled(temp_)[kUhd],
            QStringList(u"1|22.11.2026|-|180.00|0|180.00|нет|Чай|3|шт.|45|60.00|60.00"_lines));
}

TEST_F(Drafts, ATransferPostsAtItsFirstSaveAndRoundsTheSourceOnly) {
  Stock(u"Склад"_s, u"Чай|10|шт."_lines);
  Stock(u"Магазин"_s, u"Чай|1|шт."_lines);
  DocumentDraft draft = New(DocumentKind::kTransfer);
  draft.AddLine(Pick(u"Чай"_s, u"1.125"_s, u"60"_s, u"45"_s));
  draft.AddLine(Pick(u"Кофе"_s, u"0.500"_s, u"10"_s, u"5"_s));
  EXPECT_EQ(draft.Save(), Outcome::kSaved);
  Files after = {{kVpr,
                  u"1|22.11.2026|Склад|Магазин|72.50|Чай|1.125|шт.|45|60.00|Кофе|0.500|шт.|"
                  u"5|10.00"_lines},
                 {kStock, u"Чай|8.88|шт.|Кофе|-0.50|шт."_lines},
                 {kShop, u"Чай|2.125|шт.|Кофе|0.5|шт."_lines}};
  EXPECT_EQ(Filled(temp_), after);
  DocumentDraft again = Reopen(DocumentKind::kTransfer);
  again.RemoveLine(0);
  EXPECT_EQ(again.Save(), Outcome::kSaved);
  after[kVpr] = u"1|22.11.2026|Склад|Магазин|5.00|Кофе|0.500|шт.|5|10.00"_lines;
  EXPECT_EQ(Filled(temp_), after);
}

TEST_F(Drafts, ATransferWithinOneWarehouseIsRefused) {
  DocumentDraft draft = New(DocumentKind::kTransfer);
  draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"60"_s));
  draft.ChooseWarehouse(&DocumentHead::destination, u"Склад"_s);
  EXPECT_EQ(draft.Save(), Outcome::kSameWarehouse);
  EXPECT_EQ(Filled(temp_), Files());
}

TEST_F(Drafts, ATransferTurnedRoundPostsToTheLedgersChosenLast) {
  Stock(u"Склад"_s, u"Чай|10|шт."_lines);
  DocumentDraft draft = New(DocumentKind::kTransfer);
  draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"60"_s));
  draft.ChooseWarehouse(&DocumentHead::party, u"Магазин"_s);
  draft.ChooseWarehouse(&DocumentHead::destination, u"Склад"_s);
  EXPECT_THROW(draft.ChooseWarehouse(&DocumentHead::destination, u"Нет такого"_s),
               std::filesystem::filesystem_error);
  draft.Save();
  EXPECT_EQ(Filled(temp_)[kStock], QStringList(u"Чай|11|шт."_lines));
  EXPECT_EQ(Filled(temp_)[kShop], QStringList(u"Чай|-1.00|шт."_lines));
}

TEST_F(Drafts, WithoutLinesNothingIsWritten) {
  for (const DocumentKind kind : {DocumentKind::kReceipt, DocumentKind::kShipment}) {
    DocumentDraft draft = New(kind);
    draft.SetClosed(true);
    EXPECT_EQ(draft.Save(), Outcome::kNoLines);
  }
  EXPECT_EQ(Filled(temp_), Files());
}

TEST_F(Drafts, PicksOfGroupsAndEmptyFieldsAddNothing) {
  DocumentDraft draft = New(DocumentKind::kReceipt);
  GoodsPick group = Pick(u" Чай и кофе"_s, u"1"_s, u"1"_s);
  group.is_group = true;
  for (const GoodsPick& pick :
       {group, Pick({}, u"1"_s, u"1"_s), Pick(u"Чай"_s, {}, u"1"_s), Pick(u"Чай"_s, u"1"_s, {})}) {
    EXPECT_FALSE(draft.AddLine(pick));
  }
  EXPECT_TRUE(draft.Lines().empty());
  EXPECT_EQ(draft.Head().sum, u"0.00");
}

// The sum goes by the rounded amounts as they come and go: a sum that was edited by hand, or stood
// wrong in the file, keeps its difference.
TEST_F(Drafts, TheSumIsNeverSummedAnew) {
  DocumentDraft draft = New(DocumentKind::kReceipt);
  for (int i = 0; i < 3; ++i) draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"0.335"_s));
  EXPECT_EQ(draft.Lines().at(0).amount, u"0.34");
  EXPECT_EQ(draft.Head().sum, u"1.02");
  draft.SetSum(u"100"_s);
  draft.ChangeLine(1, u"0"_s, u"5"_s, u"0.00"_s);
  EXPECT_EQ(draft.Lines().at(1).amount, u"0.00");
  EXPECT_EQ(draft.Head().sum, u"99.66");
  draft.RemoveLine(0);
  EXPECT_EQ(draft.Head().sum, u"99.32");
}

TEST_F(Drafts, WithoutALedgerNoDocumentIsBegun) {
  QFile::remove(temp_.Data().Resolve(LedgerPath(session_, u"Склад"_s)));
  for (const DocumentKind kind :
       {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
    EXPECT_THROW(New(kind), std::filesystem::filesystem_error);
  }
}

// A save that the disk refuses half-way leaves neither half, and a second try posts once.
TEST_F(Drafts, ARefusedSaveChangesNothingAndMayBeRepeated) {
  Stock(u"Склад"_s, u"Чай|10|шт."_lines);
  const auto before = temp_.Tree();
  DocumentDraft draft = New(DocumentKind::kTransfer);
  draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"60"_s));
  int calls = 0;
  for (int fail_at = 1;; ++fail_at) {
    calls = 0;
    syscalls::SetFaultHook(
        [&](std::string_view, const QByteArray&) { return ++calls == fail_at ? ENOSPC : 0; });
    bool saved = true;
    try {
      draft.Save();
    } catch (const std::filesystem::filesystem_error&) {
      saved = false;
    }
    syscalls::SetFaultHook({});
    if (saved) break;
    ASSERT_EQ(temp_.Tree(), before) << "call " << fail_at;
    ASSERT_LT(fail_at, 100);
  }
  EXPECT_GT(calls, 5);
  EXPECT_EQ(Filled(temp_)[kStock], QStringList(u"Чай|9.00|шт."_lines));
  EXPECT_EQ(Filled(temp_)[kShop], QStringList(u"Чай|1|шт."_lines));
}

TEST_F(Drafts, DamagedDocumentsOpenWithWhatTheyHave) {
  const QByteArray good =
      EncodeText(u"7\r\n22.11.2026 \r\nООО Заря\r\nсто\r\n\r\nЧай\r\nдве\r\nшт.\r\n5\r\nКофе\r\n3");
  temp_.Put(u"0001\\Склад\\PRH\\0001.prh"_s, good);
  const DocumentDraft draft = Reopen(DocumentKind::kReceipt);
  EXPECT_TRUE(draft.WasClosed());  // whatever is not "нет"
  EXPECT_EQ(draft.Head().sum, u"0");
  EXPECT_EQ(draft.Head().date, u"22.11.2026");
  ASSERT_EQ(draft.Lines().size(), 2);
  EXPECT_EQ(draft.Lines()[0].amount, u"0.00");
  EXPECT_EQ(draft.Lines()[1].line.quantity, u"3");
  EXPECT_EQ(draft.Lines()[1].amount, u"0.00");
}

TEST_F(Drafts, PrintScreensGetWhatTheEditorShows) {
  DocumentDraft draft = New(DocumentKind::kShipment);
  draft.SetNumber(u"15/а"_s);
  draft.SetDiscount(u"5"_s);
  draft.AddLine(Pick(u"Чай"_s, u"3"_s, u"60"_s, u"45"_s));
  const PrintSource source = draft.ToPrint();
  EXPECT_EQ(source.kind, DocumentKind::kShipment);
  EXPECT_EQ(source.number, u"15/а");
  EXPECT_EQ(source.warehouse, u"Склад");
  EXPECT_EQ(source.total, u"180.00");
  EXPECT_EQ(source.discount, u"5");
  ASSERT_EQ(source.lines.size(), 1);
  EXPECT_EQ(source.lines[0].price, u"60.00");
}

TEST_F(Drafts, StockCountsTheLinesOfTheDraftUntilTheyHavePosted) {
  temp_.PutLines(u"0001\\spr\\товар.spr"_s, u"Чай|-|-|шт.|1|Соль|-|-|кг|1"_lines);
  temp_.PutLines(u"0001\\Склад\\товар.usl"_s, u"Чай|1|шт."_lines);
  for (const auto& [kind, left] :
       {std::pair(DocumentKind::kShipment, 0.7), std::pair(DocumentKind::kReceipt, 1.3)}) {
    DocumentDraft draft = New(kind);
    for (const QString& quantity : {u"0.1"_s, u"0.2"_s}) {
      draft.AddLine(Pick(u"Чай"_s, quantity, u"1"_s));
    }
    const DraftStock stock(draft);
    EXPECT_EQ(stock.OnHand(u"Чай"_s), left);
    EXPECT_EQ(stock.OnHand(u"Чай"_s, 1), kind == DocumentKind::kShipment ? 0.9 : 1.1);
    EXPECT_EQ(stock.OnHand(u"Соль"_s), 0.0);
    EXPECT_EQ(stock.OnHand(u"Мыло"_s), std::nullopt);
    draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"1"_s));
    EXPECT_EQ(stock.ShortLines(),
              std::vector<bool>({false, false, kind == DocumentKind::kShipment}));
  }
}

TEST_F(Drafts, AfterFourDigitsTheFreeNameStandsAboveTheHighest) {
  for (const QString& file : {u"9999.prh"_s, u"10000.prh"_s}) {
    temp_.PutLines(u"0001\\Склад\\PRH\\"_s + file, {u"1"_s});
  }
  DocumentDraft draft = New(DocumentKind::kReceipt);
  draft.AddLine(Pick(u"Чай"_s, u"1"_s, u"1"_s));
  EXPECT_EQ(draft.File(), u"10000.prh") << "the told numbering";
  EXPECT_EQ(draft.Save(), DocumentDraft::Outcome::kFileExists);
  draft.SaveAs(draft.FreeFile());
  EXPECT_EQ(draft.Save(), DocumentDraft::Outcome::kSaved);
  EXPECT_EQ(draft.File(), u"10001.prh");
  EXPECT_EQ(temp_.Lines(u"0001\\Склад\\PRH\\10000.prh"_s), QStringList(u"1"_s));
}

}  // namespace
}  // namespace kladez
