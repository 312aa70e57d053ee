#include "screens/stock/documents/OpenDocument.h"

#include "books/stock/DocumentBook.h"
#include "screens/stock/documents/DocumentProperties.h"
#include "ui/controls/Guard.h"

namespace kladez {

using namespace Qt::StringLiterals;

QString DocumentName(DocumentKind kind, bool is_open) {
  const QString name = BookOf(kind).name.toString();
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
