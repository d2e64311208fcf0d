#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "drive/call.h"

namespace drive {
namespace {

// Element 0 is not used.
void TellFromOne(Call& c, const std::vector<double>& values) {
  for (std::size_t i = 1; i < values.size(); ++i) c.Tell(values[i]);
}

void TellTest(Call& c, const analysis::ShapiroResult& test) {
  c.Tell(test.W);
  c.Tell(test.PW);
  c.Tell(test.fault);
}

void Rankits(Call& c) { TellFromOne(c, analysis::RankitsForSampleSize(c.Int(0))); }

void Score(Call& c) {
  c.Tell(analysis::Score(analysis::RankitsForSampleSize(c.Int(0)), c.Int(0), c.Int(1)));
}

void Weights(Call& c) {
  analysis::ShapiroWeights weights;
  analysis::FillShapiroWeights(c.Int(0), weights);
  TellFromOne(c, weights.ShapiroCoeffs);
}

// On CTransf of the record; the range comes from the record too.
void Shapiro(Call& c) {
  analysis::ShapiroWeights weights;
  TellTest(c, analysis::ShapiroWilk(c.s.LnC, SampleCount(c.s), c.s.FirstInRange, c.s.LastInRange,
                                    weights));
}

// As on a plot that is drawn for the first time on this scale.
void Regression(Call& c) {
  if (!analysis::FillCTransf(c.s, c.Text(0))) {
    c.Tell(c.s.MsgText);
    return;
  }
  analysis::FitState state;
  state.Transformation = c.Text(0);
  state.RankitTable = analysis::RankitsForSampleSize(SampleCount(c.s));
  const analysis::Regression fit = analysis::ProbabilityRegression(c.s, state);
  c.Tell(fit.line);
  for (const double value : {fit.a, fit.b, fit.yLow, fit.yHigh}) c.Tell(value);
  TellTest(c, fit.test);
}

}  // namespace

const std::vector<Routine>& FitRoutines() {
  static const std::vector<Routine> routines = {
      {"RankitsForSampleSize", 1, Rankits},
      {"Score", 2, Score},
      {"TransformValue", 2,
       [](Call& c) { c.Tell(analysis::TransformValue(c.Text(0), c.Number(1))); }},
      {"InverseTransform", 2,
       [](Call& c) { c.Tell(analysis::InverseTransform(c.Text(0), c.Number(1))); }},
      {"FillCTransf", 1, [](Call& c) { c.Tell(analysis::FillCTransf(c.s, c.Text(0))); }},
      {"ShapiroWeights", 1, Weights},
      {"ShapiroWilk", 0, Shapiro},
      {"ProbabilityRegression", 1, Regression},
      {"CheckVariability", 0, [](Call& c) { c.Tell(analysis::CheckVariability(c.s)); }},
  };
  return routines;
}

}  // namespace drive
