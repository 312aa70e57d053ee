// "Приход": the editor of a receipt.
#pragma once

#include "screens/stock/documents/DocumentEditor.h"

namespace kladez {

class PrihNew : public DocumentEditor {
 public:
  PrihNew(AppContext& context, DocumentDraft draft, QWidget* parent = nullptr)
      : DocumentEditor(context, DocumentKind::kReceipt, std::move(draft), parent) {}
};

}  // namespace kladez
