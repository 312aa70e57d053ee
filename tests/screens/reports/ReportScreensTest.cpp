#include "ScreenDriver.h"
#include "SmallBooks.h"
#include "books/reports/ReportPageLines.h"
#include "screens/reports/ReportForms.h"
#include "ui/controls/DateField.h"

namespace kladez {
namespace {

class ReportScreens : public testing::Test, protected ScreenWorld {
 protected:
  ReportScreens() {
    books_.Warehouses(u"Главный склад|Магазин"_lines);
    books_.Ship(0, u"0001.uhd"_s, u"05.11.2025"_s, u"50"_s, u"2.00"_s,
                u"Чай|2|пач.|1.50|2.00|1.00"_lines);
    books_.Ship(1, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"30.00"_s,
                u"Сахар|3|кг|8|10|10.00"_lines);
    books_.Ship(1, u"0002.uhd"_s, u"01.10.2026"_s, u"0"_s, u"70.00"_s,
                u"Соль|7|кг|5|10|10.00"_lines);
    books_.Receive(0, u"0001.prh"_s, u"22.11.2026"_s, u"12.50"_s);
  }

  // The report as it is asked for on its screen; the lines of the print-out.
  QStringList Run(const ReportForm& form, const std::function<void(QWidget*)>& choose) {
    ReportDialog screen(Context(), form);
    ShowActive(&screen);
    choose(&screen);
    Click(&screen, "Command1");
    EXPECT_FALSE(screen.isVisible());
    EXPECT_FALSE(Temp().Data().FileExists(u"temp.htm"_s)) << "the page becomes out.htm";
    EXPECT_EQ(ViewerStarts(), 1);
    return Temp().Lines(u"out.htm"_s);
  }

  static std::function<void(QWidget*)> Choose(const char* option) {
    return [option](QWidget* screen) { Find<QRadioButton>(screen, option)->click(); };
  }

