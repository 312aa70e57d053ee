// "Скорость реализации": how much of each item was sold in a period, and with what profit.
#pragma once

#include "screens/reports/ReportForms.h"

namespace kladez {

class otrpt : public ReportDialog {
 public:
  explicit otrpt(AppContext& context, QWidget* parent = nullptr)
      : ReportDialog(context, SpeedReportForm(), parent) {}
};

}  // namespace kladez
