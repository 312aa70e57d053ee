// The value axis of a chart and the choice of the row labels that find room under it.
#pragma once

#include <QString>
#include <vector>

#include "books/reports/ChartGrid.h"

namespace kladez {

// An axis from `first` * `step` to `last` * `step`. It always holds zero, and its step is 1, 2 or 5
// times a power of ten.
struct ChartAxis {
  double step = 1;
  int first = 0;
  int last = 1;

  // In the units of what the chart shows: of a mark from `first` to `last`, and of the ends.
  double Value(int mark) const { return mark * step; }
  double Lowest() const { return Value(first); }
  double Highest() const { return Value(last); }
  // All marks of an axis have the decimals that its step asks for, and no more.
  QString Text(int mark) const;
};

// The finest axis of at most `most_steps` (2 or more) steps that holds every number of the grid.
// Numbers that are all zero, or as near to it as the dust that sums of cents leave, give 0 to 1.
ChartAxis AxisFor(const ChartGrid& grid, int most_steps);

// A value for people: thousands grouped by a blank, whole numbers without decimals, money with two,
// finer numbers with all that they have.
QString ChartNumberText(double value);

// The rows whose labels are shown, for `count` rows that are `slot` wide each and labels up to
// `widest` wide including the gap between them (both in one unit). Sparse labels fall on the 5th,
// 10th, 15th ... row and the first.
std::vector<int> ShownRowLabels(int count, double slot, double widest);

}  // namespace kladez
