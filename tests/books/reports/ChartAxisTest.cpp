#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "books/reports/ChartAxis.h"

namespace kladez {
namespace {

using namespace Qt::StringLiterals;

ChartGrid GridOf(const std::vector<double>& values) {
  ChartGrid grid = NumberedChartGrid(u""_s, static_cast<int>(values.size()), {u"Выручка"_s});
  grid.columns[0].values = values;
  return grid;
}

TEST(ChartAxis, StepsAreRoundAndHoldEveryValue) {
  const struct {
    std::vector<double> values;
    int most_steps;
    double step;
    int first;
    int last;
  } cases[] = {
      {{90000, 5200}, 6, 20000, 0, 5},
      {{1250000, -310000}, 8, 500000, -1, 3},
      {{1250000, -310000}, 2, 2000000, -1, 1},
      {{1000}, 5, 200, 0, 5},             // the highest value lies on the last mark
      {{0.1 + 0.2}, 3, 0.1, 0, 3},        // and no binary dust opens one more step
      {{-5, -4.2}, 5, 1, -5, 0},          // the axis ends at zero from below
      {{0, 0, 0}, 5, 0.2, 0, 5},          // nothing sold
      {{5.5e-17, -1e-12}, 5, 0.2, 0, 5},  // what sums of cents leave is nothing
      {{}, 2, 0.5, 0, 2},
      {{std::nan(""), 3}, 4, 1, 0, 3},
  };
  for (const auto& [values, most_steps, step, first, last] : cases) {
    SCOPED_TRACE(testing::PrintToString(values));
    const ChartAxis axis = AxisFor(GridOf(values), most_steps);
    EXPECT_DOUBLE_EQ(axis.step, step);
    EXPECT_EQ(axis.first, first);
    EXPECT_EQ(axis.last, last);
  }
}

TEST(ChartAxis, OverflownSumLeavesAFiniteAxis) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const ChartAxis axis = AxisFor(GridOf({kInfinity, -kInfinity, 5}), 4);
  EXPECT_TRUE(std::isfinite(axis.Highest() - axis.Lowest()));
  EXPECT_LE(axis.last - axis.first, 4);
}

TEST(ChartAxis, TextsOfOneAxisHaveLikeDecimals) {
  const ChartAxis fine = AxisFor(GridOf({1}), 5);
  EXPECT_EQ(fine.Text(0), u"0"_s);
  EXPECT_EQ(fine.Text(3), u"0.6"_s);
  EXPECT_EQ(fine.Text(5), u"1"_s);
  const ChartAxis coarse = AxisFor(GridOf({1250000, -1}), 8);
  EXPECT_EQ(coarse.Text(2), u"400 000"_s);
  EXPECT_EQ(coarse.Text(6), u"1 200 000"_s);
  EXPECT_EQ(coarse.Text(-1), u"-200 000"_s);
}

TEST(ChartNumberText, KeepsTheExactValue) {
  const struct {
    double value;
    QString text;
  } cases[] = {
      {1250000, u"1 250 000"_s}, {12500.5, u"12 500.50"_s},  {0.1 + 0.2, u"0.30"_s},
      {0.125, u"0.125"_s},       {-1234.56, u"-1 234.56"_s}, {0, u"0"_s},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(ChartNumberText(value), text);
}

TEST(ShownRowLabels, SparseLabelsStayRoundAndApart) {
  const struct {
    const char* fault;
    int count;
    double slot;
    double widest;
    std::vector<int> rows;
  } cases[] = {
      {"a label left out though there is room", 4, 20, 20, {0, 1, 2, 3}},
      {"every other", 7, 11, 20, {0, 2, 4, 6}},
      {"fifth days, and the first", 31, 8, 20, {0, 4, 9, 14, 19, 24, 29}},
      {"the first too near to the fifth", 12, 4, 20, {4, 9}},
      {"no row", 0, 10, 20, {}},
  };
  for (const auto& [fault, count, slot, widest, rows] : cases) {
    EXPECT_EQ(ShownRowLabels(count, slot, widest), rows) << fault;
  }
}

}  // namespace
}  // namespace kladez
