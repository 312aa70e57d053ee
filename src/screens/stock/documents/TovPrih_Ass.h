// The properties of a receipt, to look at and not to change.
#pragma once

#include "screens/stock/documents/DocumentProperties.h"

namespace kladez {

class TovPrih_Ass : public DocumentProperties {
 public:
  TovPrih_Ass(AppContext& context, const QString& warehouse, const QString& file,
              QWidget* parent = nullptr)
      : DocumentProperties(context, DocumentKind::kReceipt, warehouse, file, parent) {}
};

}  // namespace kladez
