// "Счет-фактура": a shipment printed as a tax invoice, in roubles or in dollars.
#pragma once

#include "screens/printing/InvoiceScreen.h"

namespace kladez {

class chFactPrint : public InvoiceScreen {
 public:
  chFactPrint(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
