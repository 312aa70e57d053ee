// "Перемещение": the editor of a transfer.
#pragma once

#include "screens/stock/documents/DocumentEditor.h"

namespace kladez {

class vnutrNew : public DocumentEditor {
 public:
  vnutrNew(AppContext& context, DocumentDraft draft, QWidget* parent = nullptr)
      : DocumentEditor(context, DocumentKind::kTransfer, std::move(draft), parent) {}
};

}  // namespace kladez
