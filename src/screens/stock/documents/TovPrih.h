// "Приход": the register of receipts of a warehouse.
#pragma once

#include "screens/stock/documents/DocumentRegisterScreen.h"

namespace kladez {

class TovPrih : public DocumentRegisterScreen {
 public:
  explicit TovPrih(AppContext& context, QWidget* parent = nullptr)
      : DocumentRegisterScreen(context, DocumentKind::kReceipt, parent) {}
};

}  // namespace kladez
