// How far some long work is, and whether it is still wanted: the one type for reports, charts,
// copies, the loading of lists and the pages of the viewer. The work tells it now and then; whoever
// waits for the work shows it and may cancel, which leaves the work by an exception and so cleans
// up behind it:
//
//   Progress progress([&](double part) { return ShowBar(part); });
//   CollectSales(data, session, scope, progress);  // throws WorkCancelled once ShowBar says false
#pragma once

#include <algorithm>
#include <concepts>
#include <exception>
#include <functional>

namespace kladez {

// Ends work that somebody has cancelled. Guarded lets it end a command without a word, and
// IgnoreErrors does not take it for an error of the outside world.
class WorkCancelled : public std::exception {
 public:
  // For a log; no person sees it.
  const char* what() const noexcept override { return "the work was cancelled"; }
};

class Progress {
 public:
  // Nobody watches, nobody cancels.
  Progress() = default;
  // `told` takes how much is done, 0 to 1, and answers whether the work is to go on.
  template <std::predicate<double> Told>
  Progress(Told told) : told_(std::move(told)) {}

  // Throws WorkCancelled.
  void Tell(double part) const {
    if (told_ && !told_(std::clamp(part, 0.0, 1.0))) throw WorkCancelled();
  }

  // The progress of a piece of this work, which goes from `from` to `to` of the whole. Valid as
  // long as this one.
  Progress Piece(double from, double to) const {
    if (!told_) return {};
    return [this, from, to](double part) { return told_(from + part * (to - from)); };
  }

 private:
  std::function<bool(double part)> told_;
};

}  // namespace kladez
