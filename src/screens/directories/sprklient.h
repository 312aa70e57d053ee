// "Клиенты": the clients.
#pragma once

#include "screens/directories/PartyBrowser.h"

namespace kladez {

class sprklient : public PartyBrowser {
 public:
  explicit sprklient(AppContext& context, QWidget* parent = nullptr)
      : PartyBrowser(context, PartyKind::kClient, parent) {}
};

}  // namespace kladez
