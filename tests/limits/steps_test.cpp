#include "limits/steps.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/csv.h"

namespace {

using limits::LimitStep;
using limits::StepOELV;
using limits::StepPercent;

int Direction(const support::Row& row) { return row.Text("direction") == "up" ? 1 : -1; }

// The table holds what the formulas give; a step that leaves the range stops at its end.
TEST(LimitSteps, EveryStepOfTheLimitValueIsExact) {
  for (const support::Row& row : support::ReadTable("steps_oelv.csv")) {
    std::optional<double> before;
    if (row.Text("before") != "unset") before = row.Number("before");
    const LimitStep step = StepOELV(before, Direction(row));
    const double lowest = Direction(row) < 0 ? 0.0 : before.value_or(0);
    const double after = std::max(lowest, row.Number("after"));
    EXPECT_EQ(step.value, after) << row.Where() << ": " << row.Text("before") << " "
                                 << row.Text("direction") << ", " << row.Text("note");
    EXPECT_EQ(step.atBound, row.Text("MsgText") == "2160") << row.Where();
  }
}

TEST(LimitSteps, EveryStepOfAPercentageIsExact) {
  for (const support::Row& row : support::ReadTable("steps_percent.csv")) {
    const double after = std::max(0.01, row.Number("after"));
    EXPECT_EQ(StepPercent(row.Number("before"), Direction(row)), after)
        << row.Where() << ": " << row.Text("before") << " " << row.Text("direction");
  }
}

TEST(LimitSteps, AFirstClickOnAnEmptyLimitGives1InBothDirections) {
  EXPECT_EQ(StepOELV(std::nullopt, 1).value, 1);
  EXPECT_EQ(StepOELV(std::nullopt, -1).value, 1);
}

TEST(LimitSteps, ADownClickOn1Em5Gives0AndAFurtherOneTheLowestValueWithItsText) {
  const LimitStep first = StepOELV(0.00001, -1);
  EXPECT_EQ(first.value, 0);
  EXPECT_FALSE(first.atBound);
  const LimitStep second = StepOELV(first.value, -1);
  EXPECT_EQ(second.value, 1E-10);
  EXPECT_TRUE(second.atBound);
}

TEST(LimitSteps, TheHighestValueIsReachedByTheFormulaAndAboveItsLastStepWithItsText) {
  EXPECT_EQ(StepOELV(9999999000.0, 1).value, 1E+10);
  EXPECT_FALSE(StepOELV(9999999000.0, 1).atBound);
  EXPECT_EQ(StepOELV(9999999000.5, 1).value, 1E+10);
  EXPECT_TRUE(StepOELV(9999999000.5, 1).atBound);
}

TEST(LimitSteps, BelowTheSmallestDecadeAStepUpDoesNothing) {
  EXPECT_EQ(StepOELV(0.00009, 1).value, 0.00009);
  EXPECT_FALSE(StepOELV(0.00009, 1).atBound);
}

TEST(LimitSteps, NoClickEverLeavesTheRangeOrMovesTheWrongWay) {
  for (double v = 1E-10; v <= 1E+10; v *= 1.0317) {
    const double up = StepOELV(v, 1).value;
    const double down = StepOELV(v, -1).value;
    EXPECT_GE(up, v);
    EXPECT_LE(up, 1E+10);
    EXPECT_LE(down, v);
    EXPECT_GE(down, 0);
  }
}

TEST(LimitSteps, APercentageStepsBetweenItsInnerEnds) {
  EXPECT_EQ(StepPercent(0.25, -1), 0.25);
  EXPECT_EQ(StepPercent(99.5, 1), 99.5);
  EXPECT_DOUBLE_EQ(StepPercent(0.3, -1), 0.05);
  EXPECT_EQ(StepPercent(StepPercent(0.3, -1), -1), StepPercent(0.3, -1));
  EXPECT_EQ(StepPercent(0.2501, -1), 0.01);
}

}  // namespace
