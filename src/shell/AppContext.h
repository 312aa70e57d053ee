// What every screen is given: the data directory, the open Database, the settings, the clock, and
// the desk that takes print-outs to the viewer. All of them outlive the screens.
#pragma once

#include "printing/PrintOutDesk.h"
#include "store/Clock.h"
#include "store/DataDir.h"
#include "store/Session.h"
#include "store/SettingsStore.h"

namespace kladez {

struct AppContext {
  const DataDir& data;
  Session& session;
  SettingsStore& settings;
  const Clock& clock;
  const PrintOutDesk& print_outs;
};

}  // namespace kladez
