// "Счет": a shipment printed as a bill for payment, in roubles or in dollars.
#pragma once

#include "screens/printing/InvoiceScreen.h"

namespace kladez {

class BillScreen : public InvoiceScreen {
 public:
  BillScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
