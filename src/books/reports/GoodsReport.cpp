#include "books/reports/GoodsReport.h"

#include <algorithm>

#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using L = DocumentLine;

constexpr double kClassA = 80;  // percent
constexpr double kClassB = 95;

struct GoodsEarnings {
  QString name;
  QString unit;  // of the first line
  double quantity = 0;
  double revenue = 0;
  double cost = 0;

  double Profit() const { return RoundMoney(revenue - cost); }
};

struct Earnings {
  std::vector<GoodsEarnings> goods;
  GoodsEarnings total;
  double without_cost = 0;  // revenue of the lines that hold none
};

void AddKopecks(double& sum, double value) { sum = RoundMoney(sum + value); }

Earnings CollectEarnings(const DataDir& data, const Session& session, const ReportScope& scope,
                         const Progress& progress) {
  TextPool names;
  Earnings earnings;
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date || !scope.period.Passes(DayKeyOf(*date))) return;
    const double discount = NumberOr(document.Head(&DocumentHead::discount));
    while (document.NextLine()) {
      const double quantity = NumberOr(document.Line(&L::quantity));
      const double price = NumberOr(document.Line(&L::price));
      const double cost = NumberOr(document.Line(&L::cost));
      const double revenue = RoundMoney(quantity * RoundMoney(price - price * discount / 100));
      const auto number = static_cast<size_t>(names.Add(document.Line(&L::name)));
      if (number == earnings.goods.size()) {
        earnings.goods.push_back(
            {DecodeText(document.Line(&L::name)), DecodeText(document.Line(&L::unit))});
      }
      for (GoodsEarnings* sums : {&earnings.goods[number], &earnings.total}) {
        sums->quantity = RoundGeneral(sums->quantity + quantity);
        AddKopecks(sums->revenue, revenue);
        AddKopecks(sums->cost, RoundMoney(quantity * cost));
      }
      if (cost == 0) AddKopecks(earnings.without_cost, revenue);
    }
  };
  ScanWarehouses(data, session, scope.Warehouses(session), DocumentKind::kShipment,
                 Unreadable::kPassOver, progress, visit);
  return earnings;
}

template <typename Figure>
void SortBy(std::vector<GoodsEarnings>& goods, Figure figure) {
  std::sort(goods.begin(), goods.end(), [&](const GoodsEarnings& a, const GoodsEarnings& b) {
    return figure(a) != figure(b) ? figure(a) > figure(b) : OrderKey(a.name) < OrderKey(b.name);
  });
}

QString PercentText(double part, double whole) {
  return whole == 0 ? QString() : FormatMoney(part / whole * 100);
}

TableReport::Cells MarginCells(const GoodsEarnings& goods) {
  return {goods.name,
          goods.unit,
          GeneralText(goods.quantity),
          FormatMoney(goods.revenue),
          FormatMoney(goods.cost),
          FormatMoney(goods.Profit()),
          PercentText(goods.Profit(), goods.revenue),
          PercentText(goods.Profit(), goods.cost)};
}

void FillGoods(TableReport& report, const std::vector<GoodsEarnings>& goods,
               std::vector<TableReport::Cells> rows) {
  SetRows(report, std::move(rows));
  std::vector<QString> names;
  for (const GoodsEarnings& item : goods) names.push_back(item.name);
  report.documents = [names = std::move(names)](size_t row) {
    return DocumentsWanted{.kinds = {DocumentKind::kShipment}, .goods = names[row]};
  };
}

}  // namespace

TableReport CollectMargins(const DataDir& data, const Session& session, const ReportScope& scope,
                           const Progress& progress) {
  Earnings earnings = CollectEarnings(data, session, scope, progress);
  SortBy(earnings.goods, [](const GoodsEarnings& goods) { return goods.Profit(); });
  TableReport report{.heading = u"Валовая прибыль по товарам"_s,
                     .columns = {{u"Товар"_s, FigureKind::kText, 30},
                                 {u"Ед.изм."_s, FigureKind::kText, 5},
                                 {u"Кол-во"_s, FigureKind::kQuantity, 10},
                                 {u"Выручка"_s, FigureKind::kMoney, 10},
                                 {u"Себестоимость"_s, FigureKind::kMoney, 10},
                                 {u"Прибыль"_s, FigureKind::kMoney, 10},
                                 {u"Рентабельность, %"_s, FigureKind::kPercent, 10},
                                 {u"Наценка, %"_s, FigureKind::kPercent, 10}},
                     .charted = {3, 5},
                     .compared = 5};
  std::vector<TableReport::Cells> rows;
  for (const GoodsEarnings& goods : earnings.goods) rows.push_back(MarginCells(goods));
  FillGoods(report, earnings.goods, std::move(rows));
  report.total = MarginCells(earnings.total);
  report.total.front() = u"ИТОГО:"_s;
  if (earnings.without_cost != 0) {
    report.note =
        u"Без закупочной цены в накладных продано на %1: эта сумма вся посчитана прибылью."_s.arg(
            FormatMoney(earnings.without_cost));
  }
  return report;
}

TableReport CollectAbc(const DataDir& data, const Session& session, const ReportScope& scope,
                       const Progress& progress) {
  Earnings earnings = CollectEarnings(data, session, scope, progress);
  SortBy(earnings.goods, [](const GoodsEarnings& goods) { return goods.revenue; });
  TableReport report{.heading = u"ABC-анализ по выручке"_s,
                     .columns = {{u"Товар"_s, FigureKind::kText, 30},
                                 {u"Класс"_s, FigureKind::kText, 5},
                                 {u"Ед.изм."_s, FigureKind::kText, 5},
                                 {u"Кол-во"_s, FigureKind::kQuantity, 10},
                                 {u"Выручка"_s, FigureKind::kMoney, 10},
                                 {u"Доля, %"_s, FigureKind::kPercent, 10},
                                 {u"С начала, %"_s, FigureKind::kPercent, 10}},
                     .charted = {4},
                     .compared = 4};
  double whole = 0;
  for (const GoodsEarnings& goods : earnings.goods) AddKopecks(whole, std::max(goods.revenue, 0.0));
  double before = 0;
  std::vector<TableReport::Cells> rows;
  for (const GoodsEarnings& goods : earnings.goods) {
    const double reached = whole == 0 ? 100 : before / whole * 100;
    const bool earns = goods.revenue > 0;
    const QString grade = earns && reached < kClassA   ? u"A"_s
                          : earns && reached < kClassB ? u"B"_s
                                                       : u"C"_s;
    AddKopecks(before, std::max(goods.revenue, 0.0));
    rows.push_back({goods.name, grade, goods.unit, GeneralText(goods.quantity),
                    FormatMoney(goods.revenue), PercentText(goods.revenue, whole),
                    PercentText(before, whole)});
  }
  FillGoods(report, earnings.goods, std::move(rows));
  report.total = {u"ИТОГО:"_s,
                  {},
                  {},
                  GeneralText(earnings.total.quantity),
                  FormatMoney(earnings.total.revenue),
                  {},
                  {}};
  return report;
}

}  // namespace kladez
