#include <numeric>

#include "SmallBooks.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/reports/GoodsReport.h"
#include "books/reports/PartyReport.h"
#include "books/reports/Periods.h"
#include "books/reports/ToldTables.h"
#include "formats/Dates.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

QStringList Cells(const TableReport& report) {
  QStringList rows;
  for (size_t row = 0; row < report.rows; ++row) {
    QStringList cells;
    for (size_t column = 0; column < report.columns.size(); ++column) {
      cells << report.cell(row, column);
    }
    rows << cells.join(u'|');
  }
  const auto line = [](const TableReport::Cells& cells) {
    return QStringList(cells.begin(), cells.end()).join(u'|');
  };
  rows << line(report.total);
  for (const TableReport::Cells& cells : report.beside) rows << line(cells);
  return rows;
}

class TableReports : public testing::Test, protected BooksOnDisk {
 protected:
  TableReports() {
    // A third of a kopeck in each of many lines: sums of unrounded products drift apart.
    Put(0, u"0001"_s, u"05.10.2026"_s, u"Заря"_s, u"10"_s, {u"10.05"_s, u"9.05"_s},
        {u"Чай"_s, u"3"_s, u"пач."_s, u"1.11"_s, u"3.35"_s, u"3.02"_s});
    Put(0, u"0002"_s, u"06.11.2026"_s, u"Заря"_s, u"0"_s, {u"80.00"_s, u"80.00"_s},
        {u"Чай"_s, u"8"_s, u"пач."_s, u"4"_s, u"10"_s, u"10.00"_s});
    Put(1, u"0001"_s, u"07.11.2026"_s, u"Свет"_s, u"0"_s, {u"20.00"_s, u"20.00"_s},
        {u"Соль"_s,
         u"1.5"_s,
         u"кг"_s,
         {},
         u"10"_s,
         u"10.00"_s,
         u"Мел"_s,
         u"1"_s,
         u"шт."_s,
         u"2.00"_s,
         u"5"_s,
         u"5.00"_s});
    Receive(1, u"0001.prh"_s, u"01.11.2026"_s, u"12.50"_s);
    Receive(0, u"0001.prh"_s, u"03.11.2026"_s, u"0.05"_s);
  }

  void Put(int warehouse, const QString& file, const QString& date, const QString& client,
           const QString& discount, const QStringList& sums, const QStringList& goods) {
    temp.PutLines(
        session.Path(session.warehouses[warehouse], QString(u"UHD\\"_s + file + u".uhd"_s)),
        QStringList{u"7"_s, date, client, sums[0], discount, sums[1], u"да"_s} + goods);
  }
  ReportScope Scope(QDate from = QDate(2026, 1, 1), QDate to = QDate(2026, 12, 31)) const {
    return {kAllWarehouses.toString(), {PeriodKind::kRange, QDate(2026, 11, 22), from, to}};
  }
};

TEST_F(TableReports, PartiesComeByTheirSumsAndAgreeWithTheFlowReport) {
  const TableReport clients = CollectClients(temp.Data(), session, Scope());
  EXPECT_EQ(Cells(clients), (QStringList{u"Заря|2|90.05|1.00|89.05|53.72|81.66"_s,
                                         u"Свет|1|20.00|0.00|20.00|18.00|18.34"_s,
                                         u"ИТОГО:|3|110.05|1.00|109.05|71.72|100.00"_s}));
  const TableReport suppliers = CollectSuppliers(temp.Data(), session, Scope());
  EXPECT_EQ(Cells(suppliers),
            (QStringList{u"Поставщик|2|12.55|100.00|03.11.2026"_s, u"ИТОГО:|2|12.55|100.00|"_s}));
  const TableReport flow = CollectFlowTable(temp.Data(), session, Scope());
  EXPECT_EQ(flow.total[1], suppliers.total[2]);
  EXPECT_EQ(flow.total[2], clients.total[4]);
}

TEST_F(TableReports, MarginsHaveTheRevenueOfTheSalesReportAndTellWhatHadNoCost) {
  const TableReport margins = CollectMargins(temp.Data(), session, Scope());
  EXPECT_EQ(Cells(margins), (QStringList{u"Чай|пач.|11|89.06|35.33|53.73|60.33|152.08"_s,
                                         u"Соль|кг|1.5|15.00|0.00|15.00|100.00|"_s,
                                         u"Мел|шт.|1|5.00|2.00|3.00|60.00|150.00"_s,
                                         u"ИТОГО:||13.5|109.06|37.33|71.73|65.77|192.15"_s}));
  EXPECT_TRUE(margins.note.contains(u"продано на 15.00"_s)) << margins.note.toStdString();
  EXPECT_EQ(CollectSalesTable(temp.Data(), session, Scope()).total[4], margins.total[3]);
}

TEST_F(TableReports, TheClassIsThatOfWhatTheGoodsBeforeBring) {
  EXPECT_EQ(Cells(CollectAbc(temp.Data(), session, Scope())),
            (QStringList{u"Чай|A|пач.|11|89.06|81.66|81.66"_s, u"Соль|B|кг|1.5|15.00|13.75|95.42"_s,
                         u"Мел|C|шт.|1|5.00|4.58|100.00"_s, u"ИТОГО:|||13.5|109.06||"_s}));
}

