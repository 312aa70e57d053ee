#include "ReportPageLines.h"
#include "SmallBooks.h"
#include "books/reports/ChartSeries.h"
#include "books/reports/FlowReport.h"
#include "books/reports/SalesFigures.h"
#include "books/reports/SalesReport.h"
#include "books/reports/SpeedReport.h"

namespace kladez {
namespace {

const QDate kToday(2026, 11, 22);

ReportScope Scope(const QString& warehouse, PeriodKind kind, QDate from = {}, QDate to = {}) {
  return {warehouse, {kind, kToday, from, to}};
}

template <typename Report>
QStringList PageLines(void write(const Report&, const ReportScope&, const ByteSink&,
                                 const Progress&),
                      const Report& report, const ReportScope& scope) {
  QByteArray page;
  write(report, scope, [&](QByteArrayView piece) { page.append(piece); }, {});
  return DecodeLines(page);
}

class Reports : public testing::Test, protected BooksOnDisk {};

TEST_F(Reports, SalesPageIsWholeAndRoundsTheSumAfterEachAddition) {
  Ship(0, u"0001.uhd"_s, u"22.11.2026 "_s, u"10"_s, u"0"_s,
       u"Чай <чёрный> & Ко|0.125|кг|1.00|1.005|x|Сахар|3,5|кг|1|61.25|x"_lines);
  Ship(1, u"0001.uhd"_s, u"03.01.2026"_s, u"0"_s, u"0"_s, u"Соль|пять|пач.||18.40|x"_lines);
  const ReportScope scope = Scope(kAllWarehouses.toString(), PeriodKind::kAll);
  const auto report = CollectSales(temp.Data(), session, scope);
  const ReportTable table{{5, 30, 10, 10, 10}, 2};
  const QStringList expected =
      ReportStart(u"Отчет по продажам"_s, u"ВСЕ СКЛАДЫ"_s) +
      QStringList{table.Heads(u"Дата|Товар|Ед.изм|Кол-во|Сумма"_lines),
                  table.Row(u"03.01.26|Соль|пач.|0|0.00"_lines),
                  // 1.005 less 10 per cent is 0.9045, printed and taken back as 0.90.
                  table.Row(u"22.11.26|Чай <чёрный> & Ко|кг|0.125|0.11"_lines),
                  table.Row(u"22.11.26|Сахар|кг|3.5|192.96"_lines),
                  table.Total(u"ИТОГО:|||3.625|193.07"_lines)} +
      ReportEnd();
  EXPECT_EQ(PageLines(WriteSalesReport, report, scope), expected);
}

TEST_F(Reports, CurrentMonthCountsThatMonthOfEveryYearAndARangeComparesTwoDigitsOfTheYear) {
  int file = 1;
  for (const QString& date : u"05.11.2025|05.11.2026|05.10.2026|01.01.1999"_lines) {
    Ship(0, u"%1.uhd"_s.arg(file++, 4, 10, QLatin1Char('0')), date, u"0"_s, u"0"_s,
         {date, u"1"_s, u"шт."_s, u"1"_s, u"1"_s, u"1"_s});
  }
  const auto names = [&](const ReportScope& scope) {
    const auto report = CollectSales(temp.Data(), session, scope);
    QStringList list;
    SalesRow row;
    for (SalesRows::Walk walk(report.rows); walk.Next(row);) {
      list.append(report.texts.Text(row.name));
    }
    return list;
  };
  const QString warehouse = session.warehouses.first();
  EXPECT_EQ(names(Scope(warehouse, PeriodKind::kCurrentMonth)),
            (QStringList{u"05.11.2025"_s, u"05.11.2026"_s}));
  EXPECT_EQ(names(Scope(warehouse, PeriodKind::kRange, QDate(2026, 10, 5), QDate(2026, 11, 5))),
            (QStringList{u"05.10.2026"_s, u"05.11.2026"_s}));
  EXPECT_EQ(names(Scope(warehouse, PeriodKind::kRange, QDate(2026, 1, 1), QDate(2099, 12, 31))),
            (u"05.10.2026|05.11.2026|01.01.1999"_lines));
}

TEST_F(Reports, DamagedShipmentsGiveTheirWholeLinesAndStopNothing) {
  Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"0"_s, u"5.00"_s, u"Чай|1|шт.|1|2|2|Кофе|1"_lines);
  Ship(0, u"0002.uhd"_s, u"когда-то"_s, u"0"_s, u"9.00"_s, u"Соль|1|шт.|1|2|2"_lines);
  temp.Put(u"0001\\Главный склад\\UHD\\0003.uhd"_s, {});
  QByteArray noise(100000, '\0');
  for (int i = 0; i < noise.size(); ++i) noise[i] = static_cast<char>(i * 7919 >> 3);
  temp.Put(u"0001\\Главный склад\\UHD\\0004.uhd"_s, noise);
  const ReportScope scope = Scope(session.warehouses.first(), PeriodKind::kAll);
  const auto sales = CollectSales(temp.Data(), session, scope);
  ASSERT_EQ(sales.rows.Count(), 1u);
  EXPECT_EQ(sales.texts.Text(0), u"Чай"_s);
  const auto flow = CollectFlow(temp.Data(), session, scope);
  EXPECT_EQ(flow.days.at(261105).sales, 5.0);
  EXPECT_EQ(CollectSalesFigures(temp.Data(), session, kToday).month, 5.0);
}

TEST_F(Reports, SpeedAddsUpItemsByTheirExactNameAndKeepsALoneQuantityAsWritten) {
  Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"50"_s, u"0"_s,
       u"Чай|2.50|пач.|1.10|2.005|x|чай|1.50|кг||3|x"_lines);
  Ship(1, u"0001.uhd"_s, u"06.11.2026"_s, u"0"_s, u"0"_s, u"Чай|0.5|шт.|9|2|x"_lines);
  const ReportScope scope = Scope(kAllWarehouses.toString(), PeriodKind::kAll);
  const auto report = CollectSpeed(temp.Data(), session, scope);
  ASSERT_EQ(report.rows.size(), 2u);
  const SpeedReport::Row& tea = report.rows[0];
  EXPECT_EQ(tea.name, u"Чай"_s);
  EXPECT_EQ(tea.unit, u"пач."_s);
  EXPECT_EQ(tea.quantity, u"3"_s);
  EXPECT_EQ(tea.sales, 6.01);    // 5.0125 is 5.01, plus 1.00
  EXPECT_EQ(tea.profit, -1.24);  // 2.2625 is 2.26, less 3.50
  EXPECT_EQ(report.rows[1].quantity, u"1.50"_s);
  EXPECT_EQ(report.rows[1].profit, 4.5) << "an empty cost counts as 0";
  const QStringList page = PageLines(WriteSpeedReport, report, scope);
  const ReportTable table{{25, 10, 10, 10, 10}, 1};
  EXPECT_EQ(page, (ReportStart(u"Скорость реализации товаров"_s, u"ВСЕ СКЛАДЫ"_s) +
                   QStringList{table.Heads(u"Товар|Ед.изм.|Кол-во|Реализация|Прибыль"_lines),
                               table.Row(u"Чай|пач.|3|6.01|-1.24"_lines),
                               table.Row(u"чай|кг|1.50|4.50|4.50"_lines),
                               table.Total(u"ИТОГО:||4.5|10.51|3.26"_lines)} +
                   ReportEnd()));
}

