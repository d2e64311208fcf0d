#include <cmath>

#include "compare/inference_on_record.h"
#include "tests/support/letters.h"
#include "tools/accuracy/comparison_searches.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using compare::InferenceResult;
using support::Row;

const std::vector<Column> kInputs = {"mode", "M", "GM", "GSD", "M2", "GM2", "GSD2"};

ExposureSession Session(const Row& row) {
  ExposureSession s;
  s.CompareMode = support::KindOf(row.Text("mode"));
  s.M = row.Number("M");
  s.df = row.Has("df") ? row.Number("df") : s.M - 1;
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.GM2 = row.Number("GM2");
  s.GSD2 = row.Number("GSD2");
  // A population has no sample size.
  s.M2 = s.CompareMode == ReferenceKind::Sample ? row.Number("M2") : 2;
  return s;
}

InferenceResult Compared(const Row& row, compare::Answer answer) {
  ExposureSession s = Session(row);
  return compare::Inference(s, [answer](double) { return answer; });
}

InferenceResult Answered(const Row& row) {
  const std::string& answer = row.Text("answer");
  return Compared(row, answer == "Yes"  ? compare::Answer::Yes
                       : answer == "No" ? compare::Answer::No
                                        : compare::Answer::Cancel);
}

using Result = double (*)(const InferenceResult&);

Source Truth(const std::string& column, compare::Answer answer, Result result) {
  return {"comparison_truth.csv", column, kInputs,
          [answer, result](const Row& row) { return result(Compared(row, answer)); }};
}

bool OfTwoSamples(const Row& row) { return row.Text("mode") == "S"; }

using Takes = bool (*)(const Row&);

Source Steps(const std::string& column, Takes takes, Result result) {
  return {"comparison.csv", column, kInputs,
          [result](const Row& row) { return result(Answered(row)); }, takes};
}

bool IsSeparate(const Row& row) {
  return row.Text("GSDChoice") == "N" || row.Text("GSDChoice") == "A";
}
bool IsPooled(const Row& row) { return !IsSeparate(row); }
// Where the whole number of degrees of freedom does not hang on the last digit.
bool IsSafelySeparate(const Row& row) { return IsSeparate(row) && row.Text("v_safe") != "0"; }

double OfDispersions(const InferenceResult& result) { return result.dispersion.A; }
double OfLocations(const InferenceResult& result) { return result.location.A; }
double CombinedGM(const InferenceResult& result) { return result.both.GM; }
double CombinedGSD(const InferenceResult& result) { return result.both.GSD; }

// Whether the dispersions are judged by the finite sums, which hold while the product of the
// degrees of freedom, or those against a population, are small enough.
bool BySums(const Row& row) {
  const double df = row.Number("M") - 1;
  if (row.Text("mode") == "P") return df <= 200;
  return df * (row.Number("M2") - 1) < 32768;
}
bool ByCubes(const Row& row) { return !BySums(row); }

Source Where(Takes takes, Source source) {
  source.takes = [takes, before = source.takes](const Row& row) {
    return takes(row) && (!before || before(row));
  };
  return source;
}

// The GSD of the united measurements of both samples.
double United(const Row& row) {
  const double n1 = row.Number("M");
  const double n2 = row.Number("M2");
  const double m1 = std::log(row.Number("GM"));
  const double m2 = std::log(row.Number("GM2"));
  const double s1 = std::log(row.Number("GSD"));
  const double s2 = std::log(row.Number("GSD2"));
  const double between = n1 * n2 / (n1 + n2) * (m1 - m2) * (m1 - m2);
  const double within = (n1 - 1) * s1 * s1 + (n2 - 1) * s2 * s2;
  return std::exp(std::sqrt((within + between) / (n1 + n2 - 1)));
}

}  // namespace

std::vector<Entry> ComparisonEntries() {
  using compare::Answer;
  return {
      {"Inference: A of the dispersions", "percent, M M2 small enough for the sums of `FUpper`",
       "`FUpper`, `ChiUpper`", Measure::Absolute,
       Where(BySums, Truth("dispersion", Answer::No, OfDispersions)),
       Where(BySums, Steps("GSDInfTxb", nullptr, OfDispersions)), LookAtDispersions(true)},
      {"Inference: A of the dispersions",
       "percent, (M - 1) (M2 - 1) from 32768 on, or a population with M above 201",
       "the cube roots of `FUpper` and `ChiUpper`", Measure::Absolute,
       Where(ByCubes, Truth("dispersion", Answer::No, OfDispersions)),
       Where(ByCubes, Steps("GSDInfTxb", nullptr, OfDispersions)), LookAtDispersions(false)},
      {"Inference: A of the locations", "pooled, or a population, percent", "`StudentUpper`",
       Measure::Absolute, Truth("pooled", Answer::No, OfLocations),
       Steps("GMInfTxb", IsPooled, OfLocations), LookAtPooled()},
      {"Inference: A of the locations", "separate variances, percent",
       "`StudentUpper`, Satterthwaite (1946), df cut to a whole number", Measure::Absolute,
       Truth("separate", Answer::Yes, OfLocations),
       Steps("GMInfTxb", IsSafelySeparate, OfLocations), LookAtSeparate(true)},
      {"Inference: GM of both", "two samples", "weighted mean of the logarithms", Measure::Relative,
       Truth("both_GM", Answer::No, CombinedGM), Steps("GMTxb3", nullptr, CombinedGM),
       LookAtBothGM()},
      {"Inference: GSD of both", "two samples, the weights as they are",
       "sums of squares of the logarithms", Measure::Relative,
       Truth("both_GSD", Answer::No, CombinedGSD), Steps("GSDTxb3", nullptr, CombinedGSD),
       LookAtBothGSD()},
  };
}

std::vector<Entry> ComparisonPeculiarities() {
  using compare::Answer;
  return {
      {"Inference",
       "the question whether the GSDs are from the same population",
       "Yes separates the variances and No pools them: what Yes costs where they are the same, "
       "percent",
       Measure::Absolute,
       Truth("pooled", Answer::Yes, OfLocations),
       {},
       LookAtAnswer()},
      {"Inference",
       "separate variances",
       "the degrees of freedom are cut to a whole number, percent",
       Measure::Absolute,
       Truth("uncut", Answer::Yes, OfLocations),
       {},
       LookAtSeparate(false)},
      {"Inference",
       "GSD of both",
       "the second squared mean has the weight df2 + 2, not df2 + 1",
       Measure::Relative,
       {"comparison_truth.csv", "pooled", kInputs,
        [](const Row& row) { return Compared(row, compare::Answer::No).both.GSD; }, OfTwoSamples,
        United},
       {},
       LookAtUnited()},
  };
}

}  // namespace accuracy
