// Which named screen belongs to which kind of document.
#include "stock/screens/PrihNew.h"
#include "stock/screens/TovPrih_Ass.h"
#include "stock/screens/TovUhod_Ass.h"
#include "stock/screens/UhodNew.h"
#include "stock/screens/vnutrNew.h"
#include "stock/screens/vnutr_Ass.h"

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
