#include "screens/printing/chFactPrint.h"

namespace kladez {

using namespace Qt::StringLiterals;

chFactPrint::chFactPrint(AppContext& context, const PrintSource& source, QWidget* parent)
    : InvoiceScreen(context, source, u"chFactPrint"_s, InvoiceKind::kTaxInvoice, parent) {}

}  // namespace kladez