TEST_F(Reports, FlowSetsReceiptsAgainstSalesADayOverAllWarehouses) {
  Receive(0, u"0001.prh"_s, u"05.11.2026"_s, u"100.50"_s);
  Receive(1, u"0001.prh"_s, u"05.11.2026"_s, u"0.25"_s);
  Ship(1, u"0001.uhd"_s, u"05.11.2026"_s, u"0"_s, u"40.00"_s, {});
  Ship(0, u"0001.uhd"_s, u"6.11.2026"_s, u"0"_s, u"7,5"_s, {});
  const ReportScope scope =
      Scope(kAllWarehouses.toString(), PeriodKind::kRange, QDate(2026, 11, 5), QDate(2026, 11, 6));
  const auto report = CollectFlow(temp.Data(), session, scope);
  const QStringList page = PageLines(WriteFlowReport, report, scope);
  const ReportTable table{{25, 10, 10, 10}, 1};
  EXPECT_EQ(page, (ReportStart(u"Отчет по поступлению/реализации товара"_s, u"ВСЕ СКЛАДЫ"_s,
                               u"Период: с 05.11.2026 по 06.11.2026"_s) +
                   QStringList{table.Heads(u"Дата|Поступление|Реализация|Прибыль"_lines),
                               table.Row(u"05.11.26|100.75|40.00|-60.75"_lines),
                               table.Row(u"06.11.26|0.00|7.50|7.50"_lines),
                               table.Total(u"ИТОГО:|100.75|47.50|-53.25"_lines)} +
                   ReportEnd()));
}

