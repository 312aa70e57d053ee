// Which named screen belongs to which kind of document.
#include "screens/stock/documents/PrihNew.h"
#include "screens/stock/documents/TovPrih_Ass.h"
#include "screens/stock/documents/TovUhod_Ass.h"
#include "screens/stock/documents/UhodNew.h"
#include "screens/stock/documents/vnutrNew.h"
#include "screens/stock/documents/vnutr_Ass.h"

namespace kladez {

DocumentEditor* NewEditor(AppContext& context, DocumentDraft draft, QWidget* parent) {
  switch (draft.Kind()) {
    case DocumentKind::kReceipt:
      return new PrihNew(context, std::move(draft), parent);
    case DocumentKind::kShipment:
      return new UhodNew(context, std::move(draft), parent);
    case DocumentKind::kTransfer:
      return new vnutrNew(context, std::move(draft), parent);
  }
  Q_UNREACHABLE();
}

DocumentProperties* NewProperties(AppContext& context, DocumentKind kind, const QString& warehouse,
                                  const QString& file, QWidget* parent) {
  switch (kind) {
    case DocumentKind::kReceipt:
      return new TovPrih_Ass(context, warehouse, file, parent);
    case DocumentKind::kShipment:
      return new TovUhod_Ass(context, warehouse, file, parent);
    case DocumentKind::kTransfer:
      return new vnutr_Ass(context, warehouse, file, parent);
  }
  Q_UNREACHABLE();
}

}  // namespace kladez
