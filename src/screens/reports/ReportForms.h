// In what the reports differ.
#pragma once

#include "screens/reports/ReportDialog.h"

namespace kladez {

const ReportForm& SalesReportForm();
const ReportForm& SpeedReportForm();
const ReportForm& FlowReportForm();
const ReportForm& ClientsReportForm();
const ReportForm& SuppliersReportForm();
const ReportForm& MarginReportForm();
const ReportForm& AbcReportForm();

}  // namespace kladez
