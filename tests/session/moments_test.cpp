#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "base/fault.h"
#include "session/exposure_session.h"
#include "session/moments.h"
#include "tests/support/csv.h"

namespace {

// The series by name, sorted, with the median as element 0.
const std::map<std::string, std::vector<double>>& Series() {
  static const auto series = [] {
    std::map<std::string, std::vector<double>> read;
    for (const support::Row& row : support::ReadTable("series_sorted.csv"))
      read[row.Text("series")].push_back(row.Number("C"));
    return read;
  }();
  return series;
}

ExposureSession WithOutcomes(std::vector<double> C) {
  ExposureSession s;
  s.C = std::move(C);
  s.M = static_cast<double>(s.C.size()) - 1;
  s.df = s.M - 1;
  return s;
}

FaultKind FaultOf(ExposureSession& s, double& gm, double& gsd) {
  try {
    LogMoments(s, gm, gsd);
  } catch (const RunTimeError& error) {
    return error.Kind();
  }
  ADD_FAILURE() << "no fault";
  return FaultKind::MissingText;
}

}  // namespace

TEST(DegreesOfFreedom, FollowTheTableWithAndWithoutADetectionRange) {
  for (const support::Row& row : support::ReadTable("degrees_of_freedom.csv")) {
    ExposureSession s;
    s.M = row.Number("M");
    s.DetecOn = row.Number("DetecOn") == 1;
    s.NInRange = static_cast<std::int16_t>(row.Number("NInRange"));
    DegreesOfFreedom(s);
    EXPECT_EQ(s.df, row.Number("df"))
        << row.Where() << " M " << s.M << " DetecOn " << s.DetecOn << " NInRange " << s.NInRange;
  }
}

TEST(LogMoments, GiveTheGeometricMeanAndDeviationOfEverySeriesOfTheTable) {
  for (const support::Row& row : support::ReadTable("log_moments.csv")) {
    ExposureSession s = WithOutcomes(Series().at(row.Text("series")));
    s.df = row.Number("df");
    double gm = 77;
    double gsd = 78;
    LogMoments(s, gm, gsd);
    const std::string where = row.Where() + " " + row.Text("series") + " df " + row.Text("df");
    EXPECT_LE(support::RelativeError(gm, row.Number("GM_after")), 1e-12)
        << where << ": GM " << gm << ", expected " << row.Text("GM_after");
    EXPECT_LE(support::RelativeError(gsd, row.Number("GSD_after")), 1e-12)
        << where << ": GSD " << gsd << ", expected " << row.Text("GSD_after");
    EXPECT_EQ(s.InputState, row.Number("InputState_after")) << where;
  }
}

// How good the method itself is: the largest errors seen are the marks that must not be passed.
TEST(LogMoments, LieAtTheMathematicalValueWithinTheErrorLastSeen) {
  for (const support::Row& row : support::ReadTable("log_moments_true.csv")) {
    ExposureSession s = WithOutcomes(Series().at(row.Text("series")));
    double gm = 0;
    double gsd = 0;
    LogMoments(s, gm, gsd);
    const double gmError = support::RelativeError(gm, row.Number("GM"));
    const double gsdError = support::RelativeError(gsd, row.Number("GSD"));
    EXPECT_LE(gmError, 3 * row.Number("GM_error") + 5e-16) << row.Where() << " GM " << gm;
    EXPECT_LE(gsdError, 3 * row.Number("GSD_error") + 5e-16) << row.Where() << " GSD " << gsd;
  }
}

TEST(LogMoments, OfARealSeriesAreWhatTheOpenedFileShows) {
  for (const support::Row& row : support::ReadTable("series_opened.csv")) {
    ExposureSession s = WithOutcomes(Series().at(row.Text("series")));
    DegreesOfFreedom(s);
    EXPECT_EQ(s.df, row.Number("df")) << row.Where();
    if (row.Text("GSD").empty()) continue;
    LogMoments(s, s.GM, s.GSD);
    EXPECT_LE(support::RelativeError(s.GM, row.Number("GM")), 1e-12) << row.Where();
    EXPECT_LE(support::RelativeError(s.GSD, row.Number("GSD")), 1e-12) << row.Where();
  }
}

TEST(LogMoments, OfFewerThanTwoOutcomesLeaveEverythingAsItWas) {
  ExposureSession s = WithOutcomes({0, 5});
  s.InputState = 2;
  double gm = 77;
  double gsd = 78;
  LogMoments(s, gm, gsd);
  EXPECT_EQ(gm, 77);
  EXPECT_EQ(gsd, 78);
  EXPECT_EQ(s.InputState, 2);
}

// All outcomes alike: the mean is known, a spread is not.
TEST(LogMoments, WithoutSpreadGiveTheMeanAndKeepTheOldDeviation) {
  ExposureSession s = WithOutcomes({0, 2, 2, 2});
  double gm = 77;
  double gsd = 78;
  LogMoments(s, gm, gsd);
  EXPECT_DOUBLE_EQ(gm, 2);
  EXPECT_EQ(gsd, 78);
  EXPECT_EQ(s.InputState, 4);
}

// The rounding of two thousand squares is no spread.
TEST(LogMoments, OfManyEqualOutcomesHaveNoSpread) {
  std::vector<double> C(2001, 2.0);
  for (const int M : {3, 60, 1996, 2000}) {
    const GeometricMoments moments = LogMoments(C, M, M - 1);
    EXPECT_EQ(moments.spread, Spread::None) << M;
    EXPECT_FALSE(moments.GSD) << M;
    EXPECT_NEAR(moments.GM, 2, 1E-12) << M;
  }
}

TEST(LogMoments, OfAnOutcomeOfZeroOrLessFault) {
  for (const double bad : {0.0, -1.0}) {
    ExposureSession s = WithOutcomes({0, bad, 2, 3});
    double gm = 77;
    double gsd = 78;
    EXPECT_EQ(FaultOf(s, gm, gsd), FaultKind::InvalidOperation);
    EXPECT_EQ(gm, 77);
    EXPECT_EQ(gsd, 78);
  }
}

TEST(LogMoments, WithoutDegreesOfFreedomFaultAfterTheMeanIsWritten) {
  ExposureSession s = WithOutcomes({0, 1, 4});
  s.df = 0;
  double gm = 77;
  double gsd = 78;
  EXPECT_EQ(FaultOf(s, gm, gsd), FaultKind::DivisionByZero);
  EXPECT_DOUBLE_EQ(gm, 2);
  EXPECT_EQ(gsd, 78);
}

TEST(LogMoments, OfASampleSizeBeyondTheStoredOutcomesFault) {
  ExposureSession s = WithOutcomes({0, 1, 4});
  s.M = 3;
  double gm = 77;
  double gsd = 78;
  EXPECT_EQ(FaultOf(s, gm, gsd), FaultKind::Subscript);
}

TEST(Median, OfEverySeriesIsElementZero) {
  for (const auto& [name, C] : Series()) {
    ExposureSession s = WithOutcomes(C);
    s.C[0] = -1;
    StoreMedian(s);
    EXPECT_EQ(s.C[0], C[0]) << name;
  }
}

TEST(Median, IsTheMiddleOutcomeOrTheMeanOfTheTwoInTheMiddle) {
  ExposureSession odd = WithOutcomes({0, 1, 2, 9});
  StoreMedian(odd);
  EXPECT_EQ(odd.C[0], 2);
  ExposureSession even = WithOutcomes({0, 1, 2, 4, 9});
  StoreMedian(even);
  EXPECT_EQ(even.C[0], 3);
}
