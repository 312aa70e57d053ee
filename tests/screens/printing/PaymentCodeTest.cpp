// The code on a printed bill, read by a decoder from the PDF of the page.
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include "screens/printing/InvoiceScreen.h"
#include "screens/printing/PrintWorld.h"
#include "viewer/page/PageReader.h"
#include "viewer/paper/Output.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QByteArray OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(60'000)) << program.toStdString();
  return process.readAllStandardOutput();
}

TEST(PaymentCode, IsPrintedOnlyOfSoundDetailsAndReadFromThePdf) {
  PrintWorld world;
  InvoiceScreen screen(world.Context(), InvoiceKind::kBill, world.source);
  ShowActive(&screen);
  const auto* faults = Find<QLabel>(&screen, "code_faults");
  EXPECT_FALSE(faults->isVisible());
  QTest::keyClick(Find<QCheckBox>(&screen, "payment_code"), Qt::Key_Space);
  ASSERT_TRUE(faults->isVisible());
  EXPECT_TRUE(faults->text().startsWith(u"QR-код не печатается. "_s));
  Enter(&screen, "Text21", u"40702810500000012345"_s);
  Enter(&screen, "Text22", u"Банк \"Ключ\""_s);
  Enter(&screen, "Text31", u"044599987"_s);
  Enter(&screen, "Text23", u"30101810105000000987"_s);
  EXPECT_TRUE(faults->isVisible());
  Enter(&screen, "Text4", u"9900123450"_s);
  EXPECT_FALSE(faults->isVisible()) << faults->text().toStdString();
  Click(&screen, "Command1");

  const QDir folder(world->Temp().Root());
  const QTemporaryDir made;
  const QString pdf = made.filePath(u"bill.pdf"_s);
  viewer::ExportPdf(
      std::make_shared<const viewer::Page>(viewer::ReadPageFile(folder, u"out.htm"_s)), pdf);
  OutputOf(u"pdftoppm"_s, {u"-r"_s, u"150"_s, u"-png"_s, pdf, made.filePath(u"sheet"_s)});
  const QString sheet = made.filePath(u"sheet-1.png"_s);
  EXPECT_EQ(QString::fromUtf8(OutputOf(u"zbarimg"_s, {u"--raw"_s, u"-q"_s, sheet})).trimmed(),
            u"ST00012|Name=Первая|PersonalAcc=40702810500000012345|BankName=Банк \"Ключ\""
            u"|BIC=044599987|CorrespAcc=30101810105000000987|Sum=95580"
            u"|Purpose=Оплата: Счет N 5 от 12.03.2026|PayeeINN=9900123450");
}

}  // namespace
}  // namespace kladez
