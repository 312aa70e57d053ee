// Cuts a page that is laid out in one long strip into sheets: no row in two, headings repeated,
// what belongs together on one sheet. Plain arithmetic; lengths in any one unit, downwards from the
// top.
#pragma once

#include <vector>

namespace kladez::viewer {

// What stays whole: a line of a paragraph or a row of a table.
struct Unit {
  double top = 0;
  double bottom = 0;
  double lead = 0;       // a line above `top` that it shares with the unit before
  int heading = -1;      // the first unit of the heading of its table, -1 without one
  int heading_end = -1;  // the one after the last of it
  bool keep_with_next = false;
  bool blank = false;          // left out where a sheet would begin with it, or the page end
  std::vector<double> splits;  // where it may be cut if it is higher than a sheet, from above
};

struct Slice {
  double top = 0;
  double bottom = 0;
  // In the units of the layout.
  double Height() const { return bottom - top; }
};

struct Sheet {
  Slice heading;  // the rows repeated on top of it; of no height when there are none
  Slice body;
};

// The sheets for `units`, which stand one below the other, with room for `height` on each. There is
// at least one sheet. A unit higher than a sheet is cut at its splits, or where the sheet ends.
std::vector<Sheet> CutIntoSheets(std::vector<Unit> units, double height);

}  // namespace kladez::viewer
