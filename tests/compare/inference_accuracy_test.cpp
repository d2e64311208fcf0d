#include <gtest/gtest.h>

#include <cmath>

#include "compare/inference_on_record.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"
#include "tests/support/record.h"

// How far the comparison is from the mathematical values. The bounds are the errors last seen with
// a little room; they only ever get smaller.
namespace {

using compare::Answer;
using compare::InferenceResult;
using support::Row;

class ComparisonAccuracy : public table::Delivered {};

ExposureSession SessionOf(const Row& row) {
  ExposureSession s = support::RecordOf(row);
  s.CompareMode = support::KindOf(row.Text("mode"));
  return s;
}

InferenceResult Answered(ExposureSession& s, Answer answer) {
  return compare::Inference(s, [answer](double) { return answer; });
}

// Above these the chi-square and F tails are approximations by one normal tail.
bool Exact(const ExposureSession& s) {
  return s.CompareMode == ReferenceKind::Population ? s.df <= 200 : s.df * (s.M2 - 1) < 32768;
}

TEST_F(ComparisonAccuracy, TheProbabilitiesAreThoseOfArbitraryPrecision) {
  table::WorstAbsolute exact;  // in percent, as all of them
  table::WorstAbsolute approximate;
  table::WorstAbsolute locations;
  table::Worst both;
  for (const Row& row : support::ReadTable("comparison_truth.csv")) {
    ExposureSession s = SessionOf(row);
    const InferenceResult pooled = Answered(s, Answer::No);
    (Exact(s) ? exact : approximate)
        .Take(pooled.dispersion.A, row.Number("dispersion"), row.Where());
    locations.Take(pooled.location.A, row.Number("pooled"), row.Where());
    if (s.CompareMode != ReferenceKind::Sample) continue;
    locations.Take(Answered(s, Answer::Yes).location.A, row.Number("separate"), row.Where());
    both.Take(pooled.both.GM, row.Number("both_GM"), row.Where());
    both.Take(pooled.both.GSD, row.Number("both_GSD"), row.Where());
  }
  exact.Hold("dispersions", 1.2e-11);
  approximate.Hold("dispersions, many degrees of freedom", 3.4e-2);
  locations.Hold("locations", 3.4e-12);
  both.Hold("GM and GSD of both", 1.3e-14);
}

TEST_F(ComparisonAccuracy, TheWorkedExamplesOfOtherProgramsComeOutAlike) {
  for (const Row& row : support::ReadTable("two_sample_derived.csv")) {
    ExposureSession s =
        support::SampleRecord(row.Number("n1"), row.Number("GM1"), row.Number("GSD1"), 1);
    s.CompareMode = ReferenceKind::Sample;
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
