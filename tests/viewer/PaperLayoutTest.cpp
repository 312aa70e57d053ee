#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextBlock>
#include <system_error>

#include "viewer/DrawnText.h"
#include "viewer/SamplePages.h"
#include "viewer/page/PageReader.h"
#include "viewer/paper/Output.h"
#include "viewer/paper/PaperLayout.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

std::shared_ptr<const Page> ReadWithPicture(const QString& text) {
  QImage picture(400, 200, QImage::Format_RGB32);
  picture.fill(Qt::red);
  return std::make_shared<Page>(ReadPage(text, [&](const QString&) { return picture; }));
}

std::unique_ptr<PaperLayout> LaidOut(const QString& text, PaperFormat format = {}) {
  auto layout = std::make_unique<PaperLayout>(ReadWithPicture(text));
  layout->LayOut(layout->Propose(format), {});
  return layout;
}

int CountOf(const QString& what, const QString& text) {
  static const QString kEnd = u"(?!\\d)"_s;
  return static_cast<int>(text.count(QRegularExpression(QRegularExpression::escape(what) + kEnd)));
}

TEST(PaperLayoutTest, EachGoodsIsOnOneSheetAndEachSheetHasTheHeading) {
  struct Case {
    const char* name;
    QString page;
    int rows;
    QString heading;
  };
  const Case cases[] = {{"waybill", WaybillPage(150, u"К"_s), 150, u"Наименование"_s},
                        {"invoice", InvoicePage(70), 70, u"Налоговая"_s},
                        {"bill", BillPage(90), 90, u"Ед. изм."_s},
                        {"report", ReportPage(700), 700, u"Товар"_s}};
  for (const Case& test : cases) {
    const auto layout = LaidOut(test.page);
    const QStringList sheets = TextsOfSheets(*layout);
    ASSERT_GT(sheets.size(), 1) << test.name;
    const QString all = sheets.join(u' ');
    for (int row = 1; row <= test.rows; ++row)
      ASSERT_EQ(CountOf(u"№%1"_s.arg(row), all), 1) << test.name << " row " << row;
    for (int sheet = 0; sheet < sheets.size(); ++sheet) {
      const bool has_rows = sheets[sheet].contains(u'№');
      EXPECT_EQ(CountOf(test.heading, sheets[sheet]), has_rows ? 1 : 0)
          << test.name << " sheet " << sheet;
      const QString number = u"лист %1 из %2"_s.arg(sheet + 1).arg(sheets.size());
      EXPECT_EQ(CountOf(number, sheets[sheet]), 1) << test.name;
    }
  }
}

TEST(PaperLayoutTest, GroupStandsAboveItsFirstRowOnEverySheet) {
  // Groups of many lengths, so that some would end a sheet.
  for (const int rows_of_group : {1, 2, 3, 5, 8}) {
    const auto layout = LaidOut(PricePage(60, rows_of_group));
    for (const QString& sheet : TextsOfSheets(*layout)) {
      const QString body = sheet.left(sheet.indexOf(u"лист "_s));
      EXPECT_FALSE(body.contains(QRegularExpression(u"Группа \\d+$"_s)))
          << "a group ends a sheet: " << body.right(40).toStdString();
    }
  }
}

TEST(PaperLayoutTest, SignaturesStandOnOneSheetWithTheTotals) {
  // Wherever the table ends on its sheet.
  for (int rows = 30; rows < 60; ++rows) {
    const QString last = TextsOfSheets(*LaidOut(WaybillPage(rows, u"К"_s))).last();
    EXPECT_TRUE(last.contains(u"Всего: "_s)) << rows;
    EXPECT_TRUE(last.contains(u"Отпустил"_s)) << rows;
  }
  for (int rows = 15; rows < 35; ++rows) {
    const QString last = TextsOfSheets(*LaidOut(InvoicePage(rows))).last();
    EXPECT_TRUE(last.contains(u"Руководитель"_s)) << rows;
    EXPECT_TRUE(last.contains(u"недействительна"_s)) << rows;
  }
}

TEST(PaperLayoutTest, OneSheetHasNoNumber) {
  const QStringList sheets = TextsOfSheets(*LaidOut(WaybillPage(3, u"К"_s)));
  ASSERT_EQ(sheets.size(), 1);
  EXPECT_FALSE(sheets[0].contains(u"лист"_s));
  EXPECT_TRUE(sheets[0].endsWith(u"Получил ___________"_s)) << "the end of the page is missing";
}

