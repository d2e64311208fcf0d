// The plain routines behind the descriptive, comparison and plot screens, and the up-down steps.
#include <algorithm>
#include <cmath>

#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "base/fault.h"
#include "compare/inference_on_record.h"
#include "compare/steps.h"
#include "limits/steps.h"
#include "stats/estimators.h"
#include "tests/support/letters.h"
#include "tests/walks/expected.h"

namespace walks {
namespace {

double Square(double x) { return x * x; }

// From GM and GSD, as the linear moments of a population.
void MomentsOf(const Sample& sample, double M, DescriptiveExpected& out) {
  const double e = std::exp(Square(std::log(sample.GSD)) / 2);
  out.XM = sample.GM * e;
  out.SDlin =
      std::sqrt(Square(sample.GM) * e * std::expm1(Square(std::log(sample.GSD)) / 2) * M / (M - 1));
}

void MomentsOf(const Outcomes& outcomes, DescriptiveExpected& out) {
  const auto count = static_cast<long double>(outcomes.size());
  long double sum = 0;
  for (const double c : outcomes) sum += c;
  const long double mean = sum / count;
  long double squares = 0;
  for (const double c : outcomes) squares += (c - mean) * (c - mean);
  out.XM = static_cast<double>(mean);
  if (squares > 1E-10L) out.SDlin = static_cast<double>(std::sqrt(squares / (count - 1)));
}

DescriptiveExpected Descriptive(const Sample& sample) {
  DescriptiveExpected out;
  ExposureSession s;
  s.df = sample.df;
  out.GMu = StatFWinBAS::GMUnbiased(s, sample.GM, sample.GSD);
  const double L = Log(sample.GSD);
  out.AMml = Exp(Log(sample.GM) + 0.5 * (L * L));
  out.AMu = StatFWinBAS::FinneyMeanMVU(sample.df, sample.GM, sample.GSD);
  if (sample.df > 3) out.AMmv = StatFWinBAS::FinneyMeanMMSE(sample.df, sample.GM, sample.GSD);
  out.SDu = Sqrt(StatFWinBAS::FinneyVarianceMVU(sample.df, sample.GM, sample.GSD));
  return out;
}

CompareExpected WithSample(ExposureSession& s) {
  const auto location = compare::SampleLocation(s);
  const auto both = compare::CombinedStatistics(s);
  return {compare::SampleDispersion(s).A, location.A, location.v, both.GM, both.GSD};
}

std::string ScaleOf(const std::string& menu) {
  static const char* const kMenus[] = {"MenuDubLog", "MenuLog", "MenuSqrt", "MenuUntransf",
                                       "MenuSqrd",   "MenuExp", "MenuRecip"};
  const auto at = std::find(std::begin(kMenus), std::end(kMenus), menu) - std::begin(kMenus);
  return std::string(analysis::kTransformations[static_cast<std::size_t>(at)].name);
}

}  // namespace

std::optional<DescriptiveExpected> ExpectedDescriptive(const Sample& sample, double M,
                                                       const Outcomes& outcomes) {
  try {
    DescriptiveExpected out = Descriptive(sample);
    if (outcomes.empty())
      MomentsOf(sample, M, out);
    else
      MomentsOf(outcomes, out);
    return out;
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

std::optional<CompareExpected> ExpectedCompare(const Sample& sample, const Reference& reference) {
  ExposureSession s;
  s.GM = sample.GM;
  s.GSD = sample.GSD;
  s.df = sample.df;
  s.GM2 = reference.GM;
  s.GSD2 = reference.GSD;
  s.M2 = reference.M;
  s.df2 = reference.M - 1;
  s.GSDChoice = support::ChoiceOf(reference.choice);
  try {
    if (reference.mode == "S") return WithSample(s);
    return CompareExpected{compare::PopulationDispersion(s).A, compare::PopulationLocation(s).A};
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

// The reciprocal turns the order round, but the range stays where it was counted.
std::optional<FitExpected> ExpectedFit(const Outcomes& outcomes, const std::string& scaleMenu,
                                       Range range) {
  if (range.first < 1 || range.last > static_cast<int>(outcomes.size())) return std::nullopt;
  try {
    std::vector<double> transformed(1);
    for (const double c : outcomes)
      transformed.push_back(analysis::TransformValue(ScaleOf(scaleMenu), c));
    std::sort(transformed.begin() + 1, transformed.end());
    const auto at = transformed.begin();
    if (*(at + range.first) == *(at + range.last)) return FitExpected{};
    analysis::ShapiroWeights weights;
    const auto test = analysis::ShapiroWilk(transformed, static_cast<int>(outcomes.size()),
                                            range.first, range.last, weights);
    return FitExpected{test.W, test.PW, test.tested};
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

double SteppedOELV(const std::optional<double>& value, int direction) {
  return limits::StepOELV(value, direction).value;
}
double SteppedPercent(double value, int direction) { return limits::StepPercent(value, direction); }
double SteppedGM2(double value, int direction) { return compare::StepGM2(value, direction).value; }
double SteppedGSD2(double value, int direction) {
  return compare::StepGSD2(value, direction).value;
}
double SteppedM2(double value, int direction) { return compare::StepM2(value, direction).value; }

}  // namespace walks
