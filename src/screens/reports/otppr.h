// "Отчет по продажам": every shipped line of a period with its amount.
#pragma once

#include "screens/reports/ReportForms.h"

namespace kladez {

class otppr : public ReportDialog {
 public:
  explicit otppr(AppContext& context, QWidget* parent = nullptr)
      : ReportDialog(context, SalesReportForm(), parent) {}
};

}  // namespace kladez
