#include "compliance/wilks.h"
#include "compliance/tests_on_record.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "base/fault.h"
#include "session/global_bas.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/record.h"

// The Wilks test: its exceedance, its tolerance limit, its bounds.
namespace {

using compliance::Clamp;
using compliance::WilksResult;
using support::Row;

class Wilks : public table::Delivered {};

const std::vector<std::string> kInputs{"note", "df", "GM", "GSD", "OELV", "U"};

Clamp ClampOf(const Row& row) {
  if (row.Text("Wi_clamp").empty()) return Clamp::None;
  return row.Text("Wi_clamp") == ">1E+300" ? Clamp::Above1E300 : Clamp::Below1E300th;
}

TEST_F(Wilks, EverySessionOfTheTableGetsItsExceedanceItsLimitAndItsVerdict) {
  for (const Row& row : support::ReadTable("sessions_tests.csv")) {
    ASSERT_EQ(row.Text("Wi_state"), "ok") << row.Where();
    ExposureSession s = support::RecordOf(row);
    const WilksResult result = compliance::WilksTest(s, row.Number("Ur"));
    EXPECT_EQ(s.TestTag, Extrapolation::Wilks);
    // Far out the finite series cancels: the last digit of 100 is all that is left.
    if (row.Number("Wi_robust") == 1) {
      EXPECT_NEAR(s.PercEx, row.Number("Wi_PercEx"), 1e-13 * row.Number("Wi_PercEx") + 2e-14)
          << row.Where();
    }
    EXPECT_EQ(result.compliance, row.Text("Wi_label") == "2309") << row.Where();
    EXPECT_EQ(result.limit.clamp, ClampOf(row)) << row.Where();
    table::Expect(row, kInputs, "Wi_factor", 1e-12, [&] { return result.limit.WilksFactor; });
    table::Expect(row, kInputs, "Wi_UTL", 1e-12, [&] { return s.UTL; });
  }
}

TEST_F(Wilks, OneDegreeOfFreedomSpreadsBySqrtOneAndAHalf) {
  EXPECT_EQ(compliance::WilksSpread(1), std::sqrt(1.5));
}

TEST_F(Wilks, ALimitAtTheGeometricMeanIsExceededByHalfThePopulation) {
  for (double df : {1.0, 2.0, 9.0, 1999.0}) EXPECT_EQ(compliance::WilksExceedance(df, 0), 50);
}

TEST_F(Wilks, BelowFivePercentCompliesAndFivePercentDoesNot) {
  EXPECT_TRUE(compliance::WilksComplies(std::nextafter(5.0, 0)));
  EXPECT_FALSE(compliance::WilksComplies(5));
}

TEST_F(Wilks, HalfThePopulationStaysBelowTheGeometricMean) {
  const compliance::WilksLimit limit = compliance::WilksToleranceLimit(1.7, 2.4, 50, 9);
  EXPECT_EQ(limit.WilksFactor, 0);
  EXPECT_EQ(limit.UTL, 1.7);
}

// ln GM + g ln GSD beyond 700, while ln GM - g ln GSD is still above -700.
ExposureSession JustAbove() {
  ExposureSession s = support::SampleRecord(2, 100, 1, 1);
  s.U = 99.99;
  const double g = compliance::WilksToleranceLimit(1, 1.001, s.U, s.df).WilksFactor *
                   compliance::WilksSpread(s.df);
  s.GSD = std::exp(702 / g);
  s.UTL = 42;
  return s;
}

TEST_F(Wilks, ALimitBeyondTheBoundsOnlyLeavesAMessageAndTheOldLimit) {
  ExposureSession above = JustAbove();
  EXPECT_EQ(compliance::WilksTest(above, 1).limit.clamp, Clamp::Above1E300);
  EXPECT_EQ(above.MsgText, "Upper tolerance limit is larger than 1E+300");
  EXPECT_EQ(above.UTL, 42);
  ExposureSession small = JustAbove();
  small.GM = 1;
  EXPECT_EQ(compliance::WilksTest(small, 1).limit.clamp, Clamp::Below1E300th)
      << "the mirrored limit is looked at first";
  EXPECT_EQ(small.MsgText, "Upper tolerance limit is smaller than 1E-300");
  EXPECT_EQ(small.UTL, 42);
}

TEST_F(Wilks, ALimitWithinTheBoundsLeavesTheMessageAlone) {
  ExposureSession s = JustAbove();
  s.GSD = 1.2;
  s.U = 95;
  s.MsgText = "earlier";
  EXPECT_EQ(compliance::WilksTest(s, 1).limit.clamp, Clamp::None);
  EXPECT_EQ(s.MsgText, "earlier");
  EXPECT_NE(s.UTL, 42);
}

// The test for a small limit looks at the mirrored one, which is large here.
TEST_F(Wilks, ALimitBelowAllNumbersForACoverageBelow50IsShownAs0WithoutAMessage) {
  ExposureSession s = JustAbove();
  s.U = 0.01;
  s.MsgText = "earlier";
  EXPECT_EQ(compliance::WilksTest(s, 1).limit.clamp, Clamp::None);
  EXPECT_GT(s.UTL, 0) << "100 exp(-702) is still a number";
  EXPECT_LT(s.UTL, 1e-300);
  s.GSD = 1000;
  EXPECT_EQ(compliance::WilksTest(s, 1).limit.clamp, Clamp::None);
  EXPECT_EQ(s.UTL, 0);
  EXPECT_EQ(s.MsgText, "earlier");
  EXPECT_EQ(GlobalBAS::Shown(s, s.UTL), "     0");
}

TEST_F(Wilks, RegressionEstimatesAndReducedDegreesOfFreedomAreTakenAsTheyStand) {
  ExposureSession s = support::SampleRecord(20, 0.3, 2, 1);
  s.df = 6;
  s.U = 95;
  compliance::WilksTest(s, 1.7);
  EXPECT_EQ(s.PercEx, compliance::WilksExceedance(6, 1.7));
  const double percent = s.PercEx;
  s.RegressionOn = true;
  compliance::WilksTest(s, 1.7);
  EXPECT_EQ(s.PercEx, percent);
}

TEST_F(Wilks, TheExceedanceFallsWithTheDistanceAndStaysWithin0And100) {
  for (double df = 1; df < 2000; df = df < 12 ? df + 1 : std::floor(df * 1.7)) {
    double before = 100;
    for (int k = -60; k <= 60; ++k) {
      const double percent = compliance::WilksExceedance(df, k / 6.0);
      ASSERT_LE(percent, before + 1e-12) << "df " << df << ", Ur " << k / 6.0;
      ASSERT_GE(percent, 0);
      before = percent;
    }
  }
}

TEST_F(Wilks, MoreCoverageMovesTheLimitUp) {
  for (double df : {1.0, 2.0, 3.0, 10.0, 200.0, 1000.0, 1001.0, 1999.0}) {
    double before = 0;
    for (double U = 1; U < 100; U += 1) {
      const double limit = compliance::WilksToleranceLimit(1, 1.5, U, df).UTL;
      ASSERT_GT(limit, before) << "df " << df << ", U " << U;
      before = limit;
    }
  }
}

TEST_F(Wilks, TheExceedanceOfItsOwnToleranceLimitIsTheRestOfTheCoverage) {
  for (double df : {1.0, 2.0, 3.0, 10.0, 200.0, 1000.0, 1001.0, 1999.0})
    for (double U : {51.0, 80.0, 95.0, 99.0}) {
      const double limit = compliance::WilksToleranceLimit(0.3, 2, U, df).UTL;
      const double percent = compliance::WilksExceedance(df, std::log(limit / 0.3) / std::log(2.0));
      EXPECT_NEAR(percent, 100 - U, 1e-6) << "df " << df << ", U " << U;
    }
}

}  // namespace
