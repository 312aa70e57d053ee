// "Расход": the register of shipments of a warehouse.
#pragma once

#include "screens/stock/documents/DocumentRegisterScreen.h"

namespace kladez {

class TovUhod : public DocumentRegisterScreen {
 public:
  explicit TovUhod(AppContext& context, QWidget* parent = nullptr)
      : DocumentRegisterScreen(context, DocumentKind::kShipment, parent) {}
};

}  // namespace kladez