TEST_F(Reports, APageIsNotFinishedOnceTheUserEndsIt) {
  const ReportScope scope = Scope(kAllWarehouses.toString(), PeriodKind::kAll);
  SalesReport report;
  const int text = report.texts.Add("1");
  for (int i = 0; i < 2000; ++i) report.rows.Add({261122, text, text, text, 1});
  std::vector<double> parts;
  const Progress end_at_half([&](double part) {
    parts.push_back(part);
    return part < 0.5;
  });
  EXPECT_THROW(WriteSalesReport(
                   report, scope, [](QByteArrayView) {}, end_at_half),
               WorkCancelled);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_LT(parts.back(), 0.7) << "it ends soon";
}

TEST_F(Reports, PackedRowsComeBackByDayAsTheyWereAdded) {
  const double amounts[] = {0, 0.01, -0.01, 12.5, 99999.99, -1e13, 1e15, 0.1 + 0.2, 1e300, 1 / 3.0};
  std::vector<SalesRow> rows;
  for (int i = 0; i < 3000; ++i) {
    rows.push_back({.day_key = 990101 + i * 7 % 5,
                    .name = i * i,
                    .quantity = i % 300,
                    .unit = i % 129,
                    .amount = amounts[i % std::size(amounts)]});
  }
  SalesRows packed;
  for (const SalesRow& row : rows) packed.Add(row);
  EXPECT_EQ(packed.Count(), rows.size());
  std::stable_sort(rows.begin(), rows.end(),
                   [](const SalesRow& a, const SalesRow& b) { return a.day_key < b.day_key; });
  SalesRows::Walk walk(packed);
  SalesRow row{};
  for (const SalesRow& wanted : rows) EXPECT_TRUE(walk.Next(row) && row == wanted);
  EXPECT_FALSE(walk.Next(row));
}

TEST_F(Reports, AWarehouseWithoutShipmentsGivesTheTotalsOnly) {
  session.warehouses.append(u"Стёртый"_s);
  const ReportScope scope = Scope(u"Стёртый"_s, PeriodKind::kCurrentMonth);
  const QStringList page =
      PageLines(WriteSalesReport, CollectSales(temp.Data(), session, scope), scope);
  EXPECT_EQ(page[3], u"<FONT FACE=Arial SIZE=3>Месяц: Ноябрь</FONT><br>"_s);
  EXPECT_EQ(page.filter(u"<tr><TD"_s).size(), 2);
}

