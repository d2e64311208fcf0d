#include <cmath>

#include "compare/inference.h"
#include "tools/accuracy/entries.h"

namespace accuracy {
namespace {

using compare::InferenceResult;
using support::Row;

const std::vector<std::string> kInputs = {"mode", "M", "GM", "GSD", "M2", "GM2", "GSD2"};

ExposureSession Session(const Row& row) {
  ExposureSession s;
  s.CompareMode = row.Text("mode");
  s.M = row.Number("M");
  s.df = row.Has("df") ? row.Number("df") : s.M - 1;
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  s.GM2 = row.Number("GM2");
  s.GSD2 = row.Number("GSD2");
  // A population has no sample size.
  s.M2 = s.CompareMode == "S" ? row.Number("M2") : 2;
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
  const bool separate = column == "separate";
  return {"comparison_truth.csv", column, kInputs,
          [answer, result](const Row& row) { return result(Compared(row, answer)); },
          [separate](const Row& row) { return !separate || row.Text("mode") == "S"; }};
}

// `safe`: only where the whole number of degrees of freedom does not hang on the last digit.
Source Steps(const std::string& column, bool safe, Result result) {
  return {"comparison.csv", column, kInputs,
          [result](const Row& row) { return result(Answered(row)); },
          [safe](const Row& row) { return !safe || row.Text("v_safe") != "0"; }};
}

double OfDispersions(const InferenceResult& result) { return result.dispersion.A; }
double OfLocations(const InferenceResult& result) { return result.location.A; }
double CombinedGM(const InferenceResult& result) { return result.both.GM; }
double CombinedGSD(const InferenceResult& result) { return result.both.GSD; }

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
      {"Inference: A of the dispersions", "percent", "`FUpper`, `ChiUpper`", Measure::Absolute,
       Truth("dispersion", Answer::No, OfDispersions), Steps("GSDInfTxb", false, OfDispersions)},
      {"Inference: A of the locations", "pooled, or a population, percent", "`StudentUpper`",
       Measure::Absolute, Truth("pooled", Answer::No, OfLocations),
       Steps("GMInfTxb", true, OfLocations)},
      {"Inference: A of the locations", "separate variances, percent",
       "`StudentUpper`, Satterthwaite (1946), df cut to a whole number", Measure::Absolute,
       Truth("separate", Answer::Yes, OfLocations)},
      {"Inference: GM of both",
       "two samples",
       "weighted mean of the logarithms",
       Measure::Relative,
       {},
       Steps("GMTxb3", false, CombinedGM)},
      {"Inference: GSD of both",
       "two samples",
       "sums of squares of the logarithms",
       Measure::Relative,
       {},
       Steps("GSDTxb3", false, CombinedGSD)},
  };
}

std::vector<Entry> ComparisonPeculiarities() {
  return {
      {"Inference",
       "GSD of both",
       "the second squared mean has the weight df2 + 2, not df2 + 1",
       Measure::Relative,
       {"comparison_truth.csv", "pooled", kInputs,
        [](const Row& row) { return Compared(row, compare::Answer::No).both.GSD; },
        [](const Row& row) { return row.Text("mode") == "S"; }, United}},
  };
}

}  // namespace accuracy
