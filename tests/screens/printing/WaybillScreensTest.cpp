#include "books/printing/WaybillParts.h"
#include "screens/printing/PrintWorld.h"
#include "screens/printing/WaybillScreen.h"
#include "ui/controls/Fields.h"
#include "ui/controls/FoldButton.h"

namespace kladez {
namespace {

// What stands between the parties and the footer of a document with one line.
QStringList OneRow(const char* name, const char* price, const char* sum) {
  return {u"<br>"_s,
          u"<CENTER>"_s,
          kLineTable,
          kWaybillHeadings,
          WaybillRow("1", name, "10", price, sum),
          u""_s,
          u"</center></table><p></p>"_s};
}

TEST(WaybillScreens, AShipmentIsPrintedWithItsDiscountAndTheScreenClosesBeforeTheViewerStarts) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  world.Watch(&screen);
  ShowActive(&screen);
  Click(&screen, "Command1");
  EXPECT_EQ(world.ViewerStarts(), 1);
  EXPECT_TRUE(world.ScreenWasClosedFirst());
  EXPECT_EQ(world->Temp().Bytes(u"nakl.htm"_s), "<none>") << "renamed to out.htm";
  ExpectPage(world.PageShown(),
             QStringList{
                 PageHead(u"Накладная"_s),
                 u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от "
                 u"12.03.2026</FONT></B><br></p>"_s,
                 u"<FONT FACE=Arial SIZE=3>От кого:Первая</U></b></FONT><br>"_s,
                 u"<FONT FACE=Arial SIZE=3>Кому:Ромашка</U></b></FONT><br>"_s,
                 u"<FONT FACE=Arial SIZE=3>Склад:Главный склад</U></b></FONT><br>"_s,
             } + OneRow("&nbsp;Чай <&>&nbsp;", "118.00", "1180.00") +
                 QStringList{
                     u"<br><FONT FACE=Arial SIZE=2><i>Всего: 1180.00 руб.</FONT></i>"_s,
                     u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
                     u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 1062.00 руб.,</FONT></i>"_s,
                     u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 162.00 руб.</FONT></i>"_s, u""_s,
                     u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 1</FONT></b>"_s,
                     u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Одна тысяча шестьдесят два рубля 00 "
                     u"копеек</FONT></b><BR>"_s} +
                 QStringList{kWaybillSignatures});
}

TEST(WaybillScreens, AReceiptComesFromItsSupplierAndTellsNoDiscount) {
  PrintWorld world;
  world.source.kind = DocumentKind::kReceipt;
  world.source.party = u"Завод"_s;
  world.source.discount.clear();
  world->Settings().Write(settings::kRate, u"2"_s);
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  EXPECT_EQ(TextOf(&screen, "Text19"), u"0"_s);
  Enter(&screen, "Text12", u"срочно"_s);
  Click(&screen, "Check7");
  Click(&screen, "Check4");
  Click(&screen, "Check6");
  Click(&screen, "Command1");
  ExpectPage(
      world.PageShown(),
      QStringList{
          PageHead(u"Накладная"_s),
          u"<FONT FACE=Arial SIZE=1>Курс USD: 2 руб.</FONT><br><br>"_s,
          u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от "
          u"12.03.2026</FONT></B><br><br></p>"_s,
          u"<FONT FACE=Arial SIZE=3>срочно</FONT><br><br>"_s,
          u"<FONT FACE=Arial SIZE=3>От кого:Завод</U></b></FONT><br>"_s,
          u"<FONT FACE=Arial SIZE=3>Кому:Первая</U></b></FONT><br>"_s,
      } + OneRow("&nbsp;Чай <&>", "236.00", "2360.00") +
          QStringList{
              u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 2360.00 руб.,</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 360.00 руб.</FONT></i>"_s,
              u"<br><FONT FACE=Arial SIZE=2><i>              НСП: 0.00 руб.</FONT></i>"_s, u""_s,
              u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 1</FONT></b>"_s,
              u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Две тысячи триста шестьдесят рублей 00 "
              u"копеек</FONT></b><BR>"_s} +
          QStringList{kWaybillSignatures});
}

TEST(WaybillScreens, ATransferHasNoTaxesAndSavesItsRateOnly) {
  PrintWorld world;
  world.source.kind = DocumentKind::kTransfer;
  world.source.party = u"Главный склад"_s;
  world.source.destination = u"Магазин"_s;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  EXPECT_EQ(screen.findChild<QWidget*>(u"Text7"_s), nullptr);
  EXPECT_EQ(screen.findChild<QWidget*>(u"Text5"_s), nullptr);
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text18", u"50"_s);
  Enter(&screen, "DecText1", u"1"_s);
  Click(&screen, "Command1");
  EXPECT_EQ(world->Settings().Read(settings::kVat), u""_s);
  ExpectPage(
      world.PageShown(),
      QStringList{
          PageHead(u"Накладная"_s),
          u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>Накладная N 5 от "
          u"12.03.2026</FONT></B><br></p>"_s,
          u"<FONT FACE=Arial SIZE=3>Откуда:Главный склад</U></b></FONT><br>"_s,
          u"<FONT FACE=Arial SIZE=3>Куда:Магазин</U></b></FONT><br>"_s,
      } + OneRow("&nbsp;Чай <&>&nbsp;", "59.00", "590.00") +
          QStringList{u"<br><FONT FACE=Arial SIZE=2><i>Всего: 590.00 руб.</FONT></i>"_s,
                      u"<br><FONT FACE=Arial SIZE=2><i>Итого: Пятьсот девяносто рублей 00 "
                      u"копеек</FONT></i>"_s,
                      u""_s,
                      u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 1</FONT></b>"_s} +
          QStringList{kWaybillSignatures});
}

TEST(WaybillScreens, LeavingARateSavesItAndLoadsAnewButKeepsTheTypedDiscount) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  EXPECT_EQ(TextOf(&screen, "Text19"), u"10"_s);
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text1", u"Другой заголовок"_s);
  Enter(&screen, "Text12", u"примечание"_s);
  Enter(&screen, "Text19", u"50"_s);
  EXPECT_EQ(TextOf(&screen, "Text20"), u"Одна тысяча шестьдесят два рубля 00 копеек"_s);
  Enter(&screen, "Text7", u"100"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "Text7"), Qt::Key_Tab);
  EXPECT_EQ(TextOf(&screen, "Text19"), u"50"_s);
  EXPECT_EQ(TextOf(&screen, "Text9"), u"295.00 руб."_s);
  EXPECT_EQ(TextOf(&screen, "Text20"), u"Пятьсот девяносто рублей 00 копеек"_s);
  EXPECT_EQ(TextOf(&screen, "Text1"), u"Накладная N 5 от 12.03.2026"_s);
  EXPECT_EQ(TextOf(&screen, "Text12"), u"примечание"_s);
  EXPECT_EQ(world->Settings().Read(settings::kVat), u"100"_s);
  EXPECT_EQ(world->Settings().Read(settings::kSalesTax), u"0"_s);
  EXPECT_EQ(world->Settings().Read(settings::kRate), u"1"_s);
  // The next screen opens with the rate, not with the taxes.
  WaybillScreen next(world.Context(), world.source);
  EXPECT_EQ(TextOf(&next, "Text7"), u"18"_s);
}

