// "Приходная накладная": a receipt printed as a waybill.
#pragma once

#include "screens/printing/WaybillScreen.h"

namespace kladez {

class ReceiptWaybillScreen : public WaybillScreen {
 public:
  ReceiptWaybillScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
