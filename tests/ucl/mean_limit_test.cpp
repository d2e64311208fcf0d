#include "ucl/mean_on_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <utility>

#include "base/fault.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/record.h"

namespace {

using ucl::LandCmb;
using ucl::LandIsOffered;
using ucl::LandRefusal;
using ucl::LandResult;
using UCLBAS::LandWatch;

ExposureSession Sample(double M, double GM, double GSD, double OELV, double D) {
  ExposureSession s = support::SampleRecord(M, GM, GSD, OELV);
  s.D = D;
  ucl::TakeMeanStatistics(s);
  return s;
}

ExposureSession Sample(const support::Row& row) {
  return Sample(row.Number("M"), row.Number("GM"), row.Number("GSD"), row.Number("OELV"),
                row.Number("D"));
}

class LandClick : public table::Delivered {};

TEST(LandGate, OffersTheMethodFrom3To1000SamplesOnly) {
  EXPECT_FALSE(LandIsOffered(2, 95));
  EXPECT_TRUE(LandIsOffered(3, 95));
  EXPECT_TRUE(LandIsOffered(1000, 95));
  EXPECT_FALSE(LandIsOffered(1001, 95));
}

TEST(LandGate, OffersTheMethodForConfidencesFrom0_95To99_75) {
  EXPECT_FALSE(LandIsOffered(10, 0.94));
  EXPECT_TRUE(LandIsOffered(10, 0.95));
  EXPECT_TRUE(LandIsOffered(10, 50));
  EXPECT_TRUE(LandIsOffered(10, 99.75));
  EXPECT_FALSE(LandIsOffered(10, 99.76));
}

TEST(LandGate, SaysWhyItRefusesAndTheConfidenceOutweighsTheSampleSize) {
  EXPECT_EQ(LandRefusal(3, 0.95), "");
  EXPECT_EQ(LandRefusal(1000, 99.75), "");
  EXPECT_EQ(LandRefusal(2, 95), "Sample Size out of range. Use Jahr's approximate method");
  EXPECT_EQ(LandRefusal(1001, 95), "Sample Size out of range. Use Jahr's approximate method");
  const char* confidence = "Desired Confidence U out of range. Use Jahr's approximate method";
  EXPECT_EQ(LandRefusal(10, 99.76), confidence);
  EXPECT_EQ(LandRefusal(1001, 99.8), confidence);
}

TEST_F(LandClick, FollowsTheMethodsOwnStepsInWholeSessions) {
  for (const support::Row& row : support::ReadTable("land_sessions.csv")) {
    ExposureSession s = Sample(row);
    s.df = row.Number("df");
    ucl::TakeMeanStatistics(s);
    const LandResult result = LandCmb(s);
    EXPECT_EQ(result.Refusal, row.Text("message")) << row.Where();
    EXPECT_NEAR(s.PercEx, row.Number("PercEx"), 2e-12) << row.Where();
    if (!result.Refusal.empty()) {
      EXPECT_EQ(s.TestTag, Extrapolation::None);
      EXPECT_NEAR(s.UCL, row.Number("JahrUCL"), 1e-13 * std::abs(s.UCL)) << row.Where();
      continue;
    }
    EXPECT_EQ(s.TestTag, Extrapolation::Land);
    EXPECT_NEAR(result.A, row.Number("fixed_A"), 1e-9) << row.Where();
    EXPECT_NEAR(result.UCL, row.Number("fixed_UCL"), 1e-12 * std::abs(result.UCL)) << row.Where();
    EXPECT_NEAR(result.A, row.Number("true_A"), 1.3e-4) << row.Where();
    EXPECT_EQ(s.UCL, result.UCL);
    EXPECT_EQ(s.LandConfidence, result.LandConfidence);
    EXPECT_EQ(100 - s.LandConfidence, result.A);
    if (row.Text("A") == row.Text("fixed_A")) {
      EXPECT_EQ(result.Halvings, row.Number("halvings")) << row.Where();
    }
  }
}

// Sessions in which the plain steps hang, divide by zero or miss the peak.
TEST_F(LandClick, EndsWithTheTrueResultWhereThePlainStepsWouldNot) {
  for (const support::Row& row : support::ReadTable("land_faults.csv")) {
    ExposureSession s = Sample(row);
    LandWatch watch;
    const LandResult result = LandCmb(s, watch);
    EXPECT_NEAR(result.A, row.Number("fixed_A"), 1e-9) << row.Where();
    EXPECT_NEAR(result.A, row.Number("true_A"), 1.3e-4) << row.Where();
    const double UCL = row.Number("fixed_UCL");
    EXPECT_NEAR(result.UCL, UCL, 1e-12 * std::abs(UCL)) << row.Where();
    EXPECT_LE(watch.Evaluations, 600) << row.Where();
  }
}

TEST_F(LandClick, MeetsThePeakThatLiesFarFromThePoint) {
  ExposureSession s = Sample(301, 1, 2.38, 1.6, 95);
  const LandResult result = LandCmb(s);
  EXPECT_NEAR(result.A, 6.2, 0.05);
  EXPECT_NEAR(result.UCL, 0.4768, 0.00005);
}

TEST_F(LandClick, ALimitValueFarAboveTheDataGivesAVerySmallProbability) {
  ExposureSession s = Sample(100, 1, 1.5, 1e6, 95);
  const LandResult result = LandCmb(s);
  EXPECT_EQ(s.PercEx, 0);
  EXPECT_GT(result.A, 0);
  EXPECT_LT(result.A, 0.0001);
}

TEST_F(LandClick, ALimitValueFarBelowTheDataGivesAProbabilityNear100) {
  ExposureSession s = Sample(100, 1, 1.5, 1e-6, 95);
  const LandResult result = LandCmb(s);
  EXPECT_LT(result.A, 100);
  EXPECT_GT(result.A, 99.9999);
}

TEST_F(LandClick, KeepsJahrsProbabilityInTheRecord) {
  ExposureSession s = Sample(10, 1, 2.7, 5, 95);
  const LandResult result = LandCmb(s);
  EXPECT_NEAR(s.PercEx, 0.30125010791235973, 1e-12);
  EXPECT_NEAR(result.A, 4.0978, 0.0001);
}

// Without a deviation Land's first interval divides by it; without a degree of freedom there is no
// interval either.
TEST_F(LandClick, AFaultLeavesTheRecordsResultsAndEmptiesTheTestTag) {
  for (const auto& [GSD, df] : {std::pair(1.0, 9.0), std::pair(2.7, 0.0)}) {
    ExposureSession s = Sample(10, 1, 2.7, 5, 95);
    s.GSD = GSD;
    s.df = df;
    s.UCL = 1.25;
    s.PercEx = 12.5;
    s.TestTag = Extrapolation::Land;
    EXPECT_THROW(LandCmb(s), RunTimeError) << GSD;
    EXPECT_EQ(s.UCL, 1.25) << GSD;
    EXPECT_EQ(s.PercEx, 12.5) << GSD;
    EXPECT_EQ(s.TestTag, Extrapolation::None) << GSD;
  }
}

// The record's own numbers are for who asks by name: the search goes by the sample.
TEST_F(LandClick, DoesNotGoByTheNumbersThatAnEarlierLookHasLeft) {
  ExposureSession s = Sample(10, 1, 2.7, 5, 95);
  const LandResult expected = LandCmb(s);
  s.LnGM = 3;
  s.LnGSD = 0;
  s.AMu = 77;
  const LandResult result = LandCmb(s);
  EXPECT_EQ(result.UCL, expected.UCL);
  EXPECT_EQ(result.A, expected.A);
}

TEST_F(LandClick, TellsEveryTrialLimitWhileItSearches) {
  ExposureSession s = Sample(10, 1, 2.7, 5, 95);
  LandWatch watch;
  int limits = 0;
  watch.Report = [&](const LandWatch&, UCLBAS::LandSign sign) {
    if (sign == UCLBAS::LandSign::Limit) ++limits;
  };
  const LandResult result = LandCmb(s, watch);
  EXPECT_EQ(limits, result.Halvings + 1);
}

// A falls as the limit value rises, the limit rises with the confidence.
TEST_F(LandClick, ProbabilityFallsWithTheLimitValue) {
  for (const double M : {3.0, 6.0, 7.0, 40.0, 1000.0}) {
    double last = 101;
    for (const double OELV : {0.5, 1.0, 1.5, 2.0, 5.0, 20.0}) {
      ExposureSession s = Sample(M, 1, 2.2, OELV, 95);
      const double A = LandCmb(s).A;
      EXPECT_LE(A, last + 1e-4) << "M " << M << " OELV " << OELV;
      last = A;
    }
  }
}

ExposureSession RandomSession(std::mt19937_64& random) {
  const auto uniform = [&](double a, double b) {
    return a + (b - a) * static_cast<double>(random() >> 11) * 0x1p-53;
  };
  const double M = std::floor(std::exp(uniform(std::log(3.0), std::log(1000.999))));
  const double GM = std::exp(uniform(-9, 9));
  const double GSD = std::exp(uniform(0.001, std::log(1000.0)));
  const double OELV = GM * std::exp(uniform(-3, 6) * std::log(GSD));
  return Sample(M, GM, GSD, OELV, uniform(0.95, 99.75));
}

TEST_F(LandClick, EndsInEveryRandomSessionWithinABoundedNumberOfEvaluations) {
  std::mt19937_64 random(20240607);
  long most = 0;
  for (int k = 0; k < 60; ++k) {
    ExposureSession s = RandomSession(random);
    LandWatch watch;
    const LandResult result = LandCmb(s, watch);
    most = std::max(most, watch.Evaluations);
    EXPECT_TRUE(std::isfinite(result.UCL));
    EXPECT_GT(result.A, 0);
    EXPECT_LT(result.A, 100);
    EXPECT_LE(watch.Evaluations, 600)
        << "M " << s.M << " GM " << s.GM << " GSD " << s.GSD << " OELV " << *s.OELV << " D " << s.D;
  }
  EXPECT_GT(most, 200);
}

// Three outcomes of which two lie in the range: one degree of freedom passes the gate, and has the
// widest intervals.
TEST_F(LandClick, EndsWithOneDegreeOfFreedomToo) {
  for (const double GSD : {1.05, 3.0, 30.0, 1000.0}) {
    for (const double OELV : {0.8, 5.0}) {
      ExposureSession s = Sample(3, 1, GSD, OELV, 99);
      s.df = 1;
      ucl::TakeMeanStatistics(s);
      LandWatch watch;
      const LandResult result = LandCmb(s, watch);
      EXPECT_TRUE(std::isfinite(result.UCL));
      EXPECT_LE(watch.Evaluations, 750) << "GSD " << GSD << " OELV " << OELV;
    }
  }
}

}  // namespace
