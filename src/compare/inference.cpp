#include "compare/inference.h"

#include <cmath>

#include "base/fault.h"
#include "stats/chi_f.h"
#include "stats/student.h"

namespace compare {
namespace {

constexpr double kSmall = 5;  // percent, below which a cancelled question separates the variances
constexpr int kSummed = 3130;
constexpr int kCombined = 3140;

double Square(double x) { return x * x; }

double Df2(const ComparisonBasis& s) { return s.M2 - 1; }

double StudentPercent(double df, double t) {
  return TwoSidedPercent(StatFWinBAS::StudentUpper(double{df}, double{t}));
}

void PoolVariances(const ComparisonBasis& s, double x, double y, double L, Location& out) {
  const double v = s.sample.df + Df2(s);
  const double s2 = Checked(Divide(s.sample.df * x + Df2(s) * y, v));
  const double sp = Sqrt(s2);
  const double c = Sqrt((s.sample.df + 1) * (Df2(s) + 1) / (v + 2));
  out.t = Checked(c * Divide(L, sp));
  out.v = v;
  out.caption = kSummed;
}

void SplitVariances(const ComparisonBasis& s, double x, double y, double L, Location& out) {
  const double a = x / (s.sample.df + 1);
  const double b = y / (Df2(s) + 1);
  out.t = Divide(L, Sqrt(b + a));
  out.v = std::trunc(
      Divide(Df2(s) * s.sample.df * Square(a + b), Square(b) * s.sample.df + Square(a) * Df2(s)));
  out.caption = kCombined;
}

void CompareWithSample(ComparisonBasis s, const Question& ask, InferenceResult& out) {
  out.dispersion = SampleDispersion(s);
  out.GSDChoice = s.GSDChoice = GSDChoiceFor(ask(out.dispersion.A), out.dispersion.A);
  out.location = SampleLocation(s);
  out.both = CombinedStatistics(s);
  out.combined = true;
}

}  // namespace

double TwoSidedPercent(double upperTail) {
  const double a = 100 * upperTail;
  return Checked(a < 50 ? 2 * a : 2 * (100 - a));
}

VarianceChoice GSDChoiceFor(Answer answer, double A) {
  if (answer == Answer::No) return VarianceChoice::Pooled;
  if (answer == Answer::Yes) return VarianceChoice::Separate;
  return A < kSmall ? VarianceChoice::SeparateByProbability : VarianceChoice::PooledByProbability;
}

Dispersion SampleDispersion(const ComparisonBasis& s) {
  Dispersion out;
  out.statistic = Checked(Square(Divide(Log(s.sample.GSD), Log(s.GSD2))));
  out.A = TwoSidedPercent(
      StatFWinBAS::FUpper(double{s.sample.df}, double{Df2(s)}, double{out.statistic}));
  return out;
}

Dispersion PopulationDispersion(const ComparisonBasis& s) {
  Dispersion out;
  out.statistic = Checked(Divide(Sqrt(s.sample.df) * Log(s.sample.GSD), Log(s.GSD2)));
  out.A = TwoSidedPercent(StatFWinBAS::ChiUpper(double{s.sample.df}, double{out.statistic}));
  return out;
}

Location SampleLocation(const ComparisonBasis& s) {
  using enum VarianceChoice;
  const double x = Square(Log(s.sample.GSD));
  const double y = Square(Log(s.GSD2));
  const double L = Log(Divide(s.GM2, s.sample.GM));
  Location out;
  if (s.GSDChoice == None) fault::Throw(FaultKind::InvalidOperation);
  if (s.GSDChoice == Pooled || s.GSDChoice == PooledByProbability)
    PoolVariances(s, x, y, L, out);
  else
    SplitVariances(s, x, y, L, out);
  out.A = StudentPercent(out.v, out.t);
  return out;
}

Location PopulationLocation(const ComparisonBasis& s) {
  Location out;
  out.t =
      Checked(Divide(Sqrt(s.sample.df + 1) * Log(Divide(s.sample.GM, s.GM2)), Log(s.sample.GSD)));
  out.v = s.sample.df;
  out.A = StudentPercent(out.v, out.t);
  return out;
}

Combined CombinedStatistics(const ComparisonBasis& s) {
  const double x = Square(Log(s.sample.GSD));
  const double y = Square(Log(s.GSD2));
  const double G = Divide((s.sample.df + 1) * Log(s.sample.GM) + (Df2(s) + 1) * Log(s.GM2),
                          s.sample.df + Df2(s) + 2);
  Combined out;
  out.GM = Exp(G);
  const double T = Square(Log(s.sample.GM)) * (s.sample.df + 1) + Square(Log(s.GM2)) * (Df2(s) + 2);
  const double W = s.sample.df * x + Df2(s) * y;
  const double Q = Checked((W + T) - Square(Log(out.GM)) * (s.sample.df + Df2(s) + 2));
  out.GSD = Exp(Sqrt(Divide(Q, s.sample.df + Df2(s) + 1)));
  return out;
}

InferenceResult Inference(const ComparisonBasis& basis, const Question& ask) {
  InferenceResult out;
  if (basis.CompareMode == ReferenceKind::Sample) {
    CompareWithSample(basis, ask, out);
    out.done = true;
  } else if (basis.CompareMode == ReferenceKind::Population) {
    out.dispersion = PopulationDispersion(basis);
    out.location = PopulationLocation(basis);
    out.done = true;
  }
  return out;
}

}  // namespace compare
