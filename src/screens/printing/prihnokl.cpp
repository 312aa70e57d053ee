#include "screens/printing/prihnokl.h"

namespace kladez {

using namespace Qt::StringLiterals;

prihnokl::prihnokl(AppContext& context, const PrintSource& source, QWidget* parent)
    : WaybillScreen(context, source, u"prihnokl"_s, DocumentKind::kReceipt, parent) {}

}  // namespace kladez