TEST_F(TableReports, ThePeriodBeforeStandsBesideRowByRowAndBelowTheTotal) {
  const ReportScope before = Scope(QDate(2026, 10, 1), QDate(2026, 10, 31));
  TableReport now =
      CollectClients(temp.Data(), session, Scope(QDate(2026, 11, 1), QDate(2026, 11, 30)));
  SetBeside(now, CollectClients(temp.Data(), session, before), before.period);
  EXPECT_EQ(Cells(now),
            (QStringList{u"Заря|1|80.00|0.00|80.00|48.00|80.00|9.05|70.95"_s,
                         u"Свет|1|20.00|0.00|20.00|18.00|20.00|0.00|20.00"_s,
                         u"ИТОГО:|2|100.00|0.00|100.00|66.00|100.00|9.05|90.95"_s,
                         u"С 01.10.2026 по 31.10.2026:|1|10.05|1.00|9.05|5.72|100.00||"_s,
                         u"Изменение:|1|89.95|-1.00|90.95|60.28|0.00||"_s}));
  // What only the earlier period has comes last, and no document of this one stands behind it.
  TableReport gone = CollectClients(temp.Data(), session, before);
  SetBeside(gone,
            CollectClients(temp.Data(), session, Scope(QDate(2026, 11, 7), QDate(2026, 11, 7))),
            before.period);
  EXPECT_EQ(Cells(gone)[1], u"Свет|||||||20.00|-20.00"_s);
  EXPECT_TRUE(gone.documents(1).kinds.empty());
}

TEST_F(TableReports, EachRowLeadsToItsDocuments) {
  const auto files = [&](const TableReport& report, size_t row) {
    QStringList found;
    for (const auto& document :
         FindDocuments(temp.Data(), session, Scope(), report.documents(row))) {
      found << document.document.warehouse.left(1) + document.document.file;
    }
    return found;
  };
  EXPECT_EQ(files(CollectClients(temp.Data(), session, Scope()), 0),
            (QStringList{u"Г0001.uhd"_s, u"Г0002.uhd"_s}));
  EXPECT_EQ(files(CollectSuppliers(temp.Data(), session, Scope()), 0),
            (QStringList{u"М0001.prh"_s, u"Г0001.prh"_s}));
  EXPECT_EQ(files(CollectAbc(temp.Data(), session, Scope()), 2), QStringList{u"М0001.uhd"_s});
  EXPECT_EQ(files(CollectSalesTable(temp.Data(), session, Scope()), 1),
            QStringList{u"Г0002.uhd"_s});
  EXPECT_EQ(files(CollectFlowTable(temp.Data(), session, Scope()), 1), QStringList{u"М0001.prh"_s});
}

TEST_F(TableReports, AChartHasTheLargestRowsAndTheOthersTogether) {
  TableReport report{
      .columns = {{u"Товар"_s, FigureKind::kText, 1}, {u"Сумма"_s, FigureKind::kMoney, 1}},
      .charted = {1}};
  std::vector<TableReport::Cells> rows;
  for (int i = 1; i <= 12; ++i) rows.push_back({QString::number(i), QString::number(i * 10)});
  SetRows(report, rows);
  const ChartGrid grid = ChartOf(report);
  ASSERT_EQ(grid.RowCount(), 10);
  EXPECT_EQ(grid.row_labels.first(), u"12"_s);
  EXPECT_EQ(grid.row_labels.last(), u"Прочие"_s);
  EXPECT_EQ(grid.Cell(9, 0), 10 + 20 + 30);
  SetRows(report, {rows.begin(), rows.begin() + 10});
  EXPECT_EQ(ChartOf(report).row_labels.last(), u"1"_s);
}

TEST(Periods, AreThoseOfTheCalendarAndTheOneBefore) {
  struct Case {
    QDate today;
    const char16_t* name;
    const char* days;
    const char* before;
  };
  const Case cases[] = {
      {{2026, 11, 23}, u"Сегодня", "23.11-23.11", "22.11-22.11"},
      {{2026, 3, 1}, u"Вчера", "28.02-28.02", "27.02-27.02"},
      {{2026, 11, 22}, u"Эта неделя", "16.11-22.11", "09.11-15.11"},
      {{2026, 11, 23}, u"Эта неделя", "23.11-29.11", "16.11-16.11"},
      {{2026, 11, 23}, u"Прошлая неделя", "16.11-22.11", "09.11-15.11"},
      {{2026, 3, 31}, u"Этот месяц (только этого года)", "01.03-31.03", "01.02-28.02"},
      {{2026, 3, 30}, u"Этот месяц (только этого года)", "01.03-31.03", "01.02-28.02"},
      {{2026, 11, 23}, u"Этот месяц (только этого года)", "01.11-30.11", "01.10-23.10"},
      {{2026, 1, 31}, u"Прошлый месяц", "01.12-31.12", "01.11-30.11"},
      {{2026, 11, 23}, u"Прошлый квартал", "01.07-30.09", "01.04-30.06"},
      {{2026, 2, 1}, u"Этот квартал", "01.01-31.03", "01.10-01.11"},
      {{2026, 11, 23}, u"Прошлый год", "01.01-31.12", "01.01-31.12"},
  };
  const auto text = [](const DateRange& range) {
    return QString(DateText(range.from).left(5) + u'-' + DateText(range.to).left(5)).toStdString();
  };
  for (const Case& c : cases) {
    const auto period = std::find_if(kNamedPeriods.begin(), kNamedPeriods.end(),
                                     [&](const auto& p) { return p.name == QStringView(c.name); });
    ASSERT_NE(period, kNamedPeriods.end());
    const DateRange days = period->days(c.today);
    EXPECT_EQ(text(days), c.days) << period->name.toString().toStdString();
    EXPECT_EQ(text(RangeBefore(days, c.today)), c.before) << period->name.toString().toStdString();
  }
}

}  // namespace
}  // namespace kladez