TEST(WaybillScreens, PercentagesAreInAllOfThePaperAndTheTypedHeadStays) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text1", u"Другой заголовок"_s);
  Enter(&screen, "Text18", u"50"_s);
  Enter(&screen, "Text19", u"20"_s);
  EXPECT_EQ(TextOf(&screen, "Text6"), u"590.00"_s);
  Click(&screen, "Command1");
  const QStringList lines = DecodeLines(world.PageShown());
  EXPECT_TRUE(lines.value(1).contains(u">Другой заголовок<"));
  EXPECT_EQ(lines.filter(u">59.00&nbsp;<"_s).filter(u">590.00&nbsp;<"_s).size(), 1);
  EXPECT_TRUE(lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Всего: 590.00 руб.</FONT></i>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 472.00 руб.,</FONT></i>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 72.00 руб.</FONT></i>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Четыреста семьдесят два рубля "
                     u"00 копеек</FONT></b><BR>"_s));
}

// A field that was only passed through changes nothing.
TEST(WaybillScreens, ATypedTotalStaysWhenNoPercentageWasTyped) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text20", u"Тысяча рублей"_s);
  for (const char* name : {"Text18", "Text19"}) {
    Find<QLineEdit>(&screen, name)->setFocus();
    QTest::keyClick(Find<QLineEdit>(&screen, name), Qt::Key_Tab);
  }
  EXPECT_EQ(TextOf(&screen, "Text20"), u"Тысяча рублей"_s);
}

