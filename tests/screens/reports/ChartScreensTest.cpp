#include <QClipboard>
#include <QMimeData>

#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "books/reports/GifReader.h"
#include "books/reports/ReportPageLines.h"
#include "screens/reports/ChartForms.h"
#include "screens/reports/ChartImage.h"
#include "screens/reports/ChartPrinting.h"
#include "screens/reports/ChartWidget.h"
#include "screens/reports/ChartWindow.h"
#include "ui/controls/Fields.h"
#include "ui/controls/RecordList.h"
#include "viewer/page/PageReader.h"
#include "viewer/paper/PaperLayout.h"

namespace kladez {
namespace {

class ChartScreens : public testing::Test, protected ScreenWorld {
 protected:
  ChartScreens() {
    books.Warehouses(u"Главный склад|Магазин"_lines).Goods(u" Бакалея|Чай|Индия||пач.|30"_lines);
    books.Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"10"_s, u"36.00"_s,
               u"Чай|2|шт.|10|20|18.00"_lines);
    books.Ship(1, u"0001.uhd"_s, u"28.02.2025"_s, u"0"_s, u"20.00"_s,
               u"Соль|1|шт.|5|20|20.00"_lines);
  }

  // Presses "Построить" and gives the grid that the chart screen shows.
  ChartGrid Build(QDialog& screen) {
    ChartGrid grid;
    QString title;
    const ModalAnswers answers{[&](QWidget* chart) {
      EXPECT_EQ(chart->objectName(), u"graphic"_s);
      EXPECT_FALSE(screen.isVisible());
      grid = Find<ChartWidget>(chart, "MSChart1")->Grid();
      title = Find<QLabel>(chart, "title")->text();
      Click(chart, "Command1");
    }};
    Click(&screen, "Command1");
    EXPECT_EQ(title, grid.title);
    return grid;
  }

