// Commands of the program as sets of changes, with the tree that each begins from: saving is tested
// on all of them alike.
#pragma once

#include <functional>
#include <vector>

#include "TempData.h"
#include "books/store/SaveSet.h"

namespace kladez {

struct SaveScenario {
  std::string name;
  std::function<void(const TempData&)> prepare;
  std::function<void(SaveSet&)> fill;
};

const std::vector<SaveScenario>& SaveScenarios();
inline std::string NameOf(const testing::TestParamInfo<SaveScenario>& scenario) {
  return scenario.param.name;
}

using Tree = std::map<std::string, std::string>;

// The tree before and after a scenario that met no trouble.
struct SaveStates {
  Tree before;
  Tree after;
  int steps;  // changes of the disk on the way

  // Pairs of steps are many: of long ways only some are tried.
  int Stride() const { return 1 + steps / 25; }
};
SaveStates StatesOf(const SaveScenario& scenario);

void CommitScenario(const SaveScenario& scenario, const TempData& temp);

// Lets chosen changes of the disk, counted from 1, fail with an errno for as long as it lives.
class FailingDisk {
 public:
  explicit FailingDisk(std::function<int(int step)> error_at);
  ~FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;

  bool Failed() const { return failed_; }
  int Steps() const { return steps_; }

 private:
  int steps_ = 0;
  bool failed_ = false;
};

}  // namespace kladez