TEST(WaybillScreens, ARateStillBeingTypedIsOnThePaperWhenEnterPrints) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  Enter(&screen, "DecText1", u"3"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "DecText1"), Qt::Key_Return);
  const QStringList lines = DecodeLines(world.PageShown());
  EXPECT_TRUE(lines.contains(u"<FONT FACE=Arial SIZE=1>Курс USD: 3 руб.</FONT><br><br>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 3186.00 руб.,</FONT></i>"_s));
}

bool IsShown(QWidget* screen, const char* name) { return Find<QWidget>(screen, name)->isVisible(); }

QString NoteOf(QWidget* screen, const char* name) { return Find<QLabel>(screen, name)->text(); }

TEST(WaybillScreens, ARateOfLastTimeIsToldAndOneClickSetsItForThisPaperOnly) {
  PrintWorld world;
  world->Settings().Write(settings::kRate, u"2"_s);
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  EXPECT_EQ(NoteOf(&screen, "effect"), u"Курс $ 2, скидка 10%: сумма 1180.00, на бумаге 2124.00"_s);
  EXPECT_TRUE(IsShown(&screen, "rate_note"));
  Click(&screen, "rate_one");
  EXPECT_FALSE(IsShown(&screen, "rate_note"));
  EXPECT_EQ(NoteOf(&screen, "effect"), u"Скидка 10%: сумма 1180.00, на бумаге 1062.00"_s);
  // Another rate that is left loads anew, with the paper's own rate, and does not keep it.
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text7", u"20"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "Text7"), Qt::Key_Tab);
  EXPECT_EQ(TextOf(&screen, "Text6"), u"1180.00"_s);
  EXPECT_EQ(world->Settings().Read(settings::kRate), u"2"_s);
  // A typed one is meant, and kept.
  Enter(&screen, "DecText1", u"3"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "DecText1"), Qt::Key_Tab);
  EXPECT_EQ(world->Settings().Read(settings::kRate), u"3"_s);
  EXPECT_EQ(TextOf(&screen, "Text6"), u"3540.00"_s);
  EXPECT_FALSE(IsShown(&screen, "rate_note"));
}

TEST(WaybillScreens, ADecimalCommaIsThePointInThePercentages) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  Enter(&screen, "Text18", u"50,5"_s);
  Enter(&screen, "Text19", u"0,5"_s);
  Click(&screen, "Command1");
  const QStringList lines = DecodeLines(world.PageShown());
  EXPECT_TRUE(lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 0,5%</FONT></i>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 592.92 руб.,</FONT></i>"_s));
}

TEST(WaybillScreens, TheTaxesAreThoseOfTheDatabaseAndCutWordsAreTold) {
  PrintWorld world;
  world.source.total = u"1000000000.00"_s;
  const std::pair<const char*, QString> cases[] = {
      {"\xCD\xC4\xD1, %\r\n20\r\n\xCD\xD1\xCF, %\r\n\r\n", u"20"_s}, {"damaged", u"18"_s}};
  for (const auto& [bytes, vat] : cases) {
    world->Temp().Put(u"0001\\kladez\\ставки.usd"_s, bytes);
    WaybillScreen screen(world.Context(), world.source);
    ShowActive(&screen);
    EXPECT_EQ(TextOf(&screen, "Text7"), vat);
    EXPECT_EQ(TextOf(&screen, "Text8"), u"0"_s);
    EXPECT_EQ(IsShown(&screen, "no_taxes"), vat == u"18");
    EXPECT_FALSE(IsShown(&screen, "words_cut"));
    Click(&screen, "GoldButton1");
    Enter(&screen, "Text19", u"0"_s);
    QTest::keyClick(Find<QLineEdit>(&screen, "Text19"), Qt::Key_Tab);
    EXPECT_TRUE(IsShown(&screen, "words_cut"));
  }
}

