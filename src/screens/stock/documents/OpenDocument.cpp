#include "screens/stock/documents/OpenDocument.h"

#include "screens/stock/documents/DocumentProperties.h"
#include "ui/controls/Guard.h"

namespace kladez {

void OpenDocument(AppContext& context, const DocumentRef& document, QWidget* parent) {
  if (document.file.isEmpty()) return;
  if (context.session.IsSeller() && document.kind != DocumentKind::kShipment) {
    NotAllowed(parent);
    return;
  }
  Guarded(parent, [&] {
    DocumentProperties(context, document.kind, document.warehouse, document.file, parent).exec();
  });
}

}  // namespace kladez
