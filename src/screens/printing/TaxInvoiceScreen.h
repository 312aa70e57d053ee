// "Счет-фактура": a shipment printed as a tax invoice, in roubles or in dollars.
#pragma once

#include "screens/printing/InvoiceScreen.h"

namespace kladez {

class TaxInvoiceScreen : public InvoiceScreen {
 public:
  TaxInvoiceScreen(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
