#include "ucl/jahr.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/record.h"
#include "ucl/mean_on_record.h"

namespace {

using ucl::JahrUCL;

class Jahr : public table::Delivered {};

TEST_F(Jahr, FollowsTheMethodsOwnSteps) {
  for (const support::Row& row : support::ReadTable("jahr.csv")) {
    ExposureSession s = support::RecordOf(row);
    ucl::TakeMeanStatistics(s);
    EXPECT_NEAR(s.AMu, row.Number("AMu"), 1e-13 * row.Number("AMu")) << row.Where();
    ucl::JahrLimits(s);
    EXPECT_NEAR(s.UCL, row.Number("UCL"), 1e-13 * (1 + std::abs(row.Number("UCL")))) << row.Where();
    // The tail is a difference from 1, so that its digits are those of 1.
    EXPECT_NEAR(s.PercEx, row.Number("PercEx"), 2e-12) << row.Where();
  }
}

TEST_F(Jahr, AtConfidence50TheLimitIsTheMean) {
  EXPECT_DOUBLE_EQ(JahrUCL(3.5, 2.7, 9, 50, 5).UCL, std::log(3.5));
}

TEST_F(Jahr, BelowConfidence50TheLimitLiesBelowTheMean) {
  EXPECT_LT(JahrUCL(3.5, 2.7, 9, 40, 5).UCL, std::log(3.5));
}

TEST_F(Jahr, ALimitValueAtTheMeanIsExceededWithProbability50) {
  EXPECT_EQ(JahrUCL(3.5, 2.7, 9, 95, 3.5).PercEx, 50);
}

TEST_F(Jahr, AnExceedanceTooSmallToBeRepresentedIsExactly0) {
  EXPECT_EQ(JahrUCL(1, 1.5, 99, 95, 1e10).PercEx, 0);
}

TEST_F(Jahr, ALimitBeyondTheLargestNumberIsStillKnownByItsLogarithm) {
  EXPECT_GT(JahrUCL(1e10, 1000, 1, 99.99, 1e10).UCL, 701);
}

TEST_F(Jahr, TheLimitRisesWithTheConfidenceAndTheExceedanceFallsWithTheLimitValue) {
  for (const double df : {1.0, 2.0, 9.0, 200.0, 201.0, 1999.0}) {
    double limit = -1e300;
    double percent = 101;
    for (double step = 0.5; step < 100; step += 0.5) {
      const double now = JahrUCL(2, 3, df, step, 5).UCL;
      EXPECT_GT(now, limit) << "df " << df << " D " << step;
      limit = now;
      const double above = JahrUCL(2, 3, df, 95, step).PercEx;
      EXPECT_LE(above, percent + 1e-12) << "df " << df << " OELV " << step;
      EXPECT_GE(above, 0);
      percent = above;
    }
  }
}

// Ten samples whose mean is known.
ExposureSession Ten(double AMu, double GSD) {
  ExposureSession s = support::SampleRecord(10, 1, GSD, 5);
  s.AMu = AMu;
  s.D = 95;
  s.UCL = 1.25;
  s.PercEx = 12.5;
  return s;
}

void ExpectFaultLeavesTheRecord(ExposureSession s) {
  EXPECT_THROW(ucl::JahrLimits(s), RunTimeError);
  EXPECT_EQ(s.UCL, 1.25);
  EXPECT_EQ(s.PercEx, 12.5);
}

TEST_F(Jahr, AGSDOf1OrAMeanOf0IsAFaultAndLeavesTheRecord) {
  ExpectFaultLeavesTheRecord(Ten(2, 1));
  ExpectFaultLeavesTheRecord(Ten(0, 2));
}

TEST_F(Jahr, WithoutALimitValueThereIsAFault) {
  ExposureSession s = Ten(2, 2);
  EXPECT_NO_THROW(ucl::JahrLimits(s));
  ExposureSession without = Ten(2, 2);
  without.OELV.reset();
  ExpectFaultLeavesTheRecord(without);
}

}  // namespace
