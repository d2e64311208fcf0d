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

double StudentPercent(double df, double t) {
  return TwoSidedPercent(StatFWinBAS::StudentUpper(double{df}, double{t}));
}

void Pool(const ExposureSession& s, double x, double y, double L, Location& out) {
  const double v = s.df + s.df2;
  const double s2 = Checked(Divide(s.df * x + s.df2 * y, v));
  const double sp = Sqrt(s2);
  const double c = Sqrt((s.df + 1) * (s.df2 + 1) / (v + 2));
  out.t = Checked(c * Divide(L, sp));
  out.v = v;
  out.caption = kSummed;
}

void Separate(const ExposureSession& s, double x, double y, double L, Location& out) {
  const double a = x / (s.df + 1);
  const double b = y / (s.df2 + 1);
  out.t = Divide(L, Sqrt(b + a));
  out.v = std::trunc(Divide(s.df2 * s.df * Square(a + b), Square(b) * s.df + Square(a) * s.df2));
  out.caption = kCombined;
}

void CompareWithSample(ExposureSession& s, const Question& ask, InferenceResult& out) {
  out.dispersion = SampleDispersion(s);
  s.GSDChoice = GSDChoiceFor(ask(out.dispersion.A), out.dispersion.A);
  out.location = SampleLocation(s);
  out.both = CombinedStatistics(s);
  out.combined = true;
}

}  // namespace

double TwoSidedPercent(double upperTail) {
  const double a = 100 * upperTail;
  return Checked(a < 50 ? 2 * a : 2 * (100 - a));
}

const char* GSDChoiceFor(Answer answer, double A) {
  if (answer == Answer::No) return "Y";
  if (answer == Answer::Yes) return "N";
  return A < kSmall ? "A" : "P";
}

Dispersion SampleDispersion(const ExposureSession& s) {
  Dispersion out;
  out.statistic = Checked(Square(Divide(Log(s.GSD), Log(s.GSD2))));
  out.A = TwoSidedPercent(StatFWinBAS::FUpper(double{s.df}, double{s.df2}, double{out.statistic}));
  return out;
}

Dispersion PopulationDispersion(const ExposureSession& s) {
  Dispersion out;
  out.statistic = Checked(Divide(Sqrt(s.df) * Log(s.GSD), Log(s.GSD2)));
  out.A = TwoSidedPercent(StatFWinBAS::ChiUpper(double{s.df}, double{out.statistic}));
  return out;
}

Location SampleLocation(const ExposureSession& s, const Location& before) {
  const double x = Square(Log(s.GSD));
  const double y = Square(Log(s.GSD2));
  const double L = Log(Divide(s.GM2, s.GM));
  Location out = before;
  if (s.GSDChoice == "Y" || s.GSDChoice == "P") Pool(s, x, y, L, out);
  if (s.GSDChoice == "N" || s.GSDChoice == "A") Separate(s, x, y, L, out);
  out.A = StudentPercent(out.v, out.t);
  return out;
}

Location PopulationLocation(const ExposureSession& s) {
  Location out;
  out.t = Checked(Divide(Sqrt(s.df + 1) * Log(Divide(s.GM, s.GM2)), Log(s.GSD)));
  out.v = s.df;
  out.A = StudentPercent(out.v, out.t);
  return out;
}

Combined CombinedStatistics(const ExposureSession& s) {
  const double x = Square(Log(s.GSD));
  const double y = Square(Log(s.GSD2));
  const double G = Divide((s.df + 1) * Log(s.GM) + (s.df2 + 1) * Log(s.GM2), s.df + s.df2 + 2);
  Combined out;
  out.GM = Exp(G);
  const double T = Square(Log(s.GM)) * (s.df + 1) + Square(Log(s.GM2)) * (s.df2 + 2);
  const double W = s.df * x + s.df2 * y;
  const double Q = Checked((W + T) - Square(Log(out.GM)) * (s.df + s.df2 + 2));
  out.GSD = Exp(Sqrt(Divide(Q, s.df + s.df2 + 1)));
  return out;
}

InferenceResult Inference(ExposureSession& s, const Question& ask) {
  s.df2 = s.M2 - 1;
  InferenceResult out;
  if (s.CompareMode == "S") {
    CompareWithSample(s, ask, out);
    out.done = true;
  } else if (s.CompareMode == "P") {
    out.dispersion = PopulationDispersion(s);
    out.location = PopulationLocation(s);
    out.done = true;
  }
  return out;
}

}  // namespace compare
