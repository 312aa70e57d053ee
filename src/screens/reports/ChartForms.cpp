#include "screens/reports/ChartForms.h"

namespace kladez {
namespace {

constexpr QStringView kBuild = u"&Построить";
constexpr QStringView kClose = u"&Закрыть";

ChartGrid CollectWithoutGoods(const DataDir& data, const Session& session, const QString&,
                              const ChartScope& scope, const Progress& progress) {
  return CollectSalesChart(data, session, scope, progress);
}

}  // namespace

const ChartForm& SalesChartForm() {
  static const ChartForm form{.texts = {u"otgr", u"График продаж", kBuild, kClose},
                              .asks_goods = false,
                              .build_twin = u"Command3",
                              .close_twin = u"Command4",
                              .collect = &CollectWithoutGoods};
  return form;
}

const ChartForm& GoodsChartForm() {
  static const ChartForm form{
      .texts = {u"otspeed", u"График реализации по видам товара", kBuild, kClose},
      .asks_goods = true,
      .build_twin = u"Command4",
      .close_twin = u"Command5",
      .collect = &CollectGoodsChart};
  return form;
}

}  // namespace kladez
