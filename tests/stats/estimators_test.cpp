#include "stats/estimators.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "base/fault.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"

namespace {

using namespace StatFWinBAS;

constexpr double kTolerance = 1e-12;

using Estimator = double (*)(double, double, double);

void CompareWithTable(const char* name, Estimator estimator) {
  for (const support::Row& row : support::ReadTable(name))
    table::Expect(row, {"df", "GM", "GSD"}, "result", kTolerance,
                  [&] { return estimator(row.Number("df"), row.Number("GM"), row.Number("GSD")); });
}

TEST(MeanMVU, GivesTheValuesOfTheReferenceTable) {
  CompareWithTable("finney_mean_mvu.csv", &FinneyMeanMVU);
}

TEST(MeanMMSE, GivesTheValuesOfTheReferenceTable) {
  CompareWithTable("finney_mean_mmse.csv", &FinneyMeanMMSE);
}

TEST(VarianceMVU, GivesTheValuesOfTheReferenceTable) {
  CompareWithTable("finney_variance_mvu.csv", &FinneyVarianceMVU);
}

TEST(MeanMVU, WithoutSpreadIsTheGeometricMean) {
  for (const double df : {1.0, 5.0, 1999.0}) {
    EXPECT_EQ(FinneyMeanMVU(df, 3.25, 1.0), 3.25);
    EXPECT_EQ(FinneyMeanMMSE(df, 3.25, 1.0), 3.25);
  }
}

TEST(VarianceMVU, WithoutSpreadIsADivisionByZero) {
  try {
    FinneyVarianceMVU(5.0, 2.0, 1.0);
    ADD_FAILURE() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Kind(), FaultKind::DivisionByZero);
  }
}

// More spread at the same geometric mean lifts the mean and the variance.
TEST(LognormalEstimators, RiseWithTheGeometricStandardDeviation) {
  for (const double df : {4.0, 9.0, 99.0, 1999.0}) {
    for (int k = 1; k < 60; ++k) {
      const double smaller = 1 + k / 20.0, larger = smaller + 0.05;
      EXPECT_LT(FinneyMeanMVU(df, 1.0, smaller), FinneyMeanMVU(df, 1.0, larger)) << df << larger;
      EXPECT_LT(FinneyMeanMMSE(df, 1.0, smaller), FinneyMeanMMSE(df, 1.0, larger)) << df << larger;
      EXPECT_LT(FinneyVarianceMVU(df, 1.0, smaller), FinneyVarianceMVU(df, 1.0, larger)) << df;
    }
  }
}

TEST(LognormalEstimators, ScaleWithTheUnitOfTheOutcomes) {
  for (const double df : {5.0, 50.0}) {
    EXPECT_DOUBLE_EQ(FinneyMeanMVU(df, 1024.0, 3.0), 1024 * FinneyMeanMVU(df, 1.0, 3.0));
    EXPECT_DOUBLE_EQ(FinneyMeanMMSE(df, 1024.0, 3.0), 1024 * FinneyMeanMMSE(df, 1.0, 3.0));
    EXPECT_DOUBLE_EQ(FinneyVarianceMVU(df, 1024.0, 3.0),
                     1024 * 1024 * FinneyVarianceMVU(df, 1.0, 3.0));
  }
}

TEST(LognormalEstimators, AnOverflowIsAFaultAndNoEndlessLoop) {
  EXPECT_THROW(FinneyMeanMVU(1e200, 1.0, 1000.0), RunTimeError);
  EXPECT_THROW(FinneyVarianceMVU(1e200, 1.0, 1000.0), RunTimeError);
}

TEST(UnbiasedGM, GivesTheValuesOfTheReferenceTable) {
  for (const support::Row& row : support::ReadTable("gm_unbiased.csv")) {
    ExposureSession s;
    s.df = row.Number("df");
    s.InputState = 3;  // of some entry before
    table::Expect(row, {"df", "GM", "GSD"}, "result", kTolerance,
                  [&] { return GMUnbiased(s, row.Number("GM"), row.Number("GSD")); });
    EXPECT_EQ(s.InputState, row.Number("InputState_after")) << row.Where();
  }
}

