// "Печать журнала": a register as it is shown goes to the viewer.
#pragma once

#include "books/stock/RegisterView.h"
#include "screens/stock/documents/DocumentScreens.h"
#include "ui/AppContext.h"

class QWidget;

namespace kladez {

class RegisterFilterPanel;

// Nothing where no row is shown. What fails is told in a message.
void PrintJournal(AppContext& context, const DocumentScreens& screens,
                  const RegisterFilterPanel& filter, const RegisterView& rows, QWidget* parent);

}  // namespace kladez
