// Opens the screen of a place. The main window knows no screen by its header but through this.
#pragma once

#include "shell/Places.h"
#include "ui/AppContext.h"

class QWidget;

namespace kladez {

// Makes a child screen; runs any other as a dialog until it is closed, and gives nullptr then, as
// for the home screen, which the main window makes itself. Throws filesystem_error.
QWidget* OpenScreen(Place place, AppContext& context, QWidget* parent);

}  // namespace kladez
