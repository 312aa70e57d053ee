// "График реализации по видам товара": how much of one item left the warehouses.
#pragma once

#include "screens/reports/ChartForms.h"

namespace kladez {

class otspeed : public ChartDialog {
 public:
  explicit otspeed(AppContext& context, QWidget* parent = nullptr)
      : otspeed(context, QString(), parent) {}
  // With the name of the goods filled in.
  otspeed(AppContext& context, const QString& goods, QWidget* parent)
      : ChartDialog(context, GoodsChartForm(), goods, parent) {}
};

}  // namespace kladez
