#include "screens/stock/documents/OpenDocument.h"

#include "screens/stock/documents/DocumentProperties.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

QString DocumentName(DocumentKind kind, bool is_open) {
  QString name = u"Перемещение"_s;
  if (kind == DocumentKind::kReceipt) name = u"Приход"_s;
  if (kind == DocumentKind::kShipment) name = u"Расход"_s;
  return is_open ? name + u", открыт"_s : name;
}

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
