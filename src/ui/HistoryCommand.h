// The command "История…" of a screen with goods in its list, and its key, Ctrl+H: all that has
// happened to the goods selected there.
#pragma once

#include <QString>
#include <functional>

#include "ui/AppContext.h"

class QPushButton;
class QWidget;

namespace kladez {

struct GoodsInWarehouse {
  QString goods;      // empty, or a group's name: nothing is shown
  QString warehouse;  // the one to begin with; empty for all of them
};

// `selected` is asked when the command is given. The command stands where the screen puts it.
QPushButton* NewHistoryCommand(QWidget* screen, AppContext& context,
                               std::function<GoodsInWarehouse()> selected);

}  // namespace kladez
