#include "viewer/paper/Sheets.h"

#include <algorithm>

namespace kladez::viewer {

namespace {

// A heading higher than this part of a sheet is not repeated: it would leave no room for rows.
constexpr double kHighestHeading = 0.5;

class SheetCutter {
 public:
  SheetCutter(std::vector<Unit> units, double height)
      : units_(std::move(units)), height_(std::max(1.0, height)) {
    while (!units_.empty() && units_.back().blank) units_.pop_back();
  }

  std::vector<Sheet> Run() {
    while (next_ < units_.size()) {
      if (units_[next_].blank && !sheets_.empty()) {
        ++next_;
        continue;
      }
      AddSheet();
    }
    if (sheets_.empty()) sheets_.emplace_back();
    return std::move(sheets_);
  }

 private:
  void AddSheet() {
    Sheet sheet;
    sheet.heading = HeadingFor(next_);
    const Unit& first = units_[next_];
    const bool has_heading = sheet.heading.Height() > 0;
    sheet.body.top = first.top - (has_heading || sheets_.empty() ? 0 : first.lead);
    const double limit = sheet.body.top + height_ - sheet.heading.Height();
    size_t end = next_;
    while (end < units_.size() && units_[end].bottom <= limit) ++end;
    if (end == next_) {
      sheet.body.bottom = CutUnit(units_[next_], limit);
    } else {
      end = LastBreak(end);
      sheet.body.bottom = units_[end - 1].bottom;
      next_ = end;
    }
    sheets_.push_back(sheet);
  }

  Slice HeadingFor(size_t index) const {
    const Unit& unit = units_[index];
    if (unit.heading < 0 || static_cast<int>(index) < unit.heading_end) return {};
    const Slice heading = {units_[static_cast<size_t>(unit.heading)].top,
                           units_[static_cast<size_t>(unit.heading_end - 1)].bottom};
    return heading.Height() <= height_ * kHighestHeading ? heading : Slice();
  }

  // The break at or before `end` that parts nothing that belongs together, if there is one on this
  // sheet.
  size_t LastBreak(size_t end) const {
    if (end == units_.size()) return end;
    size_t best = end;
    while (best > next_ && units_[best - 1].keep_with_next) --best;
    return best > next_ ? best : end;
  }

  // Takes what fits of a unit that no sheet can hold, and leaves the rest as the unit.
  double CutUnit(Unit& unit, double limit) {
    double cut = limit;
    for (const double split : unit.splits)
      if (split > unit.top && split <= limit) cut = split;
    unit.top = cut;
    unit.lead = 0;
    return cut;
  }

  std::vector<Unit> units_;
  double height_;
  size_t next_ = 0;
  std::vector<Sheet> sheets_;
};

}  // namespace

std::vector<Sheet> CutIntoSheets(std::vector<Unit> units, double height) {
  return SheetCutter(std::move(units), height).Run();
}

}  // namespace kladez::viewer
