#include "screens/printing/BillScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

BillScreen::BillScreen(AppContext& context, const PrintSource& source, QWidget* parent)
    : InvoiceScreen(context, source, u"UhodSch"_s, InvoiceKind::kBill, parent) {}

}  // namespace kladez
