// The properties of a shipment, to look at and not to change.
#pragma once

#include "screens/stock/documents/DocumentProperties.h"

namespace kladez {

class TovUhod_Ass : public DocumentProperties {
 public:
  TovUhod_Ass(AppContext& context, const QString& warehouse, const QString& file,
              QWidget* parent = nullptr)
      : DocumentProperties(context, DocumentKind::kShipment, warehouse, file, parent) {}
};

}  // namespace kladez
