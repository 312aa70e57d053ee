// In what the two charts differ.
#pragma once

#include "reports/screens/ChartDialog.h"

namespace kladez {

const ChartForm& SalesChartForm();
const ChartForm& GoodsChartForm();

}  // namespace kladez
