#include "SmallBooks.h"
#include "books/prices/DocumentCopy.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

const QDate kToday(2026, 11, 24);

class DocumentCopies : public testing::Test, protected BooksOnDisk {
 protected:
  DocumentCopies() {
    Goods(u" Бакалея|Чай|||шт.|45.50"_lines);
    PriceLists(u"Главный склад"_s, u"Розница|Опт"_lines,
               {u"Чай|шт.|45.50|70.00"_lines, u"Чай|шт.|45.50|65.00"_lines});
    // The second goods are in no directory by now.
    for (const auto kind :
         {DocumentKind::kReceipt, DocumentKind::kShipment, DocumentKind::kTransfer}) {
      DocumentDraft draft = DocumentDraft::New(In(kind), QDate(2026, 3, 1));
      if (BookOf(kind).has_flag) draft.SetParty(u"ИП Петров"_s);
      draft.SetDiscount(u"5"_s);
      draft.SetClosed(true);
      draft.AddLine({u"Чай"_s, u"3"_s, u"пач."_s, u"40"_s, u"60"_s});
      draft.AddLine({u"Мёд"_s, u"1"_s, u"б."_s, u"9"_s, u"10"_s});
      EXPECT_EQ(draft.Save(), DraftOutcome::kSaved);
    }
  }
  QString Copy(DocumentKind kind, const CopyChoice& choice) {
    const DocumentDraft copy = CopyOf(SmallBooks::Open(kind), choice, kToday);
    const DocumentHead& head = copy.Head();
    EXPECT_TRUE(copy.IsNew());
    EXPECT_EQ(copy.File().first(4), u"0002"_s);
    QStringList texts = {head.number, head.date,     head.party, head.destination,
                         head.sum,    head.discount, head.closed};
    for (const DraftLine& line : copy.Lines()) {
      texts << line.line.quantity << line.line.unit << line.line.cost << line.line.price;
    }
    return texts.join(u'|');
  }
};

TEST_F(DocumentCopies, TakePartyAndLinesAtTheChosenPrices) {
  using enum DocumentKind;
  const struct {
    DocumentKind kind;
    CopyChoice choice;
    QString copy;
  } cases[] = {
      {kReceipt,
       {.todays_prices = false},
       u"2|24.11.2026|ИП Петров||190.00||нет|3|пач.||60.00|1|б.||10.00"_s},
      {kReceipt, {}, u"2|24.11.2026|ИП Петров||146.50||нет|3|шт.|45.50|45.50|1|б.||10.00"_s},
      {kShipment,
       {.price_list = u"Опт"_s, .discount = u"7"_s},
       u"2|24.11.2026|ИП Петров||205.00|7|нет|3|шт.|45.50|65.00|1|б.|9|10.00"_s},
      {kShipment,
       {.price_list = u"нет такого"_s},
       u"2|24.11.2026|ИП Петров||220.00|5|нет|3|шт.|45.50|70.00|1|б.|9|10.00"_s},
      {kTransfer,
       {.price_list = u"Опт"_s},
       u"2|24.11.2026|Главный склад|Магазин|205.00|||3|шт.|45.50|65.00|1|б.|9|10.00"_s},
  };
  for (const auto& c : cases) EXPECT_EQ(Copy(c.kind, c.choice), c.copy);
}

}  // namespace
}  // namespace kladez
