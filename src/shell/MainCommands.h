// The commands of the menus that leave the open Database and the child screen as they are, and
// which commands those are not.
#pragma once

#include "shell/MainMenu.h"
#include "ui/AppContext.h"

class QWidget;

namespace kladez {

// Whether the child screen goes with the command, or may go.
bool LeavesDatabase(Command command);

// Runs the dialog of any other command until it is closed, or opens its page.
void RunAside(Command command, AppContext& context, QWidget* parent);

}  // namespace kladez
