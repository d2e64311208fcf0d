#include "compare/steps.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/csv.h"

// The up-down pairs of the reference values.
namespace {

using compare::ReferenceStep;
using compare::StepGM2;
using compare::StepGSD2;
using compare::StepM2;
using support::Row;

int Direction(const Row& row) { return row.Text("direction") == "up" ? 1 : -1; }

int TextOf(const Row& row) {
  const std::string& text = row.Text("MsgText");
  return text.empty() ? 0 : static_cast<int>(row.Number("MsgText"));
}

void ExpectTable(const std::string& table, ReferenceStep (*step)(double, int)) {
  int rows = 0;
  for (const Row& row : support::ReadTable(table)) {
    const ReferenceStep result = step(row.Number("before"), Direction(row));
    const std::string where = row.Where() + ": " + row.Text("before") + " " +
                              row.Text("direction") + ", " + row.Text("note");
    EXPECT_EQ(result.value, row.Number("after")) << where;
    EXPECT_EQ(result.text, TextOf(row)) << where;
    ++rows;
  }
  EXPECT_GT(rows, 0) << table;
}

TEST(ReferenceSteps, EveryStepOfTheGeometricMeanIsExact) { ExpectTable("steps_gm2.csv", StepGM2); }

TEST(ReferenceSteps, EveryStepOfTheGeometricStandardDeviationIsExact) {
  ExpectTable("steps_gsd2.csv", StepGSD2);
}

TEST(ReferenceSteps, EveryStepOfTheSampleSizeIsExact) { ExpectTable("steps_m2.csv", StepM2); }

TEST(ReferenceSteps, ASampleSizeOf2DoesNotStepDownAndOf30000DoesNotStepUp) {
  EXPECT_EQ(StepM2(2, -1).value, 2);
  EXPECT_EQ(StepM2(2, 1).value, 3);
  EXPECT_EQ(StepM2(30000, 1).value, 30000);
  EXPECT_EQ(StepM2(30000, -1).value, 29999);
}

TEST(ReferenceSteps, TheGeometricMeanTellsItsEndsBelow2e4AndFrom9900On) {
  EXPECT_EQ(StepGM2(0.0002, -1).text, 0);
  EXPECT_EQ(StepGM2(0.00019, -1).value, 0.0001);
  EXPECT_EQ(StepGM2(0.00019, -1).text, 705);
  EXPECT_EQ(StepGM2(9899, 1).text, 710) << "by its formula 10800 would follow";
  EXPECT_EQ(StepGM2(9900, 1).value, 10000);
  EXPECT_EQ(StepGM2(9900, 1).text, 710);
  EXPECT_EQ(StepGM2(8999, 1).value, 9900);
  EXPECT_EQ(StepGM2(8999, 1).text, 0);
}

TEST(ReferenceSteps, TheGeometricStandardDeviationReachesEachEndAndThenTellsIt) {
  EXPECT_EQ(StepGSD2(990, 1).value, 1000);
  EXPECT_EQ(StepGSD2(990, 1).text, 0);
  EXPECT_EQ(StepGSD2(1000, 1).value, 1000);
  EXPECT_EQ(StepGSD2(1000, 1).text, 720);
  EXPECT_DOUBLE_EQ(StepGSD2(1.002, -1).value, 1.001);
  EXPECT_EQ(StepGSD2(1.002, -1).text, 0);
  EXPECT_EQ(StepGSD2(1.001, -1).value, 1.001);
  EXPECT_EQ(StepGSD2(1.001, -1).text, 715);
}

TEST(ReferenceSteps, NoClickLeavesTheRangeOrMovesTheWrongWay) {
  auto expect = [](const ReferenceStep& step, double least, double most, double v) {
    EXPECT_GE(step.value, least) << v;
    EXPECT_LE(step.value, most) << v;
  };
  for (double v = 0.0001; v <= 10000; v *= 1.0173) {
    expect(StepGM2(v, 1), v, 10000, v);
    expect(StepGM2(v, -1), 0.0001, v, v);
  }
  for (double v = 1.001; v <= 1000; v = 1 + (v - 1) * 1.0173) {
    expect(StepGSD2(v, 1), 1.001, 1000, v);
    EXPECT_GT(StepGSD2(v, 1).value, v) << v;
    expect(StepGSD2(v, -1), 1.001, v, v);
  }
}

}  // namespace
