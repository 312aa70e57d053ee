// A page as one long strip: its chunks stand one below the other, each laid out when it is asked
// for. Those used last are kept, the others made again when they are needed.
#pragma once

#include <list>
#include <memory>
#include <vector>

#include "viewer/paper/PageDocument.h"

namespace kladez::viewer {

class PageStrip {
 public:
  // Keeps documents of about `kept_cells` cells.
  PageStrip(std::shared_ptr<const PagePlan> plan, size_t kept_cells);

  // What the strip shows, and of how many chunks it is.
  const PagePlan& plan() const { return *plan_; }
  size_t ChunkCount() const { return plan_->chunks().size(); }

  // Forgets what was laid out, and lays out for `measure` from now on.
  void SetMeasure(const Measure& measure);
  const Measure& measure() const { return measure_; }

  // The chunk, laid out; it stays until others are asked for.
  PageDocument& Document(size_t chunk);

  // Finds out how high the chunk is; it is kept only while there is room for it.
  void Prepare(size_t chunk);

  // In dots from the top of the strip. What is not laid out yet is taken to be as high as what was
  // prepared.
  double Top(size_t chunk) const;
  double Bottom(size_t chunk) const { return Top(chunk) + HeightOf(chunk); }
  double Height() const { return Bottom(ChunkCount() - 1); }

  // The chunk that a place, in dots from the top, lies in or right below.
  size_t ChunkAt(double y) const;

  // Whether the height of a chunk is known, and no longer guessed.
  bool IsMeasured(size_t chunk) const { return heights_[chunk] >= 0; }

 private:
  struct Kept {
    size_t chunk;
    std::unique_ptr<PageDocument> document;
  };

  double HeightOf(size_t chunk) const;
  void Place() const;
  void Note(size_t chunk, double height);
  size_t KeptCells() const;

  std::shared_ptr<const PagePlan> plan_;
  size_t kept_cells_;
  Measure measure_;
  std::list<Kept> kept_;         // the one used last first
  std::vector<double> heights_;  // below 0: not known
  double prepared_height_ = 0;
  size_t prepared_cells_ = 0;
  mutable std::vector<double> tops_;  // empty when a height has changed
};

}  // namespace kladez::viewer
