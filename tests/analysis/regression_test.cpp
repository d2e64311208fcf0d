#include "analysis/regression_on_record.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "analysis/rankits.h"
#include "analysis/transformations.h"
#include "base/fault.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"

namespace {

using analysis::FitState;
using analysis::ProbabilityRegression;
using analysis::Regression;

class RegressionLine : public table::Delivered {};

TEST_F(RegressionLine, ThroughThreeOutcomesUsesAllOfThem) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 6});
  FitState state = fit_data::Activated(s, "Unt");
  const Regression fit = ProbabilityRegression(s, state);
  const double z = 0.84628;
  EXPECT_NEAR(fit.sums.SZZ, 2 * z * z, 1e-15);
  EXPECT_NEAR(fit.a, 3, 1e-15);
  EXPECT_NEAR(fit.b, 5 / (2 * z), 1e-14);
  EXPECT_NEAR(fit.yLow, 0.5, 1e-14);
  EXPECT_NEAR(fit.yHigh, 5.5, 1e-14);
}

TEST_F(RegressionLine, ThroughAnExactlyNormalSampleHasItsMeanAndSpread) {
  for (const int M : {3, 4, 5, 20, 21, 60, 1999, 2000}) {
    ExposureSession s = fit_data::OpenedPowers(M);
    FitState state = fit_data::Activated(s, "Unt");
    for (int i = 1; i <= M; ++i)
      s.LnC[static_cast<std::size_t>(i)] = 7 + 2.5 * analysis::Score(state.RankitTable, M, i);
    for (const int cut : {0, M / 5}) {
      fit_data::Restrict(s, 1 + cut, M);
      const Regression fit = ProbabilityRegression(s, state);
      EXPECT_NEAR(fit.a, 7, 1e-12) << M << " cut " << cut;
      EXPECT_NEAR(fit.b, 2.5, 1e-12) << M << " cut " << cut;
    }
  }
}

TEST_F(RegressionLine, WithARangeAndLogarithmsGivesTheRecordItsEstimators) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Log(x)");
  fit_data::Restrict(s, 6, 30);
  const Regression fit = ProbabilityRegression(s, state);
  EXPECT_TRUE(s.RegressionOn);
  EXPECT_EQ(s.GM, std::exp(fit.a));
  EXPECT_EQ(s.GSD, std::exp(fit.b));
  EXPECT_EQ(s.df, 26);
  EXPECT_EQ(fit.EstimatesText,
            "GMg=" + GlobalBAS::Shown(s, s.GM) + "\rGSDg=" + GlobalBAS::Shown(s, s.GSD));
}

// A line through scores of that location and spread, on the scale of the logarithms.
Regression LineOf(double GM, double GSD) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Log(x)");
  fit_data::Restrict(s, 6, 30);
  state.CTransf.assign(31, 0.0);
  for (int i = 1; i <= 30; ++i)
    state.CTransf[static_cast<std::size_t>(i)] =
        std::log(GM) + std::log(GSD) * analysis::Score(state.RankitTable, 30, i);
  return analysis::FitLine(s, state);
}

TEST_F(RegressionLine, GivesNoEstimatorsBeyondWhatCanBeCalculatedWith) {
  constexpr double kNear = 1E-6;
  for (const auto& [GM, GSD] : {std::pair(1E-10, 2.0), {1E+10, 2.0}, {1.0, 1.001}, {1.0, 1000.0}}) {
    const double within = GM < 1 || GSD < 2 ? 1 + kNear : 1 - kNear;
    const double ofGM = GM == 1 ? 1 : within;
    const double ofGSD = GM == 1 ? within : 1;
    EXPECT_TRUE(LineOf(GM * ofGM, GSD * ofGSD).estimators) << GM << " and " << GSD;
    const Regression beyond = LineOf(GM / ofGM, GSD / ofGSD);
    EXPECT_FALSE(beyond.estimators) << GM << " and " << GSD;
    EXPECT_TRUE(beyond.beyondNumbers) << GM << " and " << GSD;
    EXPECT_TRUE(beyond.line && beyond.estimates) << "drawn and listed all the same";
  }
}

void ExpectSampleEstimators(const ExposureSession& s) {
  ExposureSession fresh = s;
  LogMoments(fresh, fresh.GM, fresh.GSD);
  EXPECT_FALSE(s.RegressionOn);
  EXPECT_EQ(s.GM, fresh.GM);
  EXPECT_EQ(s.GSD, fresh.GSD);
}

