#include "screens/printing/ReceiptWaybillScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

ReceiptWaybillScreen::ReceiptWaybillScreen(AppContext& context, const PrintSource& source,
                                           QWidget* parent)
    : WaybillScreen(context, source, u"prihnokl"_s, DocumentKind::kReceipt, parent) {}

}  // namespace kladez
