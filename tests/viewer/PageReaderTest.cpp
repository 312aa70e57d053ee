#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <system_error>

#include "viewer/SamplePages.h"
#include "viewer/page/PageName.h"
#include "viewer/page/PageReader.h"

namespace kladez::viewer {
namespace {

using namespace Qt::StringLiterals;

Page Read(const QString& text) {
  return ReadPage(text, [](const QString&) { return QImage(); });
}

const Table& TableOf(const Page& page, size_t block) {
  return *std::get<std::unique_ptr<Table>>(page.blocks.at(block));
}

const Paragraph& ParagraphOf(const Page& page, size_t block) {
  return std::get<Paragraph>(page.blocks.at(block));
}

// Every text of the page, blocks and cells parted by "|".
QString AllText(const Page& page) {
  QStringList texts;
  for (const Block& block : page.blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      texts << paragraph->Text();
      continue;
    }
    for (const Row& row : std::get<std::unique_ptr<Table>>(block)->rows)
      for (const Cell& cell : row.cells) texts << cell.Text();
  }
  return texts.join(u'|')
      .replace(QChar(QChar::Nbsp), u' ')
      .replace(QChar(QChar::LineSeparator), u'/');
}

TEST(PageReaderTest, WaybillLosesNothingAndKeepsItsLines) {
  const Page page = Read(WaybillPage(2, u"ООО <Ромашка> & Ко <ABC> 5<7"_s));
  EXPECT_EQ(page.title, u"Накладная"_s);
  EXPECT_EQ(AllText(page),
            u"Накладная N 128 от 05.03.2026|"
            "От кого:ИП Петров/Кому:ООО <Ромашка> & Ко <ABC> 5<7/Склад:Основной/|"
            "N| Наименование|Кол-во |Цена |Сумма |"
            "1| Гвозди строительные 100 мм №1 |2 |125.50 |12550.00 |"
            "2| Краска фасадная «Белая ночь», ведро 10 кг, матовая, для наружных работ №2 |3 |"
            "125.50 |12550.00 |"
            "/Всего: 12550.00 руб./Скидка: 5%/Итого к оплате: 11922.50 руб.,/"
            "включая НДС: 1 818.69 руб./НСП: 0.00 руб.//Всего наименований: 2/"
            "Сумма: Одиннадцать тысяч девятьсот двадцать два рубля 50 копеек|//|"
            "   Отпустил ___________         Получил ___________|"_s);
}

TEST(PageReaderTest, ADocumentIsCalledByItsNumberAndParty) {
  EXPECT_EQ(NameOf(Read(WaybillPage(1, u"ООО <Ромашка>"_s))),
            u"Накладная N 128 от 05.03.2026, ООО <Ромашка>"_s);
  EXPECT_EQ(NameOf(Read(WaybillPage(1, u"-"_s))), u"Накладная N 128 от 05.03.2026"_s);
  EXPECT_EQ(NameOf(Read(BillPage(2))), u"Счет N 128 от 05.03.2026, ИП Сидоров"_s);
  EXPECT_EQ(NameOf(Read(InvoicePage(1))), u"Счет-фактура N 128 от 05.03.2026"_s);
  EXPECT_EQ(NameOf(Read(ReportPage(3))), u"Отчет от 05 марта 2026"_s);
}

TEST(PageReaderTest, TextAfterTheCentredTableIsLeftAligned) {
  const Page page = Read(WaybillPage(1, u"К"_s));
  EXPECT_EQ(ParagraphOf(page, 0).align, Qt::AlignHCenter);
  EXPECT_EQ(ParagraphOf(page, 1).align, Qt::AlignLeft);
  EXPECT_EQ(ParagraphOf(page, 3).align, Qt::AlignLeft);
  EXPECT_EQ(TableOf(page, 2).rows[1].cells[4].blocks.size(), 1u);
}

TEST(PageReaderTest, LettersAreOfTheSizesThatBrowsersGiveThem) {
  struct Case {
    QString tag;
    double points;
  };
  const Case cases[] = {{u"<FONT FACE=Arial SIZE=1>"_s, 7.5},
                        {u"<FONT SIZE=2>"_s, 9.75},
                        {u"<FONT SIZE=1.5>"_s, 7.5},
                        {u"<FONT SIZE=4>"_s, 13.5},
                        {u"<FONT SIZE=5>"_s, 18},
                        {u"<FONT SIZE=+1>"_s, 13.5},
                        {u"<FONT style=font-size:7pt>"_s, 7},
                        {u"<pre>"_s, 9.75},
                        {u"<pre><FONT SIZE=3>"_s, 9.75},
                        {u"<pre><FONT FACE=Arial SIZE=3>"_s, 12}};
  for (const Case& test : cases) {
    const Page page = Read(test.tag + u"текст"_s);
    const auto& run = ParagraphOf(page, 0).runs.at(0);
    EXPECT_DOUBLE_EQ(page.styles.at(static_cast<size_t>(run.style)).points, test.points)
        << test.tag.toStdString();
  }
}

TEST(PageReaderTest, MarginsOfNeighboursDoNotAddUp) {
  const Page page = Read(u"<p>один</p><p></p><p>два</p><TABLE BORDER=1><tr><td>3</table>4"_s);
  EXPECT_EQ(ParagraphOf(page, 1).space_before, 16);
  EXPECT_EQ(TableOf(page, 2).space_before, 16);
  EXPECT_EQ(ParagraphOf(page, 3).space_before, 0);
}

TEST(PageReaderTest, TableOpenedBeforeTheLastIsClosedDoesNotNest) {
  const Page page =
      Read(u"<TABLE BORDER=1><tr><td>a</td></tr><TABLE BORDER=1><tr><td>b</td></tr></table>"_s);
  ASSERT_EQ(page.blocks.size(), 2u);
  EXPECT_FALSE(TableOf(page, 0).follows_table);
  EXPECT_TRUE(TableOf(page, 1).follows_table);
}

TEST(PageReaderTest, CellsStandInTheirColumnsUnderSpans) {
  const Page page =
      Read(u"<TABLE><tr><td rowspan=2>a<td colspan=2>b<tr><td>c<td>d<tr><td colspan=9>e</table>"_s);
  const Table& table = TableOf(page, 0);
  EXPECT_EQ(table.columns, 9);
  EXPECT_EQ(table.rows[1].cells[0].column, 1);
  EXPECT_EQ(table.rows[1].cells[1].column, 2);
  EXPECT_EQ(table.rows[2].cells[0].column, 0);
}

QString HeadingRows(const Page& page) {
  QString marks;
  for (const Block& block : page.blocks) {
    if (const auto* table = std::get_if<std::unique_ptr<Table>>(&block)) {
      for (const Row& row : (*table)->rows) marks += row.heading ? u'H' : row.group ? u'g' : u'.';
      marks += u'|';
    }
  }
  return marks;
}

TEST(PrintPartsTest, HeadingsAndGroupsOfEachKindOfPage) {
  EXPECT_EQ(HeadingRows(Read(WaybillPage(2, u"К"_s))), u"H..|"_s);
  EXPECT_EQ(HeadingRows(Read(InvoicePage(2))), u"HH...|...|"_s);
  EXPECT_EQ(HeadingRows(Read(BillPage(1))), u".|H.|"_s);
  EXPECT_EQ(HeadingRows(Read(PricePage(2, 3))), u"H|g|...|g|...|"_s);
  EXPECT_EQ(HeadingRows(Read(ReportPage(2))), u"H...|"_s);
}

TEST(PrintPartsTest, SignatureBlockReachesToTheLastWords) {
  const Page invoice = Read(InvoicePage(1));
  EXPECT_EQ(std::get<std::unique_ptr<Table>>(invoice.blocks[invoice.signature])->columns, 3);
  EXPECT_EQ(invoice.signature_end, invoice.blocks.size());
  const Page waybill = Read(WaybillPage(1, u"___"_s));
  EXPECT_TRUE(ParagraphOf(waybill, waybill.signature).Text().contains(u"Отпустил"_s));
  EXPECT_LT(waybill.closing, waybill.signature);
  const Page report = Read(ReportPage(1));
  EXPECT_EQ(report.signature, report.signature_end);
}

class PictureTest : public ::testing::Test {
 protected:
  void SetUp() override {
    QImage(7, 5, QImage::Format_RGB32).save(directory_.filePath(u"temp.png"_s));
    QDir(directory_.path()).mkdir(u"sub"_s);
    QImage(7, 5, QImage::Format_RGB32).save(directory_.filePath(u"sub/far.png"_s));
  }

