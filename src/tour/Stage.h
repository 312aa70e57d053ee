// The whole program on one data directory, set up for a robot: what main() makes, with a clock and
// settings of its own and no viewer process.
#pragma once

#include <functional>

#include "shell/MainWindow.h"
#include "tour/Robot.h"

namespace kladez {

class Stage {
 public:
  // Copies of the books lie beside the settings. `page_ready` runs when a print-out lies as out.htm
  // in the data directory.
  Stage(
      const QString& data_directory, const QString& settings_file, const Clock& clock,
      std::function<void()> page_ready = [] {});

  // Starts the main window as at a start of the program, and runs the script on it.
  void Play(Robot& robot, const std::function<void(Robot&)>& script);

  MainWindow& Window() { return window_; }

 private:
  DataDir data_;
  Session session_;
  SettingsStore settings_;
  Clock clock_;
  PrintOutDesk desk_;
  Safekeeping keeping_;
  AppContext context_;
  MainWindow window_;
};

}  // namespace kladez
