// "Фирмы": the user's own firms.
#pragma once

#include "screens/directories/PartyBrowser.h"

namespace kladez {

class sprFirm : public PartyBrowser {
 public:
  explicit sprFirm(AppContext& context, QWidget* parent = nullptr)
      : PartyBrowser(context, PartyKind::kFirm, parent) {}
};

}  // namespace kladez