TEST_F(Reports, ChartsTakeNetPricesAndStopAtACutDocument) {
  Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"10"_s, u"0"_s, u"Чай|2|шт.|30|20|18.00"_lines);
  Ship(1, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"0"_s,
       u"Чай|1,5|шт.|1|20|20|чай|7|шт.|0|1|1"_lines);
  const ChartScope year{kAllWarehouses.toString(), false, 2026, 0};
  const auto months = CollectSalesChart(temp.Data(), session, year);
  EXPECT_EQ(months.title, u"График продаж за 2026 год"_s);
  ASSERT_EQ(months.RowCount(), 12);
  EXPECT_EQ(months.Cell(10, 0), 36.0 + 20.0 + 7.0) << "a decimal comma ends a chart's number";
  EXPECT_EQ(months.Cell(10, 1), -24.0 + 19.0 + 7.0);
  EXPECT_EQ(months.Cell(9, 0), 0.0);
  const ChartScope month{kAllWarehouses.toString(), true, 2026, 11};
  const auto days = CollectGoodsChart(temp.Data(), session, u"Чай"_s, month);
  EXPECT_EQ(days.title, u"График реализации товара Чай за Ноябрь 2026"_s);
  ASSERT_EQ(days.RowCount(), 30);
  EXPECT_EQ(days.Cell(4, 0), 2.0);
  EXPECT_EQ(days.Cell(21, 0), 1.0);
  Ship(1, u"0002.uhd"_s, u"01.02.2020"_s, u"0"_s, u"0"_s, {u"Чай"_s, u"1"_s});
  try {
    CollectSalesChart(temp.Data(), session, year);
    FAIL() << "a cut shipment must stop the chart";
  } catch (const std::filesystem::filesystem_error& error) {
    EXPECT_EQ(error.path1().filename(), "0002.uhd");
  }
}

TEST_F(Reports, ChartsKnowTheYearBeforeAndTheDaysToCome) {
  Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"0"_s, u"0"_s, u"Чай|2|пач.|1|2|3"_lines);
  Ship(0, u"0002.uhd"_s, u"06.11.2025"_s, u"0"_s, u"0"_s, u"Чай|4|пач.|1|2|3"_lines);
  Ship(0, u"0003.uhd"_s, u"06.11.2024"_s, u"0"_s, u"0"_s, u"Чай|8|пач.|1|2|3"_lines);
  session.currency_name = u"руб."_s;
  ChartScope month{kAllWarehouses.toString(), true, 2026, 11, kToday};
  const auto sales = CollectSalesChart(temp.Data(), session, month);
  EXPECT_EQ(sales.unit, u"руб."_s);
  EXPECT_EQ(sales.year_ago.at(5), 12.0);
  EXPECT_EQ(sales.year_ago.at(4), 0.0);
  EXPECT_EQ(sales.PastRows(), 22);
  const auto goods = CollectGoodsChart(temp.Data(), session, u"Чай"_s, month);
  EXPECT_EQ(goods.unit, u"пач."_s);
  EXPECT_EQ(goods.year_ago.at(5), 4.0);
  const auto past_rows = [&](bool by_day, int year, int number) {
    const ChartScope scope{kAllWarehouses.toString(), by_day, year, number, kToday};
    return CollectSalesChart(temp.Data(), session, scope).PastRows();
  };
  EXPECT_EQ(past_rows(true, 2026, 10), 31);
  EXPECT_EQ(past_rows(true, 2026, 12), 0);
  EXPECT_EQ(past_rows(true, 2027, 1), 0);
  EXPECT_EQ(past_rows(false, 2026, 0), 11);
  EXPECT_EQ(past_rows(false, 2025, 0), 12);
  EXPECT_EQ(past_rows(false, 2027, 0), 0);
  EXPECT_TRUE(CollectSalesChart(temp.Data(), session, {month.warehouse, false, 2023, 0, kToday})
                  .year_ago.empty());
  Ship(0, u"0004.uhd"_s, u"25.11.2026"_s, u"0"_s, u"0"_s, u"Чай|2|пач.|1|2|3"_lines);
  EXPECT_EQ(past_rows(true, 2026, 11), 25) << "what is written for a day to come is drawn";
}

