// "Поставщики": the suppliers.
#pragma once

#include "screens/directories/PartyBrowser.h"

namespace kladez {

class sprPost : public PartyBrowser {
 public:
  explicit sprPost(AppContext& context, QWidget* parent = nullptr)
      : PartyBrowser(context, PartyKind::kSupplier, parent) {}
};

}  // namespace kladez