TEST_F(RegressionLine, WithARangeAndSquareRootsKeepsTheSampleEstimators) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Sqr(x)");
  fit_data::Restrict(s, 6, 30);
  DegreesOfFreedom(s);
  const Regression fit = ProbabilityRegression(s, state);
  EXPECT_FALSE(fit.estimates);
  EXPECT_EQ(fit.EstimatesText, "");
  ExpectSampleEstimators(s);
}

TEST_F(RegressionLine, WithARangeAndNoTransformationShowsXAndSAndKeepsTheSampleEstimators) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Unt");
  fit_data::Restrict(s, 6, 30);
  DegreesOfFreedom(s);
  const Regression fit = ProbabilityRegression(s, state);
  EXPECT_TRUE(fit.estimates);
  EXPECT_EQ(fit.EstimatesText,
            "x=" + GlobalBAS::Shown(s, fit.a) + "\rs=" + GlobalBAS::Shown(s, fit.b));
  ExpectSampleEstimators(s);
}

TEST_F(RegressionLine, WithoutARangeShowsNoEstimatesForLogarithms) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Log(x)");
  EXPECT_FALSE(ProbabilityRegression(s, state).estimates);
  ExpectSampleEstimators(s);
}

// The first drawing after the range has gone still divides by the df of the range.
TEST_F(RegressionLine, TakesTheSampleEstimatorsByTheDegreesOfFreedomOfBefore) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Log(x)");
  const double whole = s.GSD;
  fit_data::Restrict(s, 11, 30);
  ProbabilityRegression(s, state);
  s.DetecOn = false;
  s.FirstInRange = 1;
  ProbabilityRegression(s, state);
  EXPECT_NEAR(std::log(s.GSD) / std::log(whole), std::sqrt(29.0 / 24.0), 1e-12);
  ProbabilityRegression(s, state);
  EXPECT_EQ(s.GSD, whole);
}

TEST_F(RegressionLine, NamesTheCensoringByTheEndsOfTheRange) {
  ExposureSession s = fit_data::OpenedPowers(30);
  FitState state = fit_data::Activated(s, "Log(x)");
  const auto label = [&](int first, int last) {
    fit_data::Restrict(s, first, last);
    ProbabilityRegression(s, state);
    return s.RegressionLabel;
  };
  EXPECT_EQ(label(1, 30), "Non censored");
  EXPECT_EQ(label(2, 30), "Single censored");
  EXPECT_EQ(label(1, 29), "Single censored");
  EXPECT_EQ(label(2, 29), "Double censored");
}

// What the statistics of the record were before stays, and the text says that there is no test.
void ExpectNoLine(ExposureSession s, FitState state) {
  s.GM = 1.25;
  s.GSD = 2.5;
  s.GMu = 3.75;
  s.SDu = 4.5;
  s.df = 5.5;
  s.RegressionOn = true;
  const Regression fit = ProbabilityRegression(s, state);
  EXPECT_FALSE(fit.line);
  EXPECT_FALSE(fit.estimates);
  EXPECT_EQ(fit.EstimatesText, "");
  EXPECT_EQ(fit.TestText, "Shapiro's test\rGoodness-of-fit\rprobability: \rnot possible\r");
  EXPECT_EQ(s.MsgText, fit.TestText);
  EXPECT_EQ(s.NInRange, s.LastInRange - s.FirstInRange + 1);
  EXPECT_EQ(s.GM, 1.25);
  EXPECT_EQ(s.GSD, 2.5);
  EXPECT_EQ(s.GMu, 3.75);
  EXPECT_EQ(s.SDu, 4.5);
  EXPECT_EQ(s.df, 5.5);
  EXPECT_TRUE(s.RegressionOn);
}

TEST_F(RegressionLine, NeedsTwoOutcomesInRange) {
  ExposureSession s = fit_data::OpenedPowers(12);
  const FitState state = fit_data::Activated(s, "Log(x)");
  for (const int last : {7, 6, 5}) {
    fit_data::Restrict(s, 7, last);
    ExpectNoLine(s, state);
  }
  fit_data::Restrict(s, 7, 8);
  FitState two = state;
  EXPECT_TRUE(ProbabilityRegression(s, two).line);
}

