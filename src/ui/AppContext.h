// What every screen is given: the data directory, the open Database, the settings, the clock, the
// desk that takes print-outs to the viewer, and the main window's progress bar. All of them outlive
// the screens.
#pragma once

#include <functional>

#include "books/copies/Safekeeping.h"
#include "books/printing/PrintOutDesk.h"
#include "books/store/Clock.h"
#include "books/store/DataDir.h"
#include "books/store/Session.h"
#include "books/store/SettingsStore.h"
#include "formats/Progress.h"

class QWidget;

namespace kladez {

struct AppContext {
  const DataDir& data;
  Session& session;
  SettingsStore& settings;
  const Clock& clock;
  const PrintOutDesk& print_outs;
  // Shows in the main window how much of some work is done; the bar is away again once all is.
  // Nobody watches where there is no main window.
  Progress show_progress = {};
  // Shows all that has happened to the goods; an empty warehouse stands for all. Its window stands
  // above the screens that offer it, so that they reach it by this.
  std::function<void(QWidget* parent, const QString& goods, const QString& warehouse)>
      show_goods_history = {};
  // Copies before changes, and the last commands to be undone; none where a part of the program
  // stands alone.
  Safekeeping* keeping = nullptr;
};

}  // namespace kladez
