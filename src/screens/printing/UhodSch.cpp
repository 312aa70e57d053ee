#include "screens/printing/UhodSch.h"

namespace kladez {

using namespace Qt::StringLiterals;

UhodSch::UhodSch(AppContext& context, const PrintSource& source, QWidget* parent)
    : InvoiceScreen(context, source, u"UhodSch"_s, InvoiceKind::kBill, parent) {}

}  // namespace kladez
