// "Накладная внутреннее перемещение": a transfer printed as a waybill.
#pragma once

#include "screens/printing/WaybillScreen.h"

namespace kladez {

class vnNakl : public WaybillScreen {
 public:
  vnNakl(AppContext& context, const PrintSource& source, QWidget* parent = nullptr);
};

}  // namespace kladez