TEST_F(RegressionLine, NeedsOutcomesInRangeThatDiffer) {
  ExposureSession s = fit_data::Opened({3, 1, 2, 3, 3, 3, 3, 3, 8});
  const FitState state = fit_data::Activated(s, "Log(x)");
  fit_data::Restrict(s, 3, 7);
  ExpectNoLine(s, state);
  fit_data::Restrict(s, 2, 7);
  FitState differing = state;
  EXPECT_TRUE(ProbabilityRegression(s, differing).line);
}

TEST_F(RegressionLine, NeedsThreeOutcomes) {
  ExposureSession s = fit_data::Opened({2.5, 2, 3});
  const FitState state = fit_data::Activated(s, "Log(x)");
  ExpectNoLine(s, state);
}

TEST_F(RegressionLine, OfARecordThatHasOutgrownItsRankitsIsASubscriptFault) {
  ExposureSession s = fit_data::OpenedPowers(12);
  FitState state = fit_data::Activated(s, "Log(x)");
  ExposureSession grown = fit_data::OpenedPowers(14);
  EXPECT_THROW(ProbabilityRegression(grown, state), RunTimeError);
  s.LnC.resize(12);
  EXPECT_THROW(ProbabilityRegression(s, state), RunTimeError);
}

TEST_F(RegressionLine, WithARefusedTestIsDrawnAllTheSame) {
  ExposureSession s = fit_data::OpenedPowers(19);
  FitState state = fit_data::Activated(s, "Log(x)");
  fit_data::Restrict(s, 2, 19);
  const Regression fit = ProbabilityRegression(s, state);
  EXPECT_TRUE(fit.line);
  EXPECT_EQ(fit.test.fault, 4);
  EXPECT_TRUE(s.MsgText.ends_with("\rnot possible\r")) << s.MsgText;
  EXPECT_TRUE(s.RegressionOn);
}

// Removing the range brings back limits, counts and sample estimators.
TEST_F(RegressionLine, WithoutItsRangeAgainIsTheLineOfTheWholeSeries) {
  ExposureSession s = fit_data::OpenedPowers(25);
  FitState state = fit_data::Activated(s, "Log(x)");
  const Regression before = ProbabilityRegression(s, state);
  const ExposureSession whole = s;
  fit_data::Restrict(s, 6, 21);
  ProbabilityRegression(s, state);
  EXPECT_NE(s.GM, whole.GM);
  s.DetecOn = false;
  s.FirstInRange = 1;
  s.LastInRange = 25;
  DegreesOfFreedom(s);
  const Regression after = ProbabilityRegression(s, state);
  EXPECT_EQ(after.a, before.a);
  EXPECT_EQ(after.b, before.b);
  EXPECT_EQ(s.GM, whole.GM);
  EXPECT_EQ(s.GSD, whole.GSD);
  EXPECT_EQ(s.GMu, whole.GMu);
  EXPECT_EQ(s.NInRange, 25);
}

bool Finite(const Regression& fit) {
  return std::isfinite(fit.a) && std::isfinite(fit.b) && std::isfinite(fit.yLow) &&
         std::isfinite(fit.yHigh) && std::isfinite(fit.test.W) && std::isfinite(fit.test.PW);
}

TEST_F(RegressionLine, OfRandomSeriesAndRangesRisesAndEndsFinite) {
  std::mt19937 random(177);
  std::normal_distribution<double> normal;
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int k = 0; k < 1500; ++k) {
    const int M = 3 + (k % 10 == 0 ? below(1998) : below(60));
    std::vector<double> outcomes = {0};
    const double gm = std::exp(5 * normal(random));
    const double sigma = 0.01 + std::abs(normal(random));
    for (int i = 1; i <= M; ++i) outcomes.push_back(gm * std::exp(sigma * normal(random)));
    std::sort(outcomes.begin() + 1, outcomes.end());
    outcomes[0] = outcomes[static_cast<std::size_t>(M) / 2 + 1];
    ExposureSession s = fit_data::Opened(outcomes);
    FitState state = fit_data::Activated(
        s, std::string(analysis::kTransformations[static_cast<std::size_t>(k) % 5 + 1].name));
    if (state.Transformation.empty() || state.Transformation == "Exp(x)") continue;
    if (k % 3 > 0) fit_data::Restrict(s, 1 + below(M / 2), M - below(M / 2));
    const Regression fit = ProbabilityRegression(s, state);
    ASSERT_TRUE(fit.line && Finite(fit)) << "M " << M << ", " << state.Transformation;
    ASSERT_GT(fit.b, 0) << "M " << M << ", " << state.Transformation;
  }
}

}  // namespace
