#include "books/reports/SpeedReport.h"

#include <algorithm>

#include "books/reports/ReportPage.h"
#include "formats/Numbers.h"
#include "formats/Ordering.h"
#include "formats/TextPool.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;
using L = DocumentLine;

// Sums of one item while the documents are read; a sum is kept as text between two additions, so
// it never holds more than 15 significant digits.
struct ItemSums {
  QByteArray first_quantity;
  QByteArray unit;
  double quantity;
  double sales;
  double profit;
  bool added = false;
};

class SpeedSums {
 public:
  void Add(const ScannedDocument& document) {
    const QByteArrayView written = document.Line(&L::quantity);
    const double quantity = NumberOr(written);
    const double price = NumberOr(document.Line(&L::price));
    const double cost = NumberOr(document.Line(&L::cost));
    const double sales = RoundMoney(quantity * price);
    const double profit = RoundMoney(quantity * price - quantity * cost);
    const auto number = static_cast<size_t>(names_.Add(document.Line(&L::name)));
    if (number == items_.size()) {
      items_.push_back(
          {written.toByteArray(), document.Line(&L::unit).toByteArray(), quantity, sales, profit});
      return;
    }
    ItemSums& item = items_[number];
    item.quantity = RoundGeneral(item.quantity + quantity);
    item.sales = RoundMoney(item.sales + sales);
    item.profit = RoundMoney(item.profit + profit);
    item.added = true;
  }

  SpeedReport Report() const {
    std::vector<std::pair<QString, SpeedReport::Row>> sorted;
    for (size_t i = 0; i < items_.size(); ++i) {
      const ItemSums& item = items_[i];
      const QString name = names_.Text(static_cast<int>(i));
      sorted.push_back({OrderKey(name),
                        {.name = name,
                         .unit = DecodeText(item.unit),
                         .quantity = item.added ? GeneralText(item.quantity)
                                                : ToNumberOr(DecodeText(item.first_quantity)),
                         .sales = item.sales,
                         .profit = item.profit}});
    }
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    SpeedReport report;
    for (auto& [key, row] : sorted) report.rows.push_back(std::move(row));
    return report;
  }

 private:
  TextPool names_;
  std::vector<ItemSums> items_;  // by the name's number
};

}  // namespace

SpeedReport CollectSpeed(const DataDir& data, const Session& session, const ReportScope& scope,
                         const Progress& progress) {
  SpeedSums sums;
  const auto visit = [&](ScannedDocument& document) {
    const auto date = document.Date();
    if (!date || !scope.period.Passes(DayKeyOf(*date))) return;
    while (document.NextLine()) sums.Add(document);
  };
  ScanWarehouses(data, session, scope.Warehouses(session), DocumentKind::kShipment,
                 Unreadable::kPassOver, progress, visit);
  return sums.Report();
}

double SpeedReport::TotalQuantity() const {
  double total = 0;
  for (const Row& row : rows) total += NumberOr(row.quantity);
  return total;
}

double SpeedReport::TotalSales() const {
  double total = 0;
  for (const Row& row : rows) total = RoundMoney(total + row.sales);
  return total;
}

double SpeedReport::TotalProfit() const {
  double total = 0;
  for (const Row& row : rows) total = RoundMoney(total + row.profit);
  return total;
}

void WriteSpeedReport(const SpeedReport& report, const ReportScope& scope, const ByteSink& sink,
                      const Progress& progress) {
  ReportPage page(u"Скорость реализации товаров от "_s, scope, sink);
  page.Heads({{u"Товар"_s, 25},
              {u"Ед.изм."_s, 10},
              {u"Кол-во"_s, 10},
              {u"Реализация"_s, 10},
              {u"Прибыль"_s, 10}},
             /*texts=*/1);
  const auto values = [&](size_t i) -> std::vector<QString> {
    const SpeedReport::Row& row = report.rows[i];
    return {row.name, row.unit, row.quantity, FormatMoney(row.sales), FormatMoney(row.profit)};
  };
  page.Rows(report.rows.size(), values, progress);
  page.Total({u"ИТОГО:"_s,
              {},
              GeneralText(report.TotalQuantity()),
              FormatMoney(report.TotalSales()),
              FormatMoney(report.TotalProfit())});
}

}  // namespace kladez
