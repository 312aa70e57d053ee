// "Расходная накладная": a shipment printed as a waybill.
#pragma once

#include "screens/printing/WaybillScreen.h"

namespace kladez {

class ShipmentWaybillScreen : public WaybillScreen {
 public:
  ShipmentWaybillScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
