// The list "Заказать".
#pragma once

#include "ui/AppContext.h"

class QWidget;

namespace kladez {

// Reads the receipts, which the user may end, and shows what is below its minimum.
void ShowOrder(AppContext& context, QWidget* parent);

}  // namespace kladez
