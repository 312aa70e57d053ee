// The properties of a transfer, to look at and not to change.
#pragma once

#include "screens/stock/documents/DocumentProperties.h"

namespace kladez {

class vnutr_Ass : public DocumentProperties {
 public:
  vnutr_Ass(AppContext& context, const QString& warehouse, const QString& file,
            QWidget* parent = nullptr)
      : DocumentProperties(context, DocumentKind::kTransfer, warehouse, file, parent) {}
};

}  // namespace kladez
