#include "SmallBooks.h"
#include "books/reports/OrderList.h"
#include "books/stock/LowStock.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

class Order : public testing::Test, protected BooksOnDisk {
 protected:
  Order() {
    Put(u"SPR\\товар.spr"_s,
        {u" Бакалея"_s, u"Соль"_s, u""_s,     u""_s,      u"кг"_s,  u"9.50"_s, u"Чай"_s,
         u""_s,         u""_s,     u"пач."_s, u"45.00"_s, u"Мел"_s, u""_s,     u""_s,
         u"шт."_s,      u"1.00"_s, u"Рис"_s,  u""_s,      u""_s,    u"кг"_s,   u"60.00"_s});
    QStringList minima;
    for (const QString& name : {u"Соль"_s, u"Чай"_s, u"Мел"_s, u"Удалённый"_s}) {
      minima << name << u"Минимум"_s << u"10"_s << u""_s;
    }
    Put(u"kladez\\товары.usd"_s, minima + QStringList{u""_s});
    // Of two warehouses and of two records; salt has just enough.
    Put(u"Главный склад\\товар.usl"_s,
        {u"Чай"_s, u"5"_s, u"пач."_s, u"Чай"_s, u"- 1.5"_s, u"пач."_s, u"Соль"_s, u"4"_s, u"кг"_s});
    Put(u"Магазин\\товар.usl"_s, {u"Чай"_s, u"2"_s, u"пач."_s, u"Соль"_s, u"6"_s, u"кг"_s});
    Receive(u"Главный склад\\PRH\\0001.prh"_s, u"05.11.2026"_s, u"Заря"_s, u"44.10"_s);
    Receive(u"Магазин\\PRH\\0001.prh"_s, u"04.11.2026"_s, u"Свет"_s, u"40.00"_s);
  }
  void Put(const QString& file, const QStringList& lines) {
    temp.PutLines(session.Path(file), lines);
  }
  void Receive(const QString& file, const QString& date, const QString& supplier,
               const QString& price) {
    Put(file, {u"1"_s, date, supplier, price, u"да"_s, u"Чай"_s, u"1"_s, u"пач."_s, price});
  }
  QStringList Rows() {
    const TableReport order = CollectOrder(temp.Data(), session);
    QStringList rows;
    for (size_t row = 0; row < order.rows; ++row) {
      QStringList cells;
      for (size_t i = 0; i < order.columns.size(); ++i) cells << order.cell(row, i);
      rows << cells.join(u'|');
    }
    return rows << order.total.back();
  }
};

TEST_F(Order, HasWhatIsBelowItsMinimumByTheSupplierOfTheLastReceipt) {
  EXPECT_EQ(Rows(), (QStringList{u"Заря|Чай|пач.|5.5|10|4.5|44.10|198.45"_s,
                                 u"|Мел|шт.|0|10|10|1.00|10.00"_s, u"208.45"_s}));
}

TEST_F(Order, WithoutMinimaNothingIsLookedFor) {
  QFile::remove(temp.Data().Resolve(session.Path(u"Магазин\\товар.usl"_s)));
  EXPECT_THROW(CollectLowStock(temp.Data(), session), std::system_error);
  Put(u"kladez\\товары.usd"_s, {u"Чай"_s});  // cut
  EXPECT_TRUE(CollectLowStock(temp.Data(), session).empty());
}

}  // namespace
}  // namespace kladez
