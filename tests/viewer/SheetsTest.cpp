#include <gtest/gtest.h>

#include <random>

#include "viewer/paper/Sheets.h"

namespace kladez::viewer {
namespace {

// Units of the given heights, one below the other.
std::vector<Unit> Stack(const std::vector<double>& heights) {
  std::vector<Unit> units;
  double top = 0;
  for (const double height : heights) {
    Unit unit;
    unit.top = top;
    unit.bottom = top += height;
    units.push_back(unit);
  }
  return units;
}

void GiveHeading(std::vector<Unit>& units, int first, int end) {
  for (size_t i = static_cast<size_t>(first); i < units.size(); ++i) {
    units[i].heading = first;
    units[i].heading_end = end;
    units[i].keep_with_next = static_cast<int>(i) < end;
  }
}

std::vector<double> BodyTops(const std::vector<Sheet>& sheets) {
  std::vector<double> tops;
  for (const Sheet& sheet : sheets) tops.push_back(sheet.body.top);
  return tops;
}

TEST(SheetsTest, RowThatDoesNotFitGoesToTheNextSheetWhole) {
  const auto sheets = CutIntoSheets(Stack({40, 40, 40, 40}), 100);
  EXPECT_EQ(BodyTops(sheets), (std::vector<double>{0, 80}));
  EXPECT_EQ(sheets[0].body.bottom, 80);
}

TEST(SheetsTest, RepeatedHeadingTakesItsRoom) {
  auto units = Stack({20, 10, 10, 30, 30, 30, 30, 30});
  GiveHeading(units, 1, 3);
  const auto sheets = CutIntoSheets(units, 100);
  ASSERT_EQ(sheets.size(), 3u);
  EXPECT_EQ(sheets[0].heading.Height(), 0);
  for (size_t i = 1; i < 3; ++i) {
    EXPECT_EQ(sheets[i].heading.top, 20);
    EXPECT_EQ(sheets[i].heading.bottom, 40);
    EXPECT_LE(sheets[i].body.Height(), 80);
  }
}

TEST(SheetsTest, HeadingAndGroupAreNotLeftAlone) {
  auto units = Stack({70, 15, 10, 20, 20});
  GiveHeading(units, 1, 2);
  units[2].keep_with_next = true;  // a group
  EXPECT_EQ(BodyTops(CutIntoSheets(units, 100)), (std::vector<double>{0, 70}));
}

TEST(SheetsTest, WhatIsTooLongToBeKeptTogetherIsCutAllTheSame) {
  auto units = Stack({60, 60, 60, 60});
  for (Unit& unit : units) unit.keep_with_next = true;
  EXPECT_EQ(CutIntoSheets(units, 100).size(), 4u);
}

TEST(SheetsTest, RowHigherThanASheetIsCutBetweenItsLines) {
  auto units = Stack({30, 250});
  units[1].splits = {70, 110, 150, 190, 230};
  const auto sheets = CutIntoSheets(units, 100);
  EXPECT_EQ(BodyTops(sheets), (std::vector<double>{0, 30, 110, 190}));
  EXPECT_EQ(sheets[3].body.bottom, 280);
}

TEST(SheetsTest, RowWithoutSplitsIsCutWhereTheSheetEnds) {
  EXPECT_EQ(CutIntoSheets(Stack({250}), 100).size(), 3u);
}

TEST(SheetsTest, EmptyLinesNeitherBeginASheetNorMakeTheLast) {
  auto units = Stack({90, 20, 50, 60});
  units[1].blank = units[3].blank = true;
  const auto sheets = CutIntoSheets(units, 100);
  EXPECT_EQ(BodyTops(sheets), (std::vector<double>{0, 110}));
  EXPECT_EQ(CutIntoSheets({}, 100).size(), 1u);
}

TEST(SheetsTest, LineAboveTheFirstRowIsDrawnOnItsSheetToo) {
  auto units = Stack({60, 60});
  units[1].lead = 1;
  EXPECT_EQ(CutIntoSheets(units, 100)[1].body.top, 59);
}

TEST(SheetsTest, EachRowOfAnyPageStandsOnOneSheet) {
  std::mt19937 random(20260305);
  const auto up_to = [&random](int limit) { return static_cast<int>(random() % limit); };
  for (int round = 0; round < 300; ++round) {
    std::vector<double> heights;
    for (int i = 0; i < 1 + up_to(60); ++i) heights.push_back(5 + up_to(45));
    auto units = Stack(heights);
    if (units.size() > 3) GiveHeading(units, up_to(2), 2);
    for (Unit& unit : units) unit.keep_with_next |= up_to(6) == 0;
    const auto sheets = CutIntoSheets(units, 100);
    size_t sheet = 0;
    for (const Unit& unit : units) {
      while (sheet < sheets.size() && unit.bottom > sheets[sheet].body.bottom) ++sheet;
      ASSERT_LT(sheet, sheets.size());
      ASSERT_GE(unit.top, sheets[sheet].body.top) << "a row is cut in two";
    }
    for (const Sheet& each : sheets)
      ASSERT_LE(each.heading.Height() + each.body.Height(), 100) << "a sheet overflows";
  }
}

}  // namespace
}  // namespace kladez::viewer
