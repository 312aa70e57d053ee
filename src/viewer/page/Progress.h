// How long work tells how far it is.
#pragma once

#include <functional>

namespace kladez::viewer {

// Told how much of the whole is done; answers whether to go on. An empty one is not told.
using Progress = std::function<bool(int done, int total)>;

// Passes progress on, but not at every step: a bar needs no more than a hundred.
class ProgressSteps {
 public:
  ProgressSteps(Progress progress, int total) : progress_(std::move(progress)), total_(total) {}

  // Gives false when the work is to stop.
  bool Advance(int done) {
    if (!progress_ || (done - told_) * 100 < total_) return true;
    told_ = done;
    return progress_(done, total_);
  }

 private:
  Progress progress_;
  int total_;
  int told_ = 0;
};

}  // namespace kladez::viewer