TEST(UnbiasedGM, WithDf1RefusesAGSDOf25AndTakes24) {
  ExposureSession s;
  s.df = 1;
  EXPECT_EQ(GMUnbiased(s, 2.0, 25.0), 0);
  EXPECT_EQ(s.InputState, 1);
  EXPECT_NE(GMUnbiased(s, 2.0, 24.0), 0);
  EXPECT_EQ(s.InputState, 0);
}

std::map<std::string, std::vector<double>> SortedSeries() {
  std::map<std::string, std::vector<double>> series;
  for (const support::Row& row : support::ReadTable("series_sorted.csv"))
    series[row.Text("series")].push_back(row.Number("C"));
  return series;
}

ExposureSession SessionOf(const support::Row& row,
                          const std::map<std::string, std::vector<double>>& series) {
  ExposureSession s;
  s.Mode = support::ModeOf(row.Text("Mode"));
  s.DetecOn = row.Number("DetecOn") != 0;
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.SDlin = -7;  // so that a value that was left alone is seen
  const std::string& name = row.Text("series");
  if (name.starts_with("M=")) {
    s.M = std::stoi(name.substr(2));
  } else {
    s.C = series.at(name);
    s.M = static_cast<double>(s.C.size() - 1);
  }
  return s;
}

TEST(TheLinearMoments, GiveTheValuesOfTheReferenceTable) {
  const auto series = SortedSeries();
  for (const support::Row& row : support::ReadTable("linear_moments.csv")) {
    ExposureSession s = SessionOf(row, series);
    const std::vector<std::string> inputs = {"series", "Mode", "DetecOn", "GM", "GSD"};
    table::Expect(row, inputs, "XM", kTolerance, [&] {
      LinearMoments(s);
      return s.XM;
    });
    table::Expect(row, inputs, "SDlin", kTolerance, [&] { return s.SDlin; });
    EXPECT_EQ(s.InputState, row.Number("InputState_after")) << row.Where();
  }
}

ExposureSession RawSession(std::vector<double> outcomes) {
  ExposureSession s;
  s.Mode = DataMode::Raw;
  s.M = static_cast<double>(outcomes.size());
  s.C = std::move(outcomes);
  s.C.insert(s.C.begin(), 0.0);
  return s;
}

TEST(TheLinearMoments, OfEqualOutcomesHaveAMeanButNoStandardDeviation) {
  ExposureSession s = RawSession({2.5, 2.5, 2.5, 2.5});
  s.SDlin = 77;
  LinearMoments(s);
  EXPECT_EQ(s.InputState, 4);
  EXPECT_EQ(s.XM, 2.5);
  EXPECT_EQ(s.SDlin, 77);
}

TEST(TheLinearMoments, AStandardDeviationOf10000OrMoreIsStoredAndFlagged) {
  ExposureSession s = RawSession({1, 20001, 10001});
  LinearMoments(s);
  EXPECT_EQ(s.SDlin, 10000);
  EXPECT_EQ(s.InputState, 5);
  s = RawSession({1, 19999, 10000});
  LinearMoments(s);
  EXPECT_EQ(s.SDlin, 9999);
  EXPECT_EQ(s.InputState, 0);
}

TEST(TheLinearMoments, WithADetectionRangeFollowFromGMAndGSD) {
  ExposureSession s = RawSession({1, 2, 3});
  s.DetecOn = true;
  s.GM = 2;
  s.GSD = std::exp(1.0);
  LinearMoments(s);
  const double e = std::exp(0.5);
  EXPECT_NEAR(s.XM, 2 * e, 1e-14);
  EXPECT_NEAR(s.SDlin, std::sqrt(4 * e * (e - 1) * 3 / 2), 1e-14);
}

TEST(TheLinearMoments, OfOneOutcomeAreADivisionByZero) {
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.M = 1;
  s.GM = 2;
  s.GSD = 2;
  EXPECT_THROW(LinearMoments(s), RunTimeError);
}

TEST(TheLinearMoments, OfASeriesThatLacksOutcomesAreASubscriptFault) {
  ExposureSession s = RawSession({1, 2, 3});
  s.M = 4;
  EXPECT_THROW(LinearMoments(s), RunTimeError);
}

}  // namespace
