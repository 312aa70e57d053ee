// In what the two charts differ.
#pragma once

#include "screens/reports/ChartDialog.h"

namespace kladez {

const ChartForm& SalesChartForm();
const ChartForm& GoodsChartForm();

}  // namespace kladez
