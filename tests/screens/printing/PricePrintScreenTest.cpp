#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "screens/printing/PricePrintScreen.h"

namespace kladez {
namespace {

PriceRow Item(const QString& name, bool ticked = false) {
  PriceRow row;
  row.name = name;
  row.unit = u"шт."_s;
  row.purchase = u"10.00"_s;
  row.sale = u"20.00"_s;
  row.ticked = ticked;
  return row;
}

class PricePrinting : public testing::Test {
 protected:
  PricePrinting() {
    QStringList firm(15, u"-"_s);
    firm[0] = u"ООО Ромашка"_s;
    firm[1] = u"Самара, юр."_s;
    firm[3] = u"11-22"_s;
    firm[4] = u"33"_s;
    SmallBooks(world_.Temp().Data(), world_.CurrentSession())
        .Warehouses(u"А|Б"_lines)
        .PartyFile(PartyKind::kFirm, firm)
        .Goods(u" Чай|Улун|||шт.|10.00|Ассам|||шт.|10.00"_lines)
        .Ledger(u"А"_s, u"Улун|3|шт."_lines)
        .Ledger(u"Б"_s, u"Улун|4|шт."_lines);
    PriceRow group;
    group.name = u" Чай"_s;
    source_ = {u"А"_s, {{group, Item(u"Улун"_s, true), Item(u"Ассам"_s)}, {2}}};
    // What the screen proposes.
    proposed_.firm = u"ООО Ромашка"_s;
    proposed_.address = u"Самара, юр."_s;
    proposed_.phone = u"Тел.:11-22, факс:33"_s;
    proposed_.date = u"22 ноября 2026"_s;
    proposed_.title = u"Прайс-лист"_s;
    proposed_.unit = u"Ед. изм."_s;
    proposed_.sale = u"Цена"_s;
  }

  QByteArray Page(const PricePageOptions& options, const StockByName& stock) const {
    return PricePage(source_.rows, stock, options);
  }
  QByteArray Printed(const std::function<void(QWidget*)>& set) {
    PricePrintScreen screen(world_.Context(), source_);
    ShowActive(&screen);
    set(&screen);
    Click(&screen, "Command1");
    EXPECT_FALSE(screen.isVisible());
    return world_.Temp().Bytes(u"out.htm"_s);
  }

  ScreenWorld world_;
  PricePrintSource source_;
  PricePageOptions proposed_;
  const StockByName one_ = {{u"Улун"_s, u"3"_s}, {u"Ассам"_s, u"0"_s}};
  const StockByName both_ = {{u"Улун"_s, u"7"_s}, {u"Ассам"_s, u"0"_s}};
};

// The key that switches a mark; a click would have to meet the mark or its caption.
void Toggle(QWidget* screen, const char* name) {
  auto* mark = Find<QAbstractButton>(screen, name);
  EXPECT_TRUE(mark->isEnabled()) << name;
  QTest::keyClick(mark, Qt::Key_Space);
}

void SetText(QWidget* screen, const char* name, const QString& text) {
  auto* field = Find<QLineEdit>(screen, name);
  EXPECT_TRUE(field->isEnabled()) << name;
  field->selectAll();
  Type(field, text);
}

TEST_F(PricePrinting, OkPrintsWhatIsProposed) {
  EXPECT_EQ(Printed([](QWidget*) {}), Page(proposed_, one_));
  EXPECT_EQ(world_.ViewerStarts(), 1);
}

TEST_F(PricePrinting, EveryOptionReachesThePage) {
  PricePageOptions options;
  options.signature = u"Ждём"_s;
  options.stock = true;
  options.purchase = u"Закуп"_s;
  options.purchase_percent = 150;
  options.sale = u"Продажа"_s;
  options.sale_percent = 50;
  options.borders = {.goods = false, .groups = false};
  options.by_groups = false;
  options.gap = 3;
  options.goods = PrintedGoods::kPresent;
  options.at_most = 7;
  const QByteArray page = Printed([](QWidget* screen) {
    for (const char* name :
         {"Check6", "Check7", "Check8", "Check9", "Check10", "Check11", "Check2", "Check3",
          "Check5", "Check15", "Check12", "Check13", "Check1", "Check14"}) {
      Toggle(screen, name);
    }
    Toggle(screen, "Option2");
    SetText(screen, "Text5", u"Ждём"_s);
    SetText(screen, "Text10", u"Закуп"_s);
    SetText(screen, "Text7", u"150"_s);
    SetText(screen, "Text11", u"Продажа"_s);
    SetText(screen, "Text8", u"50"_s);
    const auto* effect = Find<QLabel>(screen, "effect");
    EXPECT_TRUE(effect->isVisible());
    EXPECT_EQ(effect->text(), u"Цена закупа 150%, цена реализации 50%"_s);
    SetText(screen, "Text12", u"3"_s);
    SetText(screen, "Text14", u"7"_s);
  });
  EXPECT_EQ(page, Page(options, both_)) << "quantities are those of all warehouses";
}

TEST_F(PricePrinting, EachChoiceOfGoodsIsItsFilter) {
  const struct {
    const char* option;
    PrintedGoods goods;
  } cases[] = {{"Option3", PrintedGoods::kAbsent},
               {"Option4", PrintedGoods::kSelected},
               {"Option5", PrintedGoods::kTicked},
               {"Option6", PrintedGoods::kNotTicked}};
  for (const auto& c : cases) {
    proposed_.goods = c.goods;
    EXPECT_EQ(Printed([&](QWidget* screen) { Toggle(screen, c.option); }), Page(proposed_, one_))
        << c.option;
  }
}

TEST_F(PricePrinting, GroupsDisableTheGap) {
  PricePrintScreen screen(world_.Context(), source_);
  ShowActive(&screen);
  EXPECT_FALSE(Find<QCheckBox>(&screen, "Check14")->isEnabled());
  Toggle(&screen, "Check1");
  Toggle(&screen, "Check14");
  EXPECT_TRUE(Find<QWidget>(&screen, "Text12")->isEnabled());
  Toggle(&screen, "Check1");
  EXPECT_FALSE(Find<QCheckBox>(&screen, "Check14")->isEnabled());
  EXPECT_FALSE(Find<QWidget>(&screen, "Text12")->isEnabled());
}

TEST_F(PricePrinting, AMissingLedgerIsToldAndTheScreenStays) {
  QFile::remove(world_.Temp().Data().Resolve(u"0001\\А\\товар.usl"_s));
  PricePrintScreen screen(world_.Context(), source_);
  ShowActive(&screen);
  ModalAnswers answers({Press(QMessageBox::Ok)});
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(world_.ViewerStarts(), 0);
}

}  // namespace
}  // namespace kladez
