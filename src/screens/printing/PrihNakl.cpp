#include "screens/printing/PrihNakl.h"

namespace kladez {

using namespace Qt::StringLiterals;

PrihNakl::PrihNakl(AppContext& context, const PrintSource& source, QWidget* parent)
    : WaybillScreen(context, source, u"PrihNakl"_s, DocumentKind::kShipment, parent) {}

}  // namespace kladez
