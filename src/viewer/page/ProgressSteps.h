// Passes progress on, but not at every step: a bar needs no more than a hundred.
#pragma once

#include <algorithm>

#include "formats/Progress.h"

namespace kladez::viewer {

class ProgressSteps {
 public:
  // `total` steps are the whole of the work.
  ProgressSteps(const Progress& progress, int total)
      : progress_(progress), total_(std::max(1, total)) {}

  // `done` steps are done. Throws WorkCancelled.
  void Advance(int done) {
    if ((static_cast<double>(done) - told_) * 100 < total_) return;
    told_ = done;
    progress_.Tell(static_cast<double>(done) / total_);
  }

 private:
  Progress progress_;
  int total_;
  int told_ = 0;
};

}  // namespace kladez::viewer
