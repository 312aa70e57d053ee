#include "viewer/paper/PageStrip.h"

#include <algorithm>
#include <cmath>

#include "viewer/page/Fonts.h"

namespace kladez::viewer {

namespace {

// Pixels for a cell of a page of which nothing is laid out yet.
constexpr double kFirstGuess = 4;

}  // namespace

PageStrip::PageStrip(std::shared_ptr<const PagePlan> plan, size_t kept_cells)
    : plan_(std::move(plan)), kept_cells_(kept_cells), heights_(plan_->chunks().size(), -1) {}

void PageStrip::SetMeasure(const Measure& measure) {
  measure_ = measure;
  kept_.clear();
  std::fill(heights_.begin(), heights_.end(), -1);
  tops_.clear();
  prepared_height_ = 0;
  prepared_cells_ = 0;
}

PageDocument& PageStrip::Document(size_t chunk) {
  const auto found = std::find_if(kept_.begin(), kept_.end(),
                                  [chunk](const Kept& kept) { return kept.chunk == chunk; });
  if (found != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, found);
    return *kept_.front().document;
  }
  kept_.push_front({chunk, std::make_unique<PageDocument>(*plan_, chunk, measure_)});
  Note(chunk, kept_.front().document->Height());
  while (kept_.size() > 1 && KeptCells() > kept_cells_) kept_.pop_back();
  return *kept_.front().document;
}

void PageStrip::Prepare(size_t chunk) {
  if (IsMeasured(chunk)) return;
  auto made = std::make_unique<PageDocument>(*plan_, chunk, measure_);
  Note(chunk, made->Height());
  prepared_height_ += heights_[chunk];
  prepared_cells_ += plan_->chunks()[chunk].cells;
  if (KeptCells() + plan_->chunks()[chunk].cells <= kept_cells_)
    kept_.push_back({chunk, std::move(made)});
}

void PageStrip::Note(size_t chunk, double height) {
  if (IsMeasured(chunk)) return;
  heights_[chunk] = height;
  tops_.clear();
}

size_t PageStrip::KeptCells() const {
  size_t cells = 0;
  for (const Kept& kept : kept_) cells += plan_->chunks()[kept.chunk].cells;
  return cells;
}

double PageStrip::HeightOf(size_t chunk) const {
  if (IsMeasured(chunk)) return heights_[chunk];
  const double cell = prepared_cells_ == 0
                          ? kFirstGuess * measure_.dpi / kDotsPerInch
                          : prepared_height_ / static_cast<double>(prepared_cells_);
  return std::round(cell * static_cast<double>(plan_->chunks()[chunk].cells));
}

// Chunks begin at whole dots, so that lines are drawn as in one piece.
void PageStrip::Place() const {
  double y = 0;
  for (size_t i = 0; i < ChunkCount(); ++i) {
    y = std::round(y + plan_->chunks()[i].gap * measure_.dpi / kDotsPerInch);
    tops_.push_back(y);
    y += HeightOf(i);
  }
}

double PageStrip::Top(size_t chunk) const {
  if (tops_.empty()) Place();
  return tops_[chunk];
}

size_t PageStrip::ChunkAt(double y) const {
  Top(0);
  const auto past = std::upper_bound(tops_.begin(), tops_.end(), y);
  return past == tops_.begin() ? 0 : static_cast<size_t>(past - tops_.begin()) - 1;
}

}  // namespace kladez::viewer
