// The morning list and the first steps of the home screen.
#include <gtest/gtest.h>

#include "SmallBooks.h"
#include "books/reports/FirstSteps.h"
#include "books/reports/MorningRows.h"

namespace kladez {
namespace {

const QDate kMorning(2026, 11, 22);

class Morning : public testing::Test, protected BooksOnDisk {
 protected:
  QStringList Texts(const std::vector<LowStock>& low, const std::optional<QDateTime>& copy) {
    const SalesFigures figures = CollectSalesFigures(temp.Data(), session, kMorning);
    QStringList texts;
    for (const MorningRow& row : MorningRows(figures, low, copy, kMorning)) {
      texts << row.text + u'|' + row.value;
    }
    return texts;
  }
};

TEST_F(Morning, TodaysShipmentsThenTheOpenOnesByAgeThenWhatRunsOut) {
  Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"10"_s, {}, u"нет"_s);
  Ship(0, u"0002.uhd"_s, u"20.11.2026"_s, u"0"_s, u"5.5"_s, {}, u"нет"_s);
  Ship(1, u"0001.uhd"_s, u"31.12.2025"_s, u"0"_s, u"много"_s, {}, u"нет"_s);
  Ship(1, u"0002.uhd"_s, u"01.11.2026"_s, u"0"_s, u"7"_s, {}, u"да"_s);
  Ship(1, u"0003.uhd"_s, u"24.11.2026"_s, u"0"_s, u"3"_s, {}, u"нет"_s);
  EXPECT_EQ(
      Texts({{.name = u"Чай"_s, .unit = u"кг"_s, .price = {}, .on_hand = -1.5, .minimum = 10}},
            QDateTime(QDate(2026, 11, 21), QTime(9, 5))),
      (QStringList{u"Сегодня накладных: 1|"_s, u"N 7, Клиент|10.00"_s, u"Счета не закрыты: 3|"_s,
                   u"N 7, 326 дн., Клиент|0.00"_s, u"N 7, 2 дн., Клиент|5.50"_s,
                   u"N 7 от 24.11.2026, Клиент|3.00"_s, u"Меньше минимума: 1|"_s,
                   u"Чай|-1.5 из 10 кг"_s, u"Последняя копия базы: вчера в 09:05|"_s}));
}

TEST_F(Morning, OfManyOpenOnesTheOldestStay) {
  for (int i = 0; i < 30; ++i) {
    const QDate day = kMorning.addDays(-1 - (i * 7) % 30);
    Ship(i % 2, u"%1.uhd"_s.arg(i, 4), day.toString(u"dd.MM.yyyy"_s), u"0"_s, u"1"_s, {}, u"нет"_s);
  }
  const auto figures = CollectSalesFigures(temp.Data(), session, kMorning);
  EXPECT_EQ(figures.open_count, 30);
  ASSERT_EQ(figures.oldest_open.size(), SalesFigures::kMostOpen);
  EXPECT_EQ(figures.oldest_open.front().date, kMorning.addDays(-30));
  EXPECT_EQ(figures.oldest_open.back().date, kMorning.addDays(-11));
  EXPECT_EQ(figures.oldest_open.front().document.warehouse, session.warehouses[1]);
}

TEST(FirstSteps, EachIsDoneOnceItsFileSaysSo) {
  OwnDisk disk;
  SmallBooks books(disk.temp.Data(), disk.session, u"Новая"_s);
  const QString store = u"Главный склад"_s;
  const std::vector<std::pair<std::function<void()>, std::array<bool, kFirstSteps>>> road = {
      {[] {}, {}},
      {[&] { books.Goods(u" Чай"_lines); }, {}},
      {[&] { books.PriceLists(store, u"Розница"_lines, {u" Чай"_lines}); }, {}},
      {[&] { books.PartyFile(PartyKind::kFirm, QStringList(15, u"ООО"_s)); }, {true}},
      {[&] { books.Goods(u"Улун|Китай|-|пач.|90.00"_lines); }, {true, true}},
      {[&] { books.PriceLists(store, u"Розница"_lines, {u"Улун|пач.|90|99"_lines}); },
       {true, true, false, true}},
      {[&] { books.Receive(0, u"0001.prh"_s, u"22.11.2026"_s, u"90"_s); },
       {true, true, true, true}},
      {[&] { books.Ship(0, u"0001.uhd"_s, u"22.11.2026"_s, u"0"_s, u"99"_s, {}); },
       {true, true, true, true, true}},
  };
  for (const auto& [step, done] : road) {
    step();
    EXPECT_EQ(ReadFirstSteps(disk.temp.Data(), disk.session).done, done);
  }
}

}  // namespace
}  // namespace kladez
