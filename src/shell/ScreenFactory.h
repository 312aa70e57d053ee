// Makes the screen of a place. The main window knows no screen by its header but through this.
#pragma once

#include "shell/Places.h"
#include "ui/AppContext.h"

class QWidget;

namespace kladez {

// A child screen as a QWidget, any other as a QDialog; nullptr for the home screen, which the main
// window makes itself. Throws filesystem_error.
QWidget* NewScreen(Place place, AppContext& context, QWidget* parent);

}  // namespace kladez
