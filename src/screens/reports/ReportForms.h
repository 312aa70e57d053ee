// In what the three reports differ.
#pragma once

#include "screens/reports/ReportDialog.h"

namespace kladez {

const ReportForm& SalesReportForm();
const ReportForm& SpeedReportForm();
const ReportForm& FlowReportForm();

}  // namespace kladez
