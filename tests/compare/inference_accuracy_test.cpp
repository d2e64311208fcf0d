#include <gtest/gtest.h>

#include <cmath>

#include "compare/inference.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

// How far the comparison is from the mathematical values. The bounds are the errors last seen with
// a little room; they only ever get smaller.
namespace {

using compare::Answer;
using compare::InferenceResult;
using support::Row;

class ComparisonAccuracy : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { table::LoadDelivered(); }
};

// The largest difference in percent.
struct Largest {
  double error = 0;
  std::string where = "none";
  int rows = 0;

  void Take(double result, double truth, const Row& row) {
    ++rows;
    const double now = std::abs(result - truth);
    if (now <= error) return;
    error = now;
    where = row.Where();
  }
  void Hold(const std::string& what, double ratchet) const {
    EXPECT_GT(rows, 0) << what;
    EXPECT_LE(error, ratchet) << what << ": largest error " << error << " percent at " << where;
  }
};

ExposureSession SessionOf(const Row& row) {
  ExposureSession s;
  s.CompareMode = row.Text("mode");
  s.M = row.Number("M");
  s.df = s.M - 1;
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.M2 = row.Number("M2");
  s.GM2 = row.Number("GM2");
  s.GSD2 = row.Number("GSD2");
  return s;
}

InferenceResult Answered(ExposureSession& s, Answer answer) {
  return compare::Inference(s, [answer](double) { return answer; });
}

// Above these the chi-square and F tails are approximations by one normal tail.
bool Exact(const ExposureSession& s) {
  return s.CompareMode == "P" ? s.df <= 200 : s.df * (s.M2 - 1) < 32768;
}

TEST_F(ComparisonAccuracy, TheProbabilitiesAreThoseOfArbitraryPrecision) {
  Largest exact;
  Largest approximate;
  Largest locations;
  for (const Row& row : support::ReadTable("comparison_truth.csv")) {
    ExposureSession s = SessionOf(row);
    const InferenceResult pooled = Answered(s, Answer::No);
    (Exact(s) ? exact : approximate).Take(pooled.dispersion.A, row.Number("dispersion"), row);
    locations.Take(pooled.location.A, row.Number("pooled"), row);
    if (s.CompareMode == "S")
      locations.Take(Answered(s, Answer::Yes).location.A, row.Number("separate"), row);
  }
  exact.Hold("dispersions", 1.2e-11);
  approximate.Hold("dispersions, many degrees of freedom", 3.4e-2);
  locations.Hold("locations", 3.4e-12);
}

TEST_F(ComparisonAccuracy, TheWorkedExamplesOfOtherProgramsComeOutAlike) {
  for (const Row& row : support::ReadTable("two_sample_derived.csv")) {
    ExposureSession s;
    s.CompareMode = "S";
    s.M = row.Number("n1");
    s.df = s.M - 1;
    s.GM = row.Number("GM1");
    s.GSD = row.Number("GSD1");
    s.M2 = row.Number("n2");
    s.GM2 = row.Number("GM2");
    s.GSD2 = row.Number("GSD2");
    const InferenceResult pooled = Answered(s, Answer::No);
    const InferenceResult separate = Answered(s, Answer::Yes);
    auto expect = [&](double result, double truth, const char* what) {
      EXPECT_LE(support::RelativeError(result, truth), 1e-7)
          << row.Where() << " " << what << ": result " << result << ", published " << truth;
    };
    expect(pooled.dispersion.statistic, row.Number("F"), "F");
    // The statistics are given with twelve digits, and ln GSD loses two of them near 1.
    EXPECT_NEAR(pooled.dispersion.A / 100, row.Number("p_F_two_sided"), 1e-9) << row.Where();
    expect(-pooled.location.t, row.Number("t_pooled"), "pooled t");
    expect(pooled.location.A / 100, row.Number("p_pooled"), "pooled probability");
    expect(-separate.location.t, row.Number("t_welch"), "separate t");
    EXPECT_EQ(separate.location.v, std::floor(row.Number("df_welch"))) << row.Where();
    expect(separate.location.A / 100, row.Number("p_welch_df_truncated"), "separate probability");
  }
}

}  // namespace
