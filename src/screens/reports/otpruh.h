// "Отчет по поступлению/реализации": receipts against sales, day by day.
#pragma once

#include "screens/reports/ReportForms.h"

namespace kladez {

class otpruh : public ReportDialog {
 public:
  explicit otpruh(AppContext& context, QWidget* parent = nullptr)
      : ReportDialog(context, FlowReportForm(), parent) {}
};

}  // namespace kladez