  bool Shows(const QString& source) {
    QFile file(directory_.filePath(u"out.htm"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ToWindows1251(u"<BODY><img src=\"" + source + u"\">"));
    file.close();
    const Page page = ReadPageFile(QDir(directory_.path()), u"out.htm"_s);
    return page.pictures.count(source) == 1 && !page.pictures.at(source).isNull();
  }

  QTemporaryDir directory_;
};

TEST_F(PictureTest, ComesByPlainNameFromThePagesDirectoryOnly) {
  EXPECT_TRUE(Shows(u"temp.png"_s));
  EXPECT_TRUE(Shows(u"TEMP.PNG"_s));
  for (const QString& source :
       {u"sub/far.png"_s, u"sub\\far.png"_s, u"../temp.png"_s, directory_.filePath(u"temp.png"_s),
        u"file:temp.png"_s, u"http://127.0.0.1/x.png"_s, u"missing.png"_s})
    EXPECT_FALSE(Shows(source)) << source.toStdString();
}

TEST_F(PictureTest, WhatIsNoFileIsNotWaitedFor) {
  const QByteArray path = directory_.filePath(u"out.htm"_s).toUtf8();
  ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
  EXPECT_THROW(ReadPageFile(QDir(directory_.path()), u"out.htm"_s), std::system_error);
  ASSERT_EQ(::unlink(path.constData()), 0);
  ASSERT_EQ(::symlink("/dev/zero", path.constData()), 0);
  EXPECT_THROW(ReadPageFile(QDir(directory_.path()), u"out.htm"_s), std::system_error);
}

// How deep tables stand in each other, and how many letters a paragraph and a word have at most.
struct Extremes {
  int depth = 0;
  qsizetype paragraph = 0;
  qsizetype word = 0;
  qsizetype cells = 0;
};

void Measure(const std::vector<Block>& blocks, int depth, Extremes* found) {
  found->depth = std::max(found->depth, depth);
  for (const Block& block : blocks) {
    if (const auto* paragraph = std::get_if<Paragraph>(&block)) {
      const QString text = paragraph->Text();
      found->paragraph = std::max(found->paragraph, text.size());
      for (const QString& line :
           QString(text).replace(u' ', QChar::LineSeparator).split(QChar(QChar::LineSeparator)))
        found->word = std::max(found->word, line.size());
      continue;
    }
    const auto& table = std::get<std::unique_ptr<Table>>(block);
    found->cells += static_cast<qsizetype>(table->rows.size()) * table->columns;
    for (const Row& row : table->rows)
      for (const Cell& cell : row.cells) Measure(cell.blocks, depth + 1, found);
  }
}

TEST(PageReaderTest, PagesThatMeanHarmAreBounded) {
  struct Case {
    const char* name;
    QString page;
    bool is_cut;
  };
  const QString row = u"<tr><td rowspan=1000>x</td><td>y</td></tr>"_s;
  const Case cases[] = {
      {"tables", u"<BODY>"_s + u"<table border=1><tr><td>x"_s.repeated(20000), false},
      {"bold", u"<BODY>"_s + u"<b>\n"_s.repeated(20000), false},
      {"blocks", u"<BODY>"_s + u"<div><center><pre>x"_s.repeated(20000), false},
      {"fonts", u"<BODY>"_s + u"<font size=5><p>x"_s.repeated(20000), false},
      {"strays", u"<BODY><table>"_s + u"<i>x</i><font>y"_s.repeated(20000), false},
      {"scripts", u"<script>"_s.repeated(20000), false},
      {"word", u"<BODY>"_s + QString(1'000'000, u'я'), false},
      {"line", u"<BODY><pre>"_s + u"я "_s.repeated(500'000), false},
      {"breaks", u"<BODY>"_s + u"<br>"_s.repeated(50'000), false},
      {"rows", u"<BODY><table>"_s + row.repeated(20000), true},
      {"a row", u"<BODY><table><tr>"_s + u"<td>x</td>"_s.repeated(20000), true},
      {"a cell", u"<BODY><table><tr><td>"_s + u"я "_s.repeated(50'000), true},
      {"tags", u"<BODY>"_s + u"<p>x"_s.repeated(200'000), true}};
  for (const Case& test : cases) {
    const Page page = Read(test.page);
    Extremes found;
    Measure(page.blocks, 0, &found);
    EXPECT_LE(found.depth, 4) << test.name;
    EXPECT_LE(found.paragraph, 11'000) << test.name;
    EXPECT_LE(found.word, 500) << test.name;
    EXPECT_LE(found.cells, 500'000) << test.name;
    const auto* last = std::get_if<Paragraph>(&page.blocks.back());
    EXPECT_EQ(last != nullptr && last->Text() == QString::fromUtf16(kCutText), test.is_cut)
        << test.name;
  }
}

TEST_F(PictureTest, MissingPageTellsTheSystemsReason) {
  try {
    ReadPageFile(QDir(directory_.path()), u"none.htm"_s);
    FAIL() << "a page that is not there was read";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
  }
}

}  // namespace
}  // namespace kladez::viewer
