#include "screens/printing/TaxInvoiceScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

TaxInvoiceScreen::TaxInvoiceScreen(AppContext& context, const PrintSource& source, QWidget* parent)
    : InvoiceScreen(context, source, u"chFactPrint"_s, InvoiceKind::kTaxInvoice, parent) {}

}  // namespace kladez
