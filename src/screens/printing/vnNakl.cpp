#include "screens/printing/vnNakl.h"

namespace kladez {

using namespace Qt::StringLiterals;

vnNakl::vnNakl(AppContext& context, const PrintSource& source, QWidget* parent)
    : WaybillScreen(context, source, u"vnNakl"_s, DocumentKind::kTransfer, parent) {}

}  // namespace kladez
