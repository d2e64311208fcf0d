#include "stats/estimators.h"

#include <cmath>

#include "base/fault.h"

namespace StatFWinBAS {
namespace {

constexpr double kSmallTerm = 1E-15;
constexpr int kMostTerms = 1000;

// Finney's g with n degrees of freedom, from the start value A = n squared times the argument
// divided by n + 1.
double FinneySeries(double n, double A) {
  double t = Divide(A, n);
  double S = Checked(1 + t);
  int j = 1;
  do {
    j = j + 1;
    t = Divide(Checked(t * A) / j, n + 2 * j - 2);
    S = Checked(S + t);
  } while (!(std::abs(t) < kSmallTerm || j > kMostTerms));
  return S;
}

// Mean and standard deviation of the outcomes themselves.
LinearStatistics SampleMoments(const ExposureSession& s) {
  if (s.C.size() <= static_cast<std::size_t>(SampleCount(s))) fault::Throw(FaultKind::Subscript);
  double S1 = 0;
  double S2 = 0;
  for (int i = 1; i <= SampleCount(s); ++i) {
    const double c = s.C[static_cast<std::size_t>(i)];
    S1 = Checked(S1 + c);
    S2 = Checked(S2 + c * c);
  }
  LinearStatistics out;
  out.XM = Divide(S1, s.M);
  const double Q = Checked(S2 - Divide(S1 * S1, s.M));
  if (Q > 1E-10) out.SDlin = Sqrt(Divide(Q, s.M - 1));
  return out;
}

// Mean and standard deviation that follow from GM and GSD.
LinearStatistics LognormalMoments(const ExposureSession& s) {
  const double L = Log(s.GSD);
  const double v = L * L;
  const double e = Exp(v / 2);
  LinearStatistics out;
  out.XM = Checked(s.GM * e);
  out.SDlin = Sqrt(Divide(Checked(s.GM * s.GM * e * (e - 1) * s.M), s.M - 1));
  return out;
}

// While the user tries other values, it is those that are judged and not the outcomes.
bool JudgesOutcomes(const ExposureSession& s) {
  return s.Mode == DataMode::Raw && !s.DetecOn && !s.ModifyMode;
}

}  // namespace

double FinneyMeanMVU(double df, double GM, double GSD) {
  const double nL = df * Log(GSD);
  const double A = Divide(Checked(nL * nL) / 2, df + 1);
  return Checked(FinneySeries(df, A) * GM);
}

double FinneyMeanMMSE(double df, double GM, double GSD) {
  const double L = Log(GSD);
  const double A = Divide(Checked((df - 3) * df * (L * L)), 2 * (df + 1));
  return Checked(FinneySeries(df, A) * GM);
}

double FinneyVarianceMVU(double df, double GM, double GSD) {
  const double s = Log(GSD);
  const double A = Divide(Checked(2 * (df * s) * (df * s)), df + 1);
  const double B = df > 1 ? Divide(Checked((df - 1) * df * (s * s)), df + 1) : 0;
  double tA = A;
  double tB = B;
  double Sum = A - B;
  int j = 1;
  do {
    j = j + 1;
    tA = Divide(Checked(tA * A) / j, df + 2 * j - 2);
    tB = Divide(Checked(tB * B) / j, df + 2 * j - 2);
    Sum = Checked(tA + Sum - tB);
  } while (!(std::abs(Divide(tA - tB, Sum)) < kSmallTerm || j > kMostTerms));
  return Divide(Checked(Sum * (GM * GM)), df);
}

std::optional<double> GMUnbiased(double df, double GM, double GSD) {
  if (Divide(GSD, (df + 1) * (df + 1)) > 6) return std::nullopt;
  const double L = Log(GSD);
  const double A = Checked(-(L * L)) / 4;
  double t = 1;
  double S = 1;
  int j = 1;
  do {
    t = Divide(Checked(t * A) / j, df / 2 + j);
    S = Checked(S + t);
    j = j + 1;
  } while (!(std::abs(t) < kSmallTerm || j > kMostTerms));
  return Checked(S * GM);
}

double GMUnbiased(ExposureSession& s, double GM, double GSD) {
  s.InputState = 0;
  const std::optional<double> GMu = GMUnbiased(s.df, GM, GSD);
  if (!GMu) s.InputState = 1;
  return GMu.value_or(0);
}

LinearStatistics LinearMomentsOf(const ExposureSession& s) {
  return JudgesOutcomes(s) ? SampleMoments(s) : LognormalMoments(s);
}

void LinearMoments(ExposureSession& s) {
  const LinearStatistics linear = LinearMomentsOf(s);
  s.XM = linear.XM;
  if (linear.SDlin) s.SDlin = *linear.SDlin;
  if (!JudgesOutcomes(s)) return;
  if (!linear.SDlin)
    s.InputState = 4;
  else if (s.SDlin >= 10000)
    s.InputState = 5;
}

Estimators EstimatorsOf(const ExposureSession& s) {
  Estimators out;
  out.GMu = GMUnbiased(s.df, s.GM, s.GSD);
  out.LnGM = Log(s.GM);
  out.LnGSD = Log(s.GSD);
  out.AMml = Exp(out.LnGM + 0.5 * (out.LnGSD * out.LnGSD));
  out.AMu = FinneyMeanMVU(s.df, s.GM, s.GSD);
  if (s.df > 3) out.AMmv = FinneyMeanMMSE(s.df, s.GM, s.GSD);
  out.SDu = Sqrt(FinneyVarianceMVU(s.df, s.GM, s.GSD));
  out.linear = LinearMomentsOf(s);
  return out;
}

}  // namespace StatFWinBAS
