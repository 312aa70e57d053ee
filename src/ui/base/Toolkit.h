// The toolkit's own texts (buttons of messages, file and print dialogs, calendars, context menus of
// fields) in Russian on every machine.
#pragma once

#include <QTranslator>

namespace kladez {

// Make one after the application object and keep it for the run.
class RussianToolkit {
 public:
  RussianToolkit();

 private:
  QTranslator texts_;
};

}  // namespace kladez