 private:
  SmallBooks books_{Temp().Data(), CurrentSession()};
};

TEST_F(ReportScreens, OpenOnAllWarehousesAndTodayWithTheDatesOutOfUse) {
  ReportDialog sales(Context(), SalesReportForm());
  ReportDialog speed(Context(), SpeedReportForm());
  ReportDialog flow(Context(), FlowReportForm());
  const std::vector<std::tuple<QDialog*, QString, QString>> screens = {
      {&sales, u"otppr"_s, u"Отчет по продажам"_s},
      {&speed, u"otrpt"_s, u"Скорость реализации"_s},
      {&flow, u"otpruh"_s, u"Отчет по поступлению/реализации"_s}};
  for (const auto& [dialog, name, caption] : screens) {
    EXPECT_EQ(dialog->objectName(), name);
    EXPECT_EQ(dialog->windowTitle(), caption);
    auto* warehouses = Find<QComboBox>(dialog, "Combo1");
    EXPECT_EQ(warehouses->count(), 3);
    EXPECT_EQ(warehouses->itemText(2), u"ВСЕ СКЛАДЫ"_s);
    EXPECT_EQ(warehouses->currentIndex(), 2);
    for (const char* date : {"from", "to"}) {
      EXPECT_EQ(Find<DateField>(dialog, date)->date(), QDate(2026, 11, 22));
      EXPECT_FALSE(Find<DateField>(dialog, date)->isEnabled());
    }
    Find<QRadioButton>(dialog, "range")->click();
    EXPECT_TRUE(Find<DateField>(dialog, "to")->isEnabled());
    Find<QRadioButton>(dialog, "current_month")->click();
    EXPECT_FALSE(Find<DateField>(dialog, "from")->isEnabled());
  }
}

TEST_F(ReportScreens, SpeedOfTheCurrentMonthCountsThatMonthOfBothYears) {
  const ReportTable table{{25, 10, 10, 10, 10}, 1};
  EXPECT_EQ(Run(SpeedReportForm(), Choose("current_month")),
            (ReportStart(u"Скорость реализации товаров"_s, u"ВСЕ СКЛАДЫ"_s, u"Месяц: Ноябрь"_s) +
             QStringList{table.Heads(u"Товар|Ед.изм.|Кол-во|Реализация|Прибыль"_lines),
                         table.Row(u"Сахар|кг|3|30.00|6.00"_lines),
                         table.Row(u"Чай|пач.|2|4.00|1.00"_lines),
                         table.Total(u"ИТОГО:||5|34.00|7.00"_lines)} +
             ReportEnd()));
}

TEST_F(ReportScreens, FlowOfOneWarehouseTakesTheTypedDates) {
  const ReportTable table{{25, 10, 10, 10}, 1};
  const auto choose = [](QWidget* screen) {
    Find<QComboBox>(screen, "Combo1")->setCurrentIndex(1);
    Find<QRadioButton>(screen, "range")->click();
    Find<DateField>(screen, "from")->setDate(QDate(2026, 10, 1));
  };
  EXPECT_EQ(Run(FlowReportForm(), choose),
            (ReportStart(u"Отчет по поступлению/реализации товара"_s, u"Магазин"_s,
                         u"Период: с 01.10.2026 по 22.11.2026"_s) +
             QStringList{table.Heads(u"Дата|Поступление|Реализация|Прибыль"_lines),
                         table.Row(u"01.10.26|0.00|70.00|70.00"_lines),
                         table.Row(u"22.11.26|0.00|30.00|30.00"_lines),
                         table.Total(u"ИТОГО:|0.00|100.00|100.00"_lines)} +
             ReportEnd()));
}

TEST_F(ReportScreens, SalesOfAllDocumentsComeOldestFirst) {
  const ReportTable table{{5, 30, 10, 10, 10}, 2};
  EXPECT_EQ(Run(SalesReportForm(), Choose("all")),
            (ReportStart(u"Отчет по продажам"_s, u"ВСЕ СКЛАДЫ"_s) +
             QStringList{table.Heads(u"Дата|Товар|Ед.изм|Кол-во|Сумма"_lines),
                         table.Row(u"05.11.25|Чай|пач.|2|2.00"_lines),
                         table.Row(u"01.10.26|Соль|кг|7|70.00"_lines),
                         table.Row(u"22.11.26|Сахар|кг|3|30.00"_lines),
                         table.Total(u"ИТОГО:|||12|102.00"_lines)} +
             ReportEnd()));
}

TEST_F(ReportScreens, AQuickChoiceFillsTheDaysAndTypingOverThemTakesItBack) {
  ReportDialog screen(Context(), SalesReportForm());
  ShowActive(&screen);
  auto* quick = Find<QComboBox>(&screen, "quick");
  quick->setCurrentIndex(quick->findText(u"Прошлый месяц"_s));
  EXPECT_TRUE(Find<QRadioButton>(&screen, "range")->isChecked());
  EXPECT_EQ(Find<DateField>(&screen, "from")->date(), QDate(2026, 10, 1));
  EXPECT_EQ(Find<DateField>(&screen, "to")->date(), QDate(2026, 10, 31));
  Enter(&screen, "to", u"15.10.2026"_s);
  EXPECT_EQ(quick->currentIndex(), -1);
  EXPECT_EQ(Find<DateField>(&screen, "from")->date(), QDate(2026, 10, 1));
}

TEST_F(ReportScreens, TheToldPageHasThePeriodBeforeBelowItsTotalOnlyWhenAskedFor) {
  const auto page = Run(FlowReportForm(), [](QWidget* screen) {
    auto* quick = Find<QComboBox>(screen, "quick");
    quick->setCurrentIndex(quick->findText(u"Этот месяц (только этого года)"_s));
    Find<QAbstractButton>(screen, "compare")->click();
  });
  const ReportTable table{{25, 10, 10, 10}, 1};
  const QStringList below = {
      table.Total({u"ИТОГО:"_s, u"12.50"_s, u"30.00"_s, u"17.50"_s}),
      table.Total({u"С 01.10.2026 по 22.10.2026:"_s, u"0.00"_s, u"70.00"_s, u"70.00"_s}),
      table.Total({u"Изменение:"_s, u"12.50"_s, u"-40.00"_s, u"-52.50"_s})};
  EXPECT_EQ(page.mid(page.size() - 6), below + ReportEnd());
}

TEST_F(ReportScreens, ARowOfTheListOpensItsDocumentOrTheListOfThem) {
  ReportDialog screen(Context(), ClientsReportForm());
  ShowActive(&screen);
  const ModalAnswers answers{[](QWidget* list) {
                               EXPECT_EQ(RowTexts(list, 0)[4], u"102.00"_s);
                               QTest::keyClick(ListOf(list), Qt::Key_Return);
                               QTest::keyClick(list, Qt::Key_Escape);
                             },
                             [](QWidget* documents) {
                               EXPECT_EQ(ListOf(documents)->Records()->rowCount(), 3);
                               QTest::keyClick(ListOf(documents), Qt::Key_Return);
                               QTest::keyClick(documents, Qt::Key_Escape);
                             },
                             [](QWidget* properties) {
                               EXPECT_EQ(properties->objectName(), u"TovUhod_Ass"_s);
                               EXPECT_EQ(RowTexts(properties, 0)[0], u"Чай"_s);
                               QTest::keyClick(properties, Qt::Key_Escape);
                             }};
  Click(&screen, "list");
  EXPECT_TRUE(screen.isVisible()) << "the next period is asked for from here";
}

TEST_F(ReportScreens, CancellingWritesNothing) {
  const auto before = Temp().Tree();
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    ReportDialog screen(Context(), SalesReportForm());
    ShowActive(&screen);
    if (key == Qt::Key_Escape) {
      QTest::keyClick(&screen, key);
    } else {
      Click(&screen, "Command2");
    }
    EXPECT_FALSE(screen.isVisible());
  }
  EXPECT_EQ(Temp().Tree(), before);
  EXPECT_EQ(ViewerStarts(), 0);
}

TEST_F(ReportScreens, APageThatCantBeWrittenIsToldAndTheScreenStays) {
  QDir().mkpath(Temp().Root() + u"/temp.htm"_s);
  ReportDialog screen(Context(), SalesReportForm());
  ShowActive(&screen);
  const ModalAnswers answers{Press(QMessageBox::Ok)};
  Click(&screen, "Command1");
  EXPECT_TRUE(screen.isVisible());
  EXPECT_EQ(ViewerStarts(), 0);
}

}  // namespace
}  // namespace kladez
