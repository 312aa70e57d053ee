#include <QPrintPreviewDialog>
#include <QPrinter>

#include "screens/printing/CashOrderScreen.h"
#include "screens/printing/PrintWorld.h"
#include "screens/printing/SheetText.h"
#include "ui/controls/Fields.h"

namespace kladez {
namespace {

constexpr double kUnits = 6;  // pixels a millimetre

QImage Paper() {
  QImage image((kSheetSize * kUnits).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

bool HasInk(const QImage& image, const QRectF& mm) {
  const QRect place =
      QRectF(mm.topLeft() * kUnits, mm.size() * kUnits).toAlignedRect() & image.rect();
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      if (image.pixel(x, y) != qRgb(255, 255, 255)) return true;
    }
  }
  return false;
}

TEST(CashOrderScreen, TheOrderAndItsReceiptAreFilled) {
  PrintWorld world;
  world->Settings().Write(settings::kRate, u"2"_s);
  CashOrderScreen screen(world.Context(), world.source);
  EXPECT_EQ(screen.windowTitle(), u"Приходный кассовый ордер"_s);
  const SheetTexts texts = screen.Texts();
  const QString words = u"Две тысячи триста шестьдесят рублей 00 копеек"_s;
  const std::pair<QString, QString> fields[] = {
      {u"Text15"_s, u"Первая"_s},
      {u"Text25"_s, u"Первая"_s},
      {u"Text5"_s, u"5"_s},
      {u"ReceiptNumber"_s, u"5"_s},
      {u"Text6"_s, u"12.03.2026"_s},
      {u"ReceiptDate"_s, u"12.03.2026"_s},
      {u"Text12"_s, u"2360.00"_s},
      {u"ReceiptSum"_s, u"2360.00"_s},
      {u"Text1"_s, u"Ромашка"_s},
      {u"Text24"_s, u"Ромашка"_s},
      {u"Text16"_s, u"Накладная N5 от 12.03.2026"_s},
      {u"ReceiptGrounds"_s, u"Накладная N5 от 12.03.2026"_s},
      {u"Words"_s, words},
      {u"ReceiptWords"_s, words},
      {u"Included"_s, u"НДС: 360.00 руб. НСП: 0.00 руб."_s},
      {u"ReceiptIncluded"_s, u"НДС: 360.00 руб. НСП: 0.00 руб."_s},
      {u"CodeOkud"_s, u""_s},
      {u"Debit"_s, u""_s},
  };
  for (const auto& [name, text] : fields) {
    EXPECT_EQ(texts.value(name).toStdString(), text.toStdString()) << name.toStdString();
  }
}

TEST(CashOrderScreen, ATypedTextStaysUntilAParameterIsLeft) {
  PrintWorld world;
  CashOrderScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Enter(&screen, "Text16", u"по договору"_s);
  auto* words = Find<SheetText>(&screen, "Words");
  words->setFocus();
  words->selectAll();
  Type(words, u"Сто рублей"_s);
  EXPECT_EQ(screen.Texts().value(u"Text16"_s), u"по договору"_s);
  EXPECT_EQ(screen.Texts().value(u"Words"_s), u"Сто рублей"_s);
  Enter(&screen, "Text45", u"50"_s);
  Enter(&screen, "Text43", u"5"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "Text43"), Qt::Key_Tab);
  EXPECT_EQ(screen.Texts().value(u"Text16"_s), u"Накладная N5 от 12.03.2026"_s);
  EXPECT_EQ(screen.Texts().value(u"Words"_s), u"Пятьсот девяносто рублей 00 копеек"_s);
  EXPECT_EQ(screen.Texts().value(u"Included"_s), u"НДС: 90.00 руб. НСП: 29.50 руб."_s);
  EXPECT_EQ(world->Settings().Read(settings::kVat), u"18"_s);
  EXPECT_EQ(world->Settings().Read(settings::kSalesTax), u"5"_s);
}

TEST(CashOrderScreen, ThePercentageIsInTheSumAsSoonAsItIsLeft) {
  PrintWorld world;
  CashOrderScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Enter(&screen, "Text45", u"50"_s);
  QTest::keyClick(Find<QLineEdit>(&screen, "Text45"), Qt::Key_Tab);
  EXPECT_EQ(screen.Texts().value(u"Text12"_s), u"590.00"_s);
  EXPECT_EQ(screen.Texts().value(u"Words"_s), u"Пятьсот девяносто рублей 00 копеек"_s);
  EXPECT_EQ(screen.Texts().value(u"Included"_s), u"НДС: 90.00 руб. НСП: 0.00 руб."_s);
}

TEST(CashOrderScreen, TheDiscountOfTheDocumentIsInTheSumWhereThatIsTicked) {
  PrintWorld world;
  {
    CashOrderScreen screen(world.Context(), world.source);
    ShowActive(&screen);
    EXPECT_EQ(Find<QLabel>(&screen, "difference")->text(), u"На 118.00 больше, чем в накладной"_s);
    QTest::keyClick(Find<QCheckBox>(&screen, "with_discount"), Qt::Key_Space);
    EXPECT_FALSE(Find<QLabel>(&screen, "difference")->isVisible());
  }
  CashOrderScreen screen(world.Context(), world.source);
  EXPECT_EQ(screen.Texts().value(u"Text12"_s), u"1062.00"_s);
  EXPECT_EQ(screen.Texts().value(u"Words"_s), u"Одна тысяча шестьдесят два рубля 00 копеек"_s);
}

TEST(CashOrderScreen, AParameterThatIsNoNumberIsTold) {
  PrintWorld world;
  CashOrderScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  Enter(&screen, "Text44", u"?"_s);
  ModalAnswers answers({InputErrorTold()});
  QTest::keyClick(Find<QLineEdit>(&screen, "Text44"), Qt::Key_Tab);
  LetMessagesCome();
  EXPECT_EQ(screen.Texts().value(u"Text12"_s), u"1180.00"_s);
  EXPECT_EQ(screen.Texts().value(u"Included"_s), u""_s);
}

TEST(CashOrderScreen, EveryFieldReachesThePaperInItsPlace) {
  for (const SheetField& field : SheetFields()) {
    QImage image = Paper();
    QPainter painter(&image);
    PaintSheetTexts(painter, SheetScale({}, kUnits), {{field.name.toString(), u"Текст"_s}});
    painter.end();
    EXPECT_TRUE(HasInk(image, field.place)) << field.name.toString().toStdString();
  }
}

// A long firm or amount is drawn smaller and broken at its blanks; nothing runs over its neighbour
// or off the paper.
TEST(CashOrderScreen, LongTextsStayInTheirPlaces) {
  const QString firm =
      u"Общество с ограниченной ответственностью «Северо-Западная торгово-закупочная компания "
      u"„Северный ветер“»"_s;
  for (const SheetField& field : SheetFields()) {
    if (field.place.width() < 60) continue;
    QImage image = Paper();
    QPainter painter(&image);
    PaintSheetTexts(painter, SheetScale({}, kUnits), {{field.name.toString(), firm}});
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(
        QRectF(field.place.topLeft() * kUnits, field.place.size() * kUnits).adjusted(-1, -1, 1, 1),
        Qt::white);
    painter.end();
    EXPECT_FALSE(HasInk(image, QRectF({}, kSheetSize))) << field.name.toString().toStdString();
  }
}

TEST(CashOrderScreen, TheTearLinePartsTwoDrawnHalves) {
  QImage image = Paper();
  QPainter painter(&image);
  PaintSheet(painter, SheetScale({}, kUnits));
  painter.end();
  EXPECT_TRUE(HasInk(image, {0, 40, 74, 7})) << "the order's title";
  EXPECT_TRUE(HasInk(image, {134, 15, 64, 6})) << "the receipt's title";
  EXPECT_TRUE(HasInk(image, {129, 0, 2, 138})) << "the tear line";
  EXPECT_FALSE(HasInk(image, {127, 0, 2, 138})) << "nothing of the order beside it";
}

TEST(CashOrderScreen, PrintsOnePageOnEveryPaper) {
  PrintWorld world;
  CashOrderScreen screen(world.Context(), world.source);
  for (const auto size : {QPageSize::A4, QPageSize::A5, QPageSize::A6}) {
    const QString file = world->Temp().Root() + u"/order.pdf"_s;
    {
      QPrinter printer(QPrinter::HighResolution);
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(file);
      printer.setPageLayout(
          QPageLayout(QPageSize(size), QPageLayout::Portrait, QMarginsF(5, 5, 5, 5)));
      screen.PaintOn(printer);
    }
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.readAll().count("/Type /Page\n"), 1);
  }
}

TEST(CashOrderScreen, PrintShowsThePreviewAndTheScreenStaysOpen) {
  PrintWorld world;
  CashOrderScreen screen(world.Context(), world.source);
  ShowActive(&screen);
  {
    ModalAnswers answers({[](QWidget* dialog) {
      EXPECT_NE(qobject_cast<QPrintPreviewDialog*>(dialog), nullptr);
      dialog->close();
    }});
    Click(&screen, "Command2");
  }
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(world.ViewerStarts(), 0);
  EXPECT_EQ(world->Temp().Data().List(u""_s, u".htm"_s), QStringList());
  Click(&screen, "Command1");
  EXPECT_FALSE(screen.isVisible());
}

}  // namespace
}  // namespace kladez
