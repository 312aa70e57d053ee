// "Внутреннее перемещение": the register of transfers between warehouses.
#pragma once

#include "screens/stock/documents/DocumentRegisterScreen.h"

namespace kladez {

class vnutr : public DocumentRegisterScreen {
 public:
  explicit vnutr(AppContext& context, QWidget* parent = nullptr)
      : DocumentRegisterScreen(context, DocumentKind::kTransfer, parent) {}
};

}  // namespace kladez
