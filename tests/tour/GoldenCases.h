// What each screen's commands leave on the disk: one case a command, on small books.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "faults/FaultBooks.h"
#include "tour/Robot.h"

namespace kladez {

// Relative path to bytes; directories end in "/".
using Tree = std::map<std::string, std::string>;

struct GoldenCase {
  std::string screens;  // that take part, parted by blanks
  std::string what;
  // From the home screen to the point at which the command is given.
  std::function<void(Robot&)> prepare;
  // The command, up to the step that writes. It is given twice: the first time the disk is full.
  std::function<void(Robot&)> command;
  // Makes of the tree before the command the tree after it.
  std::function<void(Tree&)> change;
  Beside beside = Beside::kNothing;
  std::string gone = {};  // the screen whose closing is the end of the command
  // The way out, where work waits in the screen that is not to be saved.
  std::function<void(Robot&)> leave = {};

  // What GoogleTest prints of a case.
  friend void PrintTo(const GoldenCase& golden, std::ostream* out) { *out << golden.what; }
};

const std::vector<GoldenCase>& GoldenCases();

}  // namespace kladez
