#include "screens/printing/ShipmentWaybillScreen.h"

namespace kladez {

using namespace Qt::StringLiterals;

ShipmentWaybillScreen::ShipmentWaybillScreen(AppContext& context, const PrintSource& source,
                                             QWidget* parent)
    : WaybillScreen(context, source, u"PrihNakl"_s, DocumentKind::kShipment, parent) {}

}  // namespace kladez
