// "Расход": the editor of a shipment.
#pragma once

#include "screens/stock/documents/DocumentEditor.h"

namespace kladez {

class UhodNew : public DocumentEditor {
 public:
  UhodNew(AppContext& context, DocumentDraft draft, QWidget* parent = nullptr)
      : DocumentEditor(context, DocumentKind::kShipment, std::move(draft), parent) {}
};

}  // namespace kladez