// By day two digits of the year are compared: the 29th of a leap year's February finds no row in
// that of 2100.
TEST_F(Reports, ADayThatTheChartsMonthLacksIsLeftOut) {
  for (const QString& date : {u"28.02.2000"_s, u"29.02.2000"_s}) {
    Ship(0, date.first(2) + u".uhd"_s, date, u"0"_s, u"0"_s, u"Чай|1|шт.|1|2|2"_lines);
  }
  const ChartScope february{kAllWarehouses.toString(), true, 2100, 2};
  const auto chart = CollectSalesChart(temp.Data(), session, february);
  std::vector<double> expected(28);
  expected.back() = 2;
  EXPECT_EQ(chart.columns[0].values, expected);
}

TEST_F(Reports, HomeScreenSumsTodayThisMonthAndThisYear) {
  Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"10.00"_s, {}, u"нет"_s);
  Ship(1, u"0001.uhd"_s, u"21.11.2026"_s, u"0"_s, u"5.50"_s, {});
  Ship(1, u"0002.uhd"_s, u"01.01.2026"_s, u"0"_s, u"100"_s, {});
  Ship(1, u"0003.uhd"_s, u"22.11.2025"_s, u"0"_s, u"1000"_s, {});
  Ship(1, u"0004.uhd"_s, u"20.11.2026"_s, u"0"_s, u"мало"_s, {});
  const auto figures = CollectSalesFigures(temp.Data(), session, kToday);
  EXPECT_EQ(figures.day, 10.0);
  EXPECT_EQ(figures.month, 15.5);
  EXPECT_EQ(figures.year, 115.5);
  ASSERT_EQ(figures.by_day.RowCount(), 30);
  EXPECT_EQ(figures.by_day.Cell(20, 0), 5.5);
  EXPECT_EQ(figures.by_day.Cell(21, 0), 10.0);
  EXPECT_EQ(CollectSalesFigures(temp.Data(), session, QDate(2027, 2, 3)).by_day.RowCount(), 28);
}

TEST_F(Reports, ManyDifferentNamesAreAddedUpEachForItself) {
  QStringList goods;
  for (int line = 0; line < 2000; ++line) {
    goods << u"Товар %1"_s.arg(line % 1000) << QString::number(line % 1000) << u"шт."_s << u"1"_s
          << u"2"_s << u"2"_s;
  }
  Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"0"_s, goods);
  const auto report = CollectSpeed(temp.Data(), session, Scope(u"Главный склад"_s, {}));
  ASSERT_EQ(report.rows.size(), 1000u);
  for (const SpeedReport::Row& row : report.rows) {
    EXPECT_EQ(row.quantity.toInt(), 2 * row.name.sliced(6).toInt()) << row.name.toStdString();
  }
}

TEST_F(Reports, TheProgressGoesForwardThroughAllWarehouses) {
  for (int i = 0; i < 200; ++i) {
    Ship(i % 2, u"%1.uhd"_s.arg(i), u"22.11.2026"_s, u"0"_s, u"0"_s, {});
    Receive(i % 2, u"%1.prh"_s.arg(i), u"22.11.2026"_s, u"0"_s);
  }
  std::vector<double> parts;
  const Progress watched([&](double part) {
    parts.push_back(part);
    return true;
  });
  CollectFlow(temp.Data(), session, Scope(kAllWarehouses.toString(), PeriodKind::kAll), watched);
  EXPECT_GE(parts.size(), 8u);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_EQ(parts.front(), 0);
  EXPECT_GT(parts.back(), 0.75);
}

TEST_F(Reports, ClosingTheProgressEndsTheWork) {
  Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"10.00"_s, {});
  const Progress stop([](double) { return false; });
  const ReportScope scope = Scope(kAllWarehouses.toString(), PeriodKind::kAll);
  EXPECT_THROW(CollectSalesFigures(temp.Data(), session, kToday, stop), WorkCancelled);
  EXPECT_THROW(CollectFlow(temp.Data(), session, scope, stop), WorkCancelled);
}

}  // namespace
}  // namespace kladez
