// Every command of the program that writes, on a small set of books: the tests let each of them
// meet every fault that a disk can have.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "faults/FaultBooks.h"

namespace kladez {

struct WritingCommand {
  std::string name;
  std::string source;  // the file below src/ that gathers its changes
  // Loads the working copies that the command works on; what it gives is the command itself.
  std::function<std::function<void()>(FaultBooks&)> prepare;
  Beside beside = Beside::kNothing;
  bool silent = false;  // told by its result only, errors ignored by design
};

const std::vector<WritingCommand>& WritingCommands();

}  // namespace kladez