TEST(PaperLayoutTest, AHeadingIsNotBrokenAtAHyphenBeforeAShortEnd) {
  // Long figures beside it leave the heading the least width of its column.
  QString page = WaybillPage(3, u"К"_s);
  page.replace(u"125.50&nbsp;"_s, u"118518516.00&nbsp;"_s);
  page.replace(u"12550.00&nbsp;"_s, u"1185185160000.00&nbsp;"_s);
  const PagePlan plan(ReadWithPicture(page));
  PageDocument document(plan, 0, {96, 718, 0, 718});
  const QTextCursor heading = document.document()->find(u"Кол-во"_s);
  ASSERT_FALSE(heading.isNull());
  EXPECT_EQ(heading.block().layout()->lineCount(), 1);
}

// Every row of every sheet stands where it does in a page that is laid out in one go.
TEST(PaperLayoutTest, ChunksStandWhereTheirRowsStoodInOnePiece) {
  for (const QString& text : {ReportPage(700), PricePage(90, 7), WaybillPage(450, u"К"_s)}) {
    const PagePlan plan(ReadWithPicture(text));
    ASSERT_GT(plan.chunks().size(), 2u);
    PageStrip strip(std::make_shared<const PagePlan>(ReadWithPicture(text)), 1000);
    strip.SetMeasure({96, 718, 0, 718});
    double y = 0;
    for (size_t chunk = 0; chunk < strip.ChunkCount(); ++chunk) {
      EXPECT_FALSE(strip.IsMeasured(chunk));
      EXPECT_EQ(strip.Top(chunk), y) << chunk;
      PageDocument& document = strip.Document(chunk);
      const Chunk& pieces = plan.chunks()[chunk];
      const QTextBlock last =
          document.document()->findBlockByNumber(document.LastBlock(pieces.end - 1));
      const double bottom = document.document()->documentLayout()->blockBoundingRect(last).bottom();
      EXPECT_NEAR(document.Height(), bottom, 20) << chunk;
      y += document.Height();
    }
    EXPECT_EQ(strip.Height(), y);
    PageStrip other(std::make_shared<const PagePlan>(ReadWithPicture(text)), 1000);
    other.SetMeasure({96, 718, 0, 718});
    for (size_t chunk = strip.ChunkCount(); chunk-- > 0;) other.Prepare(chunk);
    EXPECT_EQ(other.Height(), y) << "laid out in another order";
  }
}

TEST(PaperLayoutTest, WidePageProposesLandscapeAndANarrowOneDoesNot) {
  EXPECT_EQ(LaidOut(InvoicePage(3))->format().page.orientation(), QPageLayout::Landscape);
  EXPECT_EQ(LaidOut(WaybillPage(3, u"К"_s))->format().page.orientation(), QPageLayout::Portrait);
  PaperFormat portrait;
  const double width = BodyWidth(portrait);
  EXPECT_EQ(Propose(portrait, width / 0.86).page.orientation(), QPageLayout::Portrait);
  EXPECT_EQ(Propose(portrait, width / 0.84).page.orientation(), QPageLayout::Landscape);
}

TEST(PaperLayoutTest, WithoutFitToWidthAWidePageGoesOnToTheRight) {
  PaperLayout layout(ReadWithPicture(InvoicePage(3)));
  PaperFormat format;
  layout.LayOut(format, {});
  EXPECT_LT(layout.Scale(), 1);
  EXPECT_EQ(layout.SheetCount(), 1);
  format.fit_width = false;
  layout.LayOut(format, {});
  EXPECT_EQ(layout.Scale(), 1);
  EXPECT_EQ(layout.SheetCount(), 2);
}

TEST(PaperLayoutTest, PictureIsOnPaper) {
  const auto layout = LaidOut(ChartPage());
  WordDevice device;
  QPainter painter(&device);
  layout->Draw(painter, 0, 96);
  painter.end();
  EXPECT_EQ(device.words().pictures(), 1);
}

TEST(PaperLayoutTest, LayingOutStopsWhenAsked) {
  PaperLayout layout(ReadWithPicture(ReportPage(600)));
  int calls = 0;
  EXPECT_THROW(layout.LayOut({}, [&calls](double) { return ++calls < 3; }), WorkCancelled);
  EXPECT_EQ(calls, 3);
  EXPECT_EQ(layout.SheetCount(), 0);
}

TEST(OutputTest, StoppedPdfLeavesTheOldFile) {
  const QTemporaryDir directory;
  const QString path = directory.filePath(u"форма.pdf"_s);
  const auto layout = LaidOut(WaybillPage(150, u"К"_s));
  WritePdf(*layout, u"Накладная"_s, path, {});
  const qint64 size = QFileInfo(path).size();
  EXPECT_GT(size, 10000);
  EXPECT_THROW(WritePdf(*layout, u"Накладная"_s, path, [](double part) { return part < 0.5; }),
               WorkCancelled);
  EXPECT_EQ(QFileInfo(path).size(), size);
  EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files).size(), 1);
}

