#include "books/reports/ChartAxis.h"

#include <algorithm>
#include <cmath>

#include "formats/Numbers.h"

namespace kladez {
namespace {

// Beyond this the grouped text of a number is wider than a chart.
constexpr double kLargestGrouped = 1e15;
constexpr double kDust = 1e-7;
// Keeps the axis finite whatever a sum has overflowed to.
constexpr double kLargest = 1e300;

double RoundStep(int digit, int power) {
  // Dividing keeps 0.1 and 0.05 the numbers that they are written as.
  return power >= 0 ? digit * std::pow(10, power) : digit / std::pow(10, -power);
}

ChartAxis AxisOfStep(double step, double lowest, double highest) {
  // A value that is a multiple of the step must not open one more step by its last binary digit.
  constexpr double kSlack = 1e-9;
  return {step, static_cast<int>(std::floor(lowest / step + kSlack)),
          static_cast<int>(std::ceil(highest / step - kSlack))};
}

}  // namespace

QString ChartAxis::Text(int mark) const {
  return step < 1 ? GeneralText(Value(mark)) : ChartNumberText(Value(mark));
}

ChartAxis AxisFor(const ChartGrid& grid, int most_steps) {
  double lowest = 0;
  double highest = 0;
  const auto hold = [&](const std::vector<double>& values) {
    for (const double value : values) {
      if (std::isnan(value)) continue;
      lowest = std::clamp(value, -kLargest, lowest);
      highest = std::clamp(value, highest, kLargest);
    }
  };
  for (const ChartColumn& column : grid.columns) hold(column.values);
  hold(grid.year_ago);
  if (highest - lowest < kDust) {
    lowest = 0;
    highest = 1;
  }
  int power = static_cast<int>(std::floor(std::log10((highest - lowest) / most_steps)));
  for (;; ++power) {
    for (const int digit : {1, 2, 5}) {
      const ChartAxis axis = AxisOfStep(RoundStep(digit, power), lowest, highest);
      if (axis.last - axis.first <= most_steps) return axis;
    }
  }
}

QString ChartNumberText(double value) {
  if (std::abs(value) >= kLargestGrouped) return GeneralText(value);
  const QString general = GeneralText(value);
  const qsizetype point = general.indexOf(u'.');
  if (point >= 0 && general.size() - point > 3) return general;
  const QString grouped = FormatGrouped(value);
  return point < 0 ? grouped.left(grouped.size() - 3) : grouped;
}

std::vector<int> ShownRowLabels(int count, double slot, double widest) {
  int every = 1;
  for (const int step : {1, 2, 5, 10, 20, 50, 100, 200, 500}) {
    every = step;
    if (slot * step >= widest) break;
  }
  std::vector<int> rows;
  const int offset = every < 5 ? 0 : every - 1;
  if (offset > 0 && count > 0 && slot * offset >= widest) rows.push_back(0);
  for (int row = offset; row < count; row += every) rows.push_back(row);
  return rows;
}

}  // namespace kladez