  SmallBooks books{Temp().Data(), CurrentSession()};
};

TEST_F(ChartScreens, ChartOfAYearAndOfAMonthFollowTheChosenPeriod) {
  ChartDialog by_year(Context(), SalesChartForm());
  ShowActive(&by_year);
  EXPECT_EQ(Find<QComboBox>(&by_year, "Combo2")->currentText(), u"2026"_s);
  EXPECT_EQ(Find<QComboBox>(&by_year, "Combo3")->currentText(), u"Ноябрь"_s);
  EXPECT_FALSE(Find<QComboBox>(&by_year, "Combo3")->isEnabled());
  const ChartGrid year = Build(by_year);
  EXPECT_EQ(year.title, u"График продаж за 2026 год"_s);
  ASSERT_EQ(year.RowCount(), 12);
  EXPECT_EQ(year.Cell(10, 0), 36.0);
  EXPECT_EQ(year.Cell(10, 1), 16.0);

  ChartDialog by_day(Context(), SalesChartForm());
  ShowActive(&by_day);
  Find<QRadioButton>(&by_day, "Option2")->click();
  EXPECT_TRUE(Find<QComboBox>(&by_day, "Combo3")->isEnabled());
  EXPECT_TRUE(Find<QComboBox>(&by_day, "Combo2")->isEnabled());
  Find<QComboBox>(&by_day, "Combo2")->setCurrentText(u"2025"_s);
  Find<QComboBox>(&by_day, "Combo3")->setCurrentText(u"Февраль"_s);
  const ChartGrid month = Build(by_day);
  EXPECT_EQ(month.title, u"График продаж за Февраль 2025"_s);
  ASSERT_EQ(month.RowCount(), 28);
  EXPECT_EQ(month.Cell(27, 0), 20.0);
}

TEST_F(ChartScreens, TheKindChosenLastIsRememberedAndTheChartCanBeTaken) {
  ChartGrid grid = NumberedChartGrid(u"График"_s, 3, {u"Реализация"_s});
  ChartWindow first(Context(), grid);
  EXPECT_TRUE(Find<QRadioButton>(&first, "Option1")->isChecked());
  ShowActive(&first);
  Click(&first, "Option4");
  ChartWindow next(Context(), grid);
  EXPECT_TRUE(Find<QRadioButton>(&next, "Option4")->isChecked());
  EXPECT_EQ(Find<ChartWidget>(&next, "MSChart1")->Kind(), ChartKind::k2DLines);
  ShowActive(&next);
  Click(&next, "copy");
  const QMimeData* taken = QGuiApplication::clipboard()->mimeData();
  EXPECT_TRUE(taken->hasImage());
  EXPECT_TRUE(taken->data(u"image/svg+xml"_s).contains("<svg"));
  for (const QString& name : {u"chart.svg"_s, u"chart"_s}) {
    const ModalAnswers answers{[&](QWidget* dialog) {
      auto* field = dialog->findChild<QLineEdit*>();
      field->setText(Temp().Root() + u"/"_s + name);
      QTest::keyClick(field, Qt::Key_Return);
    }};
    Click(&next, "save");
  }
  EXPECT_TRUE(QFileInfo::exists(Temp().Root() + u"/chart.svg"_s));
  EXPECT_EQ(QImage(Temp().Root() + u"/chart.png"_s).size(), QSize(2400, 1280));
}

TEST_F(ChartScreens, GoodsAreAskedForAndPickedFromTheDirectory) {
  ChartDialog screen(Context(), GoodsChartForm());
  ShowActive(&screen);
  auto* goods = Find<TextLine>(&screen, "Text1");
  {
    const ModalAnswers answers{[](QWidget* box) {
      EXPECT_EQ(box->windowTitle(), u"Ошибка"_s);
      Press(QMessageBox::Ok, u"Выбирите товар"_s)(box);
    }};
    Click(&screen, "Command1");
  }
  ASSERT_TRUE(screen.isVisible());
  const auto pick = [](int row) {
    return [row](QWidget* picker) {
      EXPECT_EQ(picker->objectName(), u"sprtovar2"_s);
      picker->findChild<RecordList*>()->SelectRow(row);
      Click(picker, "Command7");
    };
  };
  for (const auto& [row, expected] : {std::pair(0, QString()), std::pair(1, u"Чай"_s)}) {
    const ModalAnswers answers{pick(row)};
    Click(&screen, "Command3");
    EXPECT_EQ(goods->text(), expected) << "a group closes the picker and picks nothing";
  }
  const ChartGrid grid = Build(screen);
  EXPECT_EQ(grid.title, u"График реализации товара Чай за 2026 год"_s);
  ASSERT_EQ(grid.columns.size(), 1u);
  EXPECT_EQ(grid.Cell(10, 0), 2.0);
}

TEST_F(ChartScreens, ACutShipmentIsNamedAndNoChartIsShown) {
  books.Ship(1, u"0002.uhd"_s, u"01.02.2020"_s, u"0"_s, u"0"_s, {u"Чай"_s, u"1"_s});
  ChartDialog screen(Context(), GoodsChartForm(), u"Чай"_s);
  ShowActive(&screen);
  const ModalAnswers answers{[](QWidget* box) {
    auto* message = qobject_cast<QMessageBox*>(box);
    ASSERT_NE(message, nullptr);
    EXPECT_TRUE(message->text().contains(u"0002.uhd"_s)) << message->text().toStdString();
    Press(QMessageBox::Ok)(box);
  }};
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
}

ChartGrid TeaGrid() {
  ChartGrid grid =
      NumberedChartGrid(u"График реализации товара <b>Чай</b> & Ко за 2026 год"_s, 12, {u"Кол"_s});
  grid.Cell(10, 0) = 2.5;
  return grid;
}

TEST_F(ChartScreens, OptionsChangeTheKindByTheirNumbers) {
  ChartWindow screen(Context(), TeaGrid());
  ShowActive(&screen);
  auto* chart = Find<ChartWidget>(&screen, "MSChart1");
  EXPECT_TRUE(Find<QRadioButton>(&screen, "Option1")->isChecked());
  EXPECT_EQ(static_cast<int>(chart->Kind()), 0);
  for (const auto& [option, kind] :
       {std::pair("Option4", 3), std::pair("Option3", 1), std::pair("Option2", 2)}) {
    Find<QRadioButton>(&screen, option)->click();
    EXPECT_EQ(static_cast<int>(chart->Kind()), kind) << option;
  }
}

TEST_F(ChartScreens, ALongNameLeavesTheChartItsRoomAndTheTitleItsPeriod) {
  for (const QString& name : {QString(3000, u'Ш'), u"Чай крупный лист "_s.repeated(200)}) {
    ChartGrid grid = TeaGrid();
    grid.title = u"График реализации товара "_s + name + u" за Февраль 2026"_s;
    ChartWindow screen(Context(), grid);
    ShowActive(&screen);
    const auto* chart = Find<ChartWidget>(&screen, "MSChart1");
    EXPECT_LE(screen.width(), 1024);
    EXPECT_GE(chart->height(), screen.height() / 2);
    EXPECT_TRUE(Find<QLabel>(&screen, "title")->text().endsWith(u" за Февраль 2026"_s));
    EXPECT_EQ(chart->Grid().title, grid.title) << "the print-out has it whole";
  }
}

TEST_F(ChartScreens, PrintedChartIsThePictureOnThePage) {
  Temp().Put(u"temp.gif"_s, "the chart of yesterday");
  ChartWindow screen(Context(), TeaGrid());
  ShowActive(&screen);
  Find<QRadioButton>(&screen, "Option3")->click();
  Click(&screen, "GoldButton1");
  EXPECT_EQ(ViewerStarts(), 1);
  EXPECT_TRUE(screen.isVisible());
  const IndexedImage expected = RenderChartIndexed(TeaGrid(), ChartKind::k2DBars, QSize(1200, 640));
  const IndexedImage printed = ReadGif(Temp().Bytes(u"temp.gif"_s));
  EXPECT_EQ(printed.width, 1200);
  EXPECT_EQ(printed.colours, expected.colours);
  EXPECT_EQ(printed.pixels, expected.pixels);
  EXPECT_EQ(
      Temp().Bytes(u"out.htm"_s),
      EncodeLines({PageHead(),
                   u"<p align=CENTER><B><FONT FACE=Arial SIZE=5>График реализации товара "
                   "<b>Чай</b> & Ко за 2026 год</FONT></B><br><br><br>"_s,
                   u"<img src=temp.gif>"_s, u"</center></table><p></p>"_s, u"</body></html>"_s}));
}

TEST_F(ChartScreens, PrintedChartStandsUnderItsTitleOnOneSheet) {
  for (const QString& name : {u"Чай"_s, u"Чай крупный лист "_s.repeated(12)}) {
    ChartGrid grid = TeaGrid();
    grid.title = u"График реализации товара "_s + name + u" за Февраль 2026"_s;
    ChartWindow screen(Context(), grid);
    ShowActive(&screen);
    Click(&screen, "GoldButton1");
    viewer::PaperLayout paper(std::make_shared<const viewer::Page>(
        viewer::ReadPageFile(QDir(Temp().Root()), u"out.htm"_s)));
    paper.LayOut(paper.Propose({}), {});
    EXPECT_EQ(paper.SheetCount(), 1) << name.toStdString();
  }
}

TEST_F(ChartScreens, TheWaitTellsWhatItIsFor) {
  const ChartGrid grid = TeaGrid();
  ChartPrinting wait(Context(), grid, ChartKind::k3DBars);
  EXPECT_EQ(wait.windowTitle(), u"График"_s);
  EXPECT_EQ(Find<QLabel>(&wait, "Label1")->text(),
            u"Формирование графика для предосмотра... Это займет около минуты."_s);
}

TEST_F(ChartScreens, AFailedPrintIsToldAndOpensNothing) {
  QDir().mkpath(Temp().Root() + u"/temp.htm"_s);
  ChartWindow screen(Context(), TeaGrid());
  ShowActive(&screen);
  int messages = 0;
  QTimer answer;  // the waiting screen comes and goes by itself
  QObject::connect(&answer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++messages;
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
  });
  answer.start(5);
  Click(&screen, "GoldButton1");
  EXPECT_EQ(messages, 1);
  EXPECT_EQ(ViewerStarts(), 0);
  EXPECT_TRUE(screen.isVisible());
}

}  // namespace
}  // namespace kladez