TEST(WaybillScreens, ATextThatIsNoNumberEndsTheLoadAndThePrintWaitsForItsMessage) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Click(&screen, "GoldButton1");
  Enter(&screen, "DecText1", u"2"_s);
  Enter(&screen, "Text8", u"много"_s);
  {
    ModalAnswers answers({InputErrorTold()});
    Click(&screen, "Command1");
    LetMessagesCome();
  }
  EXPECT_EQ(world.ViewerStarts(), 0);
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(TextOf(&screen, "Text6"), u"2360.00"_s) << "what was worked out before it stays";
  EXPECT_EQ(TextOf(&screen, "Text9"), u"324.00 руб."_s);
  // The print itself asks nothing: the fields go to paper as they stand.
  Click(&screen, "Command1");
  EXPECT_EQ(world.ViewerStarts(), 1);
}

TEST(WaybillScreens, WithoutASelectedDocumentTheLoadFails) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), PrintSource());
  ModalAnswers answers({InputErrorTold()});
  screen.show();
  LetMessagesCome();
}

TEST(WaybillScreens, AQuantityThatIsNoNumberLeavesNoPageAndNoClosedScreen) {
  PrintWorld world;
  world.source.lines[0].quantity = u"2,5"_s;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  {
    ModalAnswers answers({Press(QMessageBox::Ok,
                                u"Накладная не напечатана: в строке 1 («Чай "
                                u"<&>») количество «2,5» - не число."_s)});
    Click(&screen, "Command1");
  }
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(world->Temp().Bytes(u"nakl.htm"_s), "<none>");
  EXPECT_EQ(world.ViewerStarts(), 0);
}

TEST(WaybillScreens, AWorkFileThatCannotBeWrittenIsTold) {
  PrintWorld world;
  world->Temp().Put(u"nakl.htm\\x"_s, "");
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_TRUE(qobject_cast<QMessageBox*>(dialog)->text().contains(u"nakl.htm"_s));
      dialog->close();
    }});
    Click(&screen, "Command1");
  }
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(world.ViewerStarts(), 0);
}

TEST(WaybillScreens, TheButtonFoldsTheParametersAndEscapeCloses) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  const QLineEdit* rate = Find<QLineEdit>(&screen, "DecText1");
  EXPECT_FALSE(rate->isVisible());
  const auto* fold = Find<FoldButton>(&screen, "GoldButton1");
  EXPECT_TRUE(fold->text().startsWith(u'+'));
  Click(&screen, "GoldButton1");
  EXPECT_TRUE(rate->isVisible());
  EXPECT_TRUE(fold->text().startsWith(u'-'));
  EXPECT_TRUE(fold->text().remove(u'&').endsWith(u"  Параметры"_s));
  QTest::keyClick(&screen, Qt::Key_Escape);
  EXPECT_FALSE(screen.isVisible());
  EXPECT_EQ(world.ViewerStarts(), 0);
}

// Neither a longer name nor one in other letters takes the place of what was typed.
TEST(WaybillScreens, AFreePartyIsPrintedAsTyped) {
  PrintWorld world;
  world->CurrentSession().Parties(PartyKind::kClient) = {u"ИП Петров-Водкин"_s, u"ИП ПЕТРОВ"_s};
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  auto* line = Find<QComboBox>(&screen, "Text3")->lineEdit();
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return}) {
    line->setFocus();
    line->selectAll();
    Type(line, u"ИП Петров"_s);
    QTest::keyClick(line, key);
    EXPECT_EQ(line->text(), u"ИП Петров"_s);
  }
  EXPECT_TRUE(DecodeLines(world.PageShown())
                  .contains(u"<FONT FACE=Arial SIZE=3>Кому:ИП Петров</U></b></FONT><br>"_s));
}

TEST(WaybillScreens, PartiesAreTypedFreelyButOnlyWhatAFileHolds) {
  PrintWorld world;
  WaybillScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  auto* party = Find<QComboBox>(&screen, "Text3");
  party->lineEdit()->selectAll();
  Type(party->lineEdit(), u"ИП Ωмега"_s);
  EXPECT_EQ(party->currentText(), u"ИП мега"_s);
  Click(&screen, "Command1");
  EXPECT_TRUE(DecodeLines(world.PageShown())
                  .contains(u"<FONT FACE=Arial SIZE=3>Кому:ИП мега</U></b></FONT><br>"_s));
}

}  // namespace
}  // namespace kladez