TEST(OutputTest, PdfThatCannotBeWrittenTellsTheReason) {
  try {
    ExportPdf(ReadWithPicture(WaybillPage(1, u"К"_s)), u"/none/such/форма.pdf"_s);
    FAIL() << "a file in no directory was written";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
  }
}

TEST(OutputTest, SheetPicturesHaveLinesAndLettersInsideTheMargins) {
  const QTemporaryDir directory;
  const QStringList paths = ExportSheetPictures(ReadWithPicture(WaybillPage(60, u"К"_s)),
                                                directory.path(), u"лист"_s, 96);
  ASSERT_EQ(paths.size(), 2);
  const QImage picture(paths.front());
  EXPECT_NEAR(picture.width(), 210 / 25.4 * 96, 1);
  const auto is_dark = [&picture](int x, int y) { return qGray(picture.pixel(x, y)) < 160; };
  int dark_rows = 0;
  int dark_at_edges = 0;
  for (int y = 0; y < picture.height(); ++y) {
    int dark = 0;
    for (int x = 0; x < picture.width(); ++x) {
      dark += is_dark(x, y);
      dark_at_edges += is_dark(x, y) && (x < 36 || x > picture.width() - 36);
    }
    dark_rows += dark > 700;
  }
  EXPECT_GT(dark_rows, 40) << "lines between rows are missing";
  EXPECT_EQ(dark_at_edges, 0) << "something is drawn in the margins";
}

// How many lines across the upper third of the first sheet have a hole; `lines` of them there are.
int LinesWithHoles(const PaperLayout& layout, int* lines) {
  constexpr int kFineDpi = 1200;
  const QSize paper = layout.format().page.fullRectPixels(kFineDpi).size();
  QImage picture(paper.width(), paper.height() / 3, QImage::Format_Grayscale8);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  layout.Draw(painter, 0, kFineDpi);
  painter.end();
  int holes = 0;
  for (int y = 0; y < picture.height(); ++y) {
    const uchar* row = picture.constScanLine(y);
    const auto dark = std::count_if(row, row + paper.width(), [](uchar c) { return c < 128; });
    if (dark < paper.width() * 0.8) continue;
    ++*lines;
    const auto first = std::find_if(row, row + paper.width(), [](uchar c) { return c < 128; });
    holes += std::any_of(first, first + dark, [](uchar c) { return c >= 128; });
  }
  return holes;
}

TEST(OutputTest, LinesOfTablesHaveNoHoles) {
  for (const QString& page : {WaybillPage(5, u"К"_s), PricePage(5, 3)}) {
    const auto layout = LaidOut(page);
    int lines = 0;
    EXPECT_EQ(LinesWithHoles(*layout, &lines), 0) << page.mid(100, 60).toStdString();
    EXPECT_GT(lines, 50);
  }
}

TEST(OutputTest, PdfNameIsTakenByEveryFileSystem) {
  EXPECT_EQ(PdfName(u"Отчет от 05 марта 2026"_s), u"Отчет от 05 марта 2026.pdf"_s);
  EXPECT_EQ(PdfName(u"a/b\\c:d*e?\"<f>|"_s), u"a b c d e f.pdf"_s);
  EXPECT_EQ(PdfName(u"..."_s), u"Печатная форма.pdf"_s);
}

TEST(PageDocumentTest, ALineLeftBlankUnderATableStaysBlank) {
  const auto gap = [](const QString& between) {
    const PagePlan plan(std::make_shared<Page>(
        ReadPage(u"<table border=1><tr><td>x</td></tr></table>"_s + between + u"под"_s,
                 [](const QString&) { return QImage(); })));
    PageDocument document(plan, 0, {96, 600, 0, 600});
    const auto* layout = document.document()->documentLayout();
    const QTextBlock cell = document.document()->begin().next();
    const QTextBlock below = document.document()->lastBlock();
    const QTextLine line = below.layout()->lineAt(below.layout()->lineCount() - 1);
    return layout->blockBoundingRect(below).bottom() - line.height() -
           layout->blockBoundingRect(cell).bottom();
  };
  const double none = gap({});
  EXPECT_LT(none, 6) << "text right under a table";
  EXPECT_NEAR(gap(u"<p>"_s) - none, 16, 1) << "the margin of a paragraph";
  EXPECT_NEAR(gap(u"<br>"_s) - none, 18, 2) << "an empty line";
  EXPECT_NEAR(gap(u"<p></p><br>"_s) - none, 34, 3) << "both, as under the lines of a waybill";
}

}  // namespace
}  // namespace kladez::viewer
