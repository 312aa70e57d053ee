// "Приходный кассовый ордер": the cash receipt order КО-1 with its tear-off receipt for a shipment,
// drawn to scale, filled in place and printed on one page.
#pragma once

#include <QDialog>

#include "printing/PrintSource.h"
#include "shell/AppContext.h"

namespace kladez {

class PrihPrint : public QDialog {
  Q_OBJECT

 public:
  PrihPrint(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);

 private:
  AppContext& context_;
  const PrintSource source_;
};

}  // namespace kladez
