// "График продаж": revenue and profit of a year by month or of a month by day.
#pragma once

#include "screens/reports/ChartForms.h"

namespace kladez {

class otgr : public ChartDialog {
 public:
  explicit otgr(AppContext& context, QWidget* parent = nullptr)
      : ChartDialog(context, SalesChartForm(), {}, parent) {}
};

}  // namespace kladez
