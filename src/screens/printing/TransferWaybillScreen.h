// "Накладная внутреннее перемещение": a transfer printed as a waybill.
#pragma once

#include "screens/printing/WaybillScreen.h"

namespace kladez {

class TransferWaybillScreen : public WaybillScreen {
 public:
  TransferWaybillScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
