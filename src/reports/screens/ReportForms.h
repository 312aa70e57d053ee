// In what the three reports differ.
#pragma once

#include "reports/screens/ReportDialog.h"

namespace kladez {

const ReportForm& SalesReportForm();
const ReportForm& SpeedReportForm();
const ReportForm& FlowReportForm();

}  // namespace kladez
