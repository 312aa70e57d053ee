#include "SmallBooks.h"
#include "books/directories/WarehouseDirectory.h"
#include "books/reports/GoodsHistory.h"
#include "formats/Dates.h"
#include "formats/Numbers.h"

namespace kladez {
namespace {

class History : public testing::Test, protected BooksOnDisk {
 protected:
  History() {
    Ledger(u"Главный склад"_s, u"Чай|6.5|пач.|Чай зелёный|50|пач.|Чай|- 1|пач."_lines);
    Ledger(u"Магазин"_s, u"Чай|3|пач."_lines);
    Put(u"Главный склад\\PRH\\0001.prh"_s,
        u"1|05.11.2026 |Заря|450.00|да|Чай|10|пач.|45.00|Чай зелёный|50|пач.|45.00"_lines);
    Put(u"Главный склад\\PRH\\0002.prh"_s, u"2|06.11.2026|Заря|45.00|нет|Чай|100|пач.|45.00"_lines);
    Put(u"Главный склад\\PRH\\0003.prh"_s, u"3|без числа|Заря|0|да|Чай|2|пач.|1"_lines);
    Ship(0, u"0001.uhd"_s, u"05.11.2026"_s, u"10"_s, u"0"_s,
         u"Чай|2.5|пач.|45.00|60.00|54.00"_lines);
    Put(u"ВНПЕР\\0001.vpr"_s, u"4|07.11.2026|Главный склад|Магазин|0|Чай|3|пач.|45.00|60.00"_lines);
    Put(u"ВНПЕР\\0002.vpr"_s, u"5|07.11.2026|Снесённый|Магазин|0|Чай|1|пач.|45.00|60.00"_lines);
  }

  QStringList Rows(const QString& warehouse) {
    QStringList texts;
    for (const auto& row : CollectGoodsHistory(temp.Data(), session, u"Чай"_s).Rows(warehouse)) {
      QString text = u"-"_s;
      if (row.movement) {
        text = DateText(row.movement->date).left(5) + u' ' + row.movement->document.file +
               (row.movement->is_open ? u" открыт "_s : u" "_s) + row.movement->party + u' ' +
               row.movement->price;
      }
      texts << text + u": "_s + GeneralText(row.quantity) + u" = "_s + GeneralText(row.stock);
    }
    return texts;
  }
};

TEST_F(History, EndsWithWhatTheLedgersHoldAndBeginsWithWhatNoDocumentTells) {
  EXPECT_EQ(Rows(u"Главный склад"_s), (u"-: 1 = 1|05.11 0001.prh Заря 45.00: 10 = 11|"
                                       u"05.11 0001.uhd Клиент 54.00: -2.5 = 8.5|"
                                       u"06.11 0002.prh открыт Заря 45.00: 100 = 8.5|"
                                       u"07.11 0001.vpr Магазин : -3 = 5.5"_lines));
  EXPECT_EQ(Rows(u"Магазин"_s), (u"-: -1 = -1|07.11 0001.vpr Главный склад : 3 = 2|"
                                 u"07.11 0002.vpr Снесённый : 1 = 3"_lines));
  const QStringList all = Rows(kAllWarehouses.toString());
  EXPECT_EQ(all.size(), 6) << "without untold stock no first row, and a transfer has two";
  EXPECT_EQ(all.last(), u"07.11 0002.vpr Снесённый : 1 = 8.5"_s);
}

TEST_F(History, TheStockOfADayIsReckonedBackFromTheLedger) {
  const GoodsHistory tea = CollectGoodsHistory(temp.Data(), session, u"Чай"_s);
  EXPECT_EQ(tea.Unit(), u"пач."_s);
  const auto on = [&](int day, const QString& warehouse) {
    return tea.StockOn(QDate(2026, 11, day), warehouse);
  };
  EXPECT_EQ(on(4, u"Главный склад"_s), 1);
  EXPECT_EQ(on(5, u"Главный склад"_s), 8.5);
  EXPECT_EQ(on(6, u"Магазин"_s), -1);
  EXPECT_EQ(on(30, kAllWarehouses.toString()), 8.5);
  const auto sums = tea.Total(u"Главный склад"_s);
  EXPECT_EQ(sums.received, 10);
  EXPECT_EQ(sums.shipped, 5.5);
}

TEST_F(History, ALedgerThatCannotBeReadIsToldAndAnEndIsKept) {
  EXPECT_THROW(
      CollectGoodsHistory(temp.Data(), session, u"Чай"_s, Progress([](double) { return false; })),
      WorkCancelled);
  QFile::remove(temp.Data().Resolve(LedgerPath(session, u"Магазин"_s)));
  EXPECT_THROW(CollectGoodsHistory(temp.Data(), session, u"Чай"_s), std::system_error);
}

}  // namespace
}  // namespace kladez
