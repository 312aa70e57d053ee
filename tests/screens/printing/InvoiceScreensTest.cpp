#include "screens/printing/InvoiceScreen.h"
#include "screens/printing/PrintWorld.h"
#include "ui/controls/Fields.h"

namespace kladez {
namespace {

// The lines of a page from the first that begins with a text.
QStringList From(const QByteArray& page, const QString& beginning) {
  const QStringList lines = DecodeLines(page);
  for (qsizetype i = 0; i < lines.size(); ++i) {
    if (lines[i].startsWith(beginning)) return lines.mid(i);
  }
  return {};
}

TEST(InvoiceScreens, TheFirstLoadTakesTheDiscountAndFillsTheParties) {
  PrintWorld world;
  world->Settings().Write(settings::kInvoiceTrader, u"Сидоров"_s);
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  EXPECT_EQ(screen.windowTitle(), u"Счет-фактура"_s);
  const std::pair<const char*, QString> fields[] = {
      {"Text1", u"Счет-фактура N 5 от 12.03.2026"_s},
      {"Text12", u"5"_s},
      {"Text13", u"12.03.2026"_s},
      {"Text3", u"Первая2"_s},
      {"Text21", u"Первая6"_s},
      {"Text22", u"Первая7"_s},
      {"Text23", u"Первая8"_s},
      {"Text31", u"Первая9"_s},
      {"Text4", u"Первая10"_s},
      {"Text24", u"Первая11"_s},
      {"Text25", u"Первая12"_s},
      {"Text5", u"Первая13"_s},
      {"Text34", u"Первая14"_s},
      {"Text36", u"Первая15"_s},
      {"Text35", u"Сидоров"_s},
      {"Text15", u"к2"_s},
      {"Text27", u"к7"_s},
      {"Text26", u"к8"_s},
      {"Text30", u"к10"_s},
      {"Text32", u"к11"_s},
      {"Text16", u"к12"_s},
      {"Text28", u"к13"_s},
      {"Text29", u"к14"_s},
      {"Text11", u"он же"_s},
      {"Text19", u"10"_s},
      {"Text6", u"1062.00"_s},
      {"Text9", u"145.80 руб."_s},
      {"Text10", u"0.00 руб."_s},
      {"Text20", u"Девятьсот пятьдесят пять рублей 80 копеек"_s},
  };
  for (const auto& [name, text] : fields) {
    EXPECT_EQ(TextOf(&screen, name).toStdString(), text.toStdString()) << name;
  }
}

TEST(InvoiceScreens, ThePickOfAPartyFillsItsFieldsAndALoadPutsTheFirstBack) {
  PrintWorld world;
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  ShowActive(&screen);
  auto* seller = Find<QComboBox>(&screen, "Text2");
  seller->setFocus();
  QTest::keyClick(seller, Qt::Key_Down);
  EXPECT_EQ(seller->currentText(), u"Вторая <&>"_s);
  EXPECT_EQ(TextOf(&screen, "Text4"), u"Вторая10"_s);
  EXPECT_EQ(TextOf(&screen, "Text34"), u"Вторая14"_s);
  Click(&screen, "Option2");
  EXPECT_EQ(seller->currentText(), u"Первая"_s);
  EXPECT_EQ(TextOf(&screen, "Text4"), u"Первая10"_s);
}

TEST(InvoiceScreens, PercentagesAreInTheRowsAndThePickedPartyStays) {
  PrintWorld world;
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  ShowActive(&screen);
  auto* seller = Find<QComboBox>(&screen, "Text2");
  seller->setFocus();
  QTest::keyClick(seller, Qt::Key_Down);
  Enter(&screen, "Text19", u"0"_s);
  Enter(&screen, "Text18", u"50"_s);
  Click(&screen, "Command1");
  const QString page = DecodeText(world.PageShown());
  EXPECT_TRUE(page.contains(u"Продавец: Вторая <&><br>"));
  EXPECT_TRUE(page.contains(u">50.00&nbsp;<")) << "the net price";
  EXPECT_TRUE(page.contains(u">590.00&nbsp;<")) << "the sum with the tax";
}

TEST(InvoiceScreens, DollarsTakeTheDiscountOutOfTheRows) {
  PrintWorld world;
  world->Settings().Write(settings::kRate, u"2"_s);
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  ShowActive(&screen);
  EXPECT_EQ(TextOf(&screen, "Text6"), u"2124.00"_s);
  Click(&screen, "Option2");
  EXPECT_EQ(TextOf(&screen, "Text6"), u"2360.00"_s);
  EXPECT_EQ(TextOf(&screen, "Text9"), u"324.00$"_s);
  Click(&screen, "Check1");
  Click(&screen, "Check8");
  Click(&screen, "Command1");
  const QStringList page = DecodeLines(world.PageShown());
  EXPECT_FALSE(page.contains(u"<FONT FACE=Arial SIZE=2>Поставщик: Первая</FONT><br>"_s));
  EXPECT_TRUE(page.contains(u"<FONT FACE=Arial SIZE=2>Расч.счет: Первая6 в Первая7</FONT><br>"_s));
  EXPECT_FALSE(
      page.contains(u"<FONT FACE=Arial SIZE=2>К платежно-расчетному документу N: 5</FONT><br>"_s));
  EXPECT_EQ(From(world.PageShown(),
                 u"<tr><TD WIDTH=1% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=2>"_s)
                .value(0)
                .toStdString(),
            "<tr><TD WIDTH=1% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=2>1</FONT></TD>"
            "<TD WIDTH=15% VALIGN=TOP><FONT FACE=Arial SIZE=2>&nbsp;Чай <&></FONT></TD>"
            "<TD WIDTH=4% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=2>Индия</FONT></TD>"
            "<TD WIDTH=4% VALIGN=TOP><FONT FACE=Arial SIZE=2>ГТД/1</FONT></TD>"
            "<TD WIDTH=3% VALIGN=TOP><FONT FACE=Arial SIZE=2>пач.</FONT></TD>"
            "<TD WIDTH=5% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>10&nbsp;</FONT></TD>"
            "<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>200.00&nbsp;</FONT></TD>"
            "<TD WIDTH=3% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>&nbsp;</FONT></TD>"
            "<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>2000.00&nbsp;</FONT></TD>"
            "<TD WIDTH=3% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>&nbsp;</FONT></TD>"
            "<TD WIDTH=4% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>18&nbsp;</FONT></TD>"
            "<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>360.00&nbsp;</FONT></TD>"
            "<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>2360.00&nbsp;</FONT></TD>"
            "</tr>");
}

TEST(InvoiceScreens, ThePrintOfAnInvoiceRemembersTheTraderAndThatOfABillDoesNot) {
  PrintWorld world;
  {
    InvoiceScreen bill(world.Context(), InvoiceKind::kBill, world.source);
    ShowActive(&bill);
    Enter(&bill, "Text35", u"Чужой"_s);
    Click(&bill, "Command1");
    EXPECT_EQ(world.ViewerStarts(), 1);
    EXPECT_EQ(world->Settings().Read(settings::kInvoiceTrader), u""_s);
  }
  InvoiceScreen invoice(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  world.Watch(&invoice);
  ShowActive(&invoice);
  Enter(&invoice, "Text35", u"Сидоров"_s);
  Click(&invoice, "Command1");
  EXPECT_TRUE(world.ScreenWasClosedFirst());
  EXPECT_EQ(world->Settings().Read(settings::kInvoiceTrader), u"Сидоров"_s);
  EXPECT_EQ(From(world.PageShown(), u"_____________ Сид"_s).value(0),
            u"_____________ Сидоров</font></td>"_s);
}

// A load takes the invoice's trader from the settings and leaves a bill without one.
TEST(InvoiceScreens, AReloadPutsTheKeptTraderBack) {
  PrintWorld world;
  world->Settings().Write(settings::kInvoiceTrader, u"Сидоров"_s);
  const std::pair<InvoiceKind, QString> cases[] = {{InvoiceKind::kTaxInvoice, u"Сидоров"_s},
                                                   {InvoiceKind::kBill, u""_s}};
  for (const auto& [kind, kept] : cases) {
    InvoiceScreen screen(world.Context(), kind, world.source);
    ShowActive(&screen);
    Enter(&screen, "Text35", u"Чужой"_s);
    Click(&screen, "Option2");
    EXPECT_EQ(TextOf(&screen, "Text35"), kept);
  }
  EXPECT_EQ(world->Settings().Read(settings::kInvoiceTrader), u"Сидоров"_s);
}

// The lines of a page in roubles have the discount in their prices.
TEST(InvoiceScreens, TheDiscountIsTakenOnceWhereThatIsTicked) {
  PrintWorld world;
  for (const InvoiceKind kind : {InvoiceKind::kTaxInvoice, InvoiceKind::kBill}) {
    world->Settings().WriteBool(settings::kDiscountOnce, false);
    InvoiceScreen screen(world.Context(), kind, world.source);
    ShowActive(&screen);
    const auto* difference = Find<QLabel>(&screen, "difference");
    EXPECT_EQ(difference->text(), u"На 106.20 меньше, чем в накладной"_s);
    EXPECT_TRUE(difference->isVisible());
    Enter(&screen, "Text1", u"Счёт"_s);
    QTest::keyClick(Find<QCheckBox>(&screen, "discount_once"), Qt::Key_Space);
    EXPECT_FALSE(difference->isVisible());
    EXPECT_EQ(TextOf(&screen, "Text20"), u"Одна тысяча шестьдесят два рубля 00 копеек"_s);
    EXPECT_EQ(TextOf(&screen, "Text1"), u"Счёт"_s);
    EXPECT_TRUE(world->Settings().ReadBool(settings::kDiscountOnce));
    Click(&screen, "Option2");
    EXPECT_FALSE(Find<QCheckBox>(&screen, "discount_once")->isEnabled());
    EXPECT_EQ(TextOf(&screen, "Text20"), u"Одна тысяча шестьдесят два рубля 00 копеек"_s);
  }
  InvoiceScreen bill(world.Context(), InvoiceKind::kBill, world.source);
  ShowActive(&bill);
  Click(&bill, "Command1");
  const QStringList lines = DecodeLines(world.PageShown());
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10% (учтена в ценах)</FONT></i>"_s));
  EXPECT_TRUE(
      lines.contains(u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 1062.00 руб.,</FONT></i>"_s));
}

TEST(InvoiceScreens, TheBillInRoublesIsPrintedWhole) {
  PrintWorld world;
  InvoiceScreen screen(world.Context(), InvoiceKind::kBill, world.source);
  EXPECT_EQ(screen.windowTitle(), u"Счет"_s);
  ShowActive(&screen);
  Click(&screen, "Command1");
  const auto small = [](const QString& text) {
    return QString(u"<FONT FACE=Arial SIZE=2>"_s + text + u"</FONT><br>"_s);
  };
  ExpectPage(
      world.PageShown(),
      {PageHead(u"Счет"_s),
       u"<TABLE style=border-Collapse:Collapse width=100%>"_s,
       u"<TR><TD VALIGN=TOP ALIGN=left>"_s,
       small(u"<b>Продавец: </b>Первая"_s),
       small(u"Адрес: Первая2"_s),
       small(u"ИНН: Первая10"_s),
       small(u"Расч.счет: Первая6"_s),
       small(u"Кор.счет: Первая8"_s),
       small(u"Банк: Первая7"_s),
       small(u"БИК: Первая9"_s),
       small(u"ОКПО: Первая12"_s),
       small(u"ОКОНХ: Первая11"_s),
       u"<p></p>"_s,
       small(u"<b>Покупатель: </b>Ромашка"_s),
       small(u"Адрес: к2"_s),
       u"</TD></TR>"_s,
       u"</table>"_s,
       u"<p align=CENTER><b><FONT FACE=Arial SIZE=4>Счет N 5 от 12.03.2026</FONT></B><br><br></p>"_s,
       u"<br>"_s,
       u"<CENTER>"_s,
       kLineTable,
       u"<tr><TD WIDTH=1% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=2><b>N</b></FONT></TD>"
       u"<TD WIDTH=15% VALIGN=TOP><FONT FACE=Arial SIZE=2><b>&nbsp;Наименование</b></FONT></TD>"
       u"<TD WIDTH=3% VALIGN=TOP><FONT FACE=Arial SIZE=2><b>Ед. изм.</b></FONT></TD>"
       u"<TD WIDTH=5% VALIGN=TOP ALIGN=right><FONT FACE=Arial "
       u"SIZE=2><b>Кол-во&nbsp;</b></FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2><b>Цена&nbsp;</b></FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial "
       u"SIZE=2><b>Сумма&nbsp;</b></FONT></TD></tr>"_s,
       u"<tr><TD WIDTH=1% VALIGN=TOP ALIGN=center><FONT FACE=Arial SIZE=2>1</FONT></TD>"
       u"<TD WIDTH=15% VALIGN=TOP><FONT FACE=Arial SIZE=2>&nbsp;Чай <&></FONT></TD>"
       u"<TD WIDTH=3% VALIGN=TOP><FONT FACE=Arial SIZE=2>пач.</FONT></TD>"
       u"<TD WIDTH=5% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>10&nbsp;</FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>90.00&nbsp;</FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>900.00&nbsp;</FONT></TD>"
       u"</tr>"_s,
       u"<tr><TD WIDTH=1% VALIGN=TOP><FONT FACE=Arial SIZE=2></FONT></TD>"
       u"<TD WIDTH=15% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>Всего&nbsp;</FONT></TD>"
       u"<TD WIDTH=3% VALIGN=TOP><FONT FACE=Arial SIZE=2></FONT></TD>"
       u"<TD WIDTH=5% VALIGN=TOP><FONT FACE=Arial SIZE=2></FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP><FONT FACE=Arial SIZE=2></FONT></TD>"
       u"<TD WIDTH=6% VALIGN=TOP ALIGN=right><FONT FACE=Arial SIZE=2>900.00&nbsp;</FONT></TD>"
       u"</tr>"_s,
       u"</center></table>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Всего: 1062.00 руб.</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Скидка: 10%</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>Итого к оплате: 955.80 руб.,</FONT></i>"_s,
       u"<br><FONT FACE=Arial SIZE=2><i>включая НДС: 145.80 руб.</FONT></i>"_s,
       u""_s,
       u"<br><br><FONT FACE=Arial SIZE=2><b>Всего наименований: 1</FONT></b>"_s,
       u"<br><FONT FACE=Arial SIZE=2><b>Сумма: Девятьсот пятьдесят пять рублей 80 "
       u"копеек</FONT></b><BR>"_s,
       u"<pre><FONT SIZE=3>"_s,
       u"       Руководитель предприятия _____________________        Главный бухгалтер "
       u"_____________________"_s,
       u""_s,
       u"                                                                         Выдал "
       u"_____________________"_s,
       u"                            М.П."_s,
       u"</FONT></pre>"_s,
       u"</body></html>"_s});
}

TEST(InvoiceScreens, RowsThatCouldNotBeWorkedOutAreNotPrinted) {
  PrintWorld world;
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  ShowActive(&screen);
  Enter(&screen, "Text7", u"abc"_s);
  {
    ModalAnswers answers({InputErrorTold()});
    QTest::keyClick(Find<QLineEdit>(&screen, "Text7"), Qt::Key_Tab);
    LetMessagesCome();
  }
  EXPECT_EQ(TextOf(&screen, "Text6"), u"1062.00"_s);
  {
    ModalAnswers answers({InputErrorTold()});
    Click(&screen, "Command1");
  }
  EXPECT_EQ(world.ViewerStarts(), 0);
  EXPECT_EQ(world->Temp().Bytes(u"chet.htm"_s), "<none>");
  EXPECT_TRUE(screen.isVisible());
}

TEST(InvoiceScreens, ADatabaseWithoutGoodsDirectoryIsTold) {
  PrintWorld world;
  QFile::remove(world->Temp().Data().Resolve(u"0001\\spr\\товар.spr"_s));
  InvoiceScreen screen(world.Context(), InvoiceKind::kTaxInvoice, world.source);
  ModalAnswers answers({[](QWidget* dialog) {
    EXPECT_TRUE(qobject_cast<QMessageBox*>(dialog)->text().contains(u"товар.spr"_s));
    dialog->close();
  }});
  screen.show();
  LetMessagesCome();
}

}  // namespace
}  // namespace kladez
