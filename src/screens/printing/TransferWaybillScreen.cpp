#include "screens/printing/TransferWaybillScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

TransferWaybillScreen::TransferWaybillScreen(AppContext& context, const PrintSource& source,
                                             QWidget* parent)
    : WaybillScreen(context, source, u"vnNakl"_s, DocumentKind::kTransfer, parent) {}

}  // namespace kladez
