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
void SampleMoments(ExposureSession& s) {
  if (s.C.size() <= static_cast<std::size_t>(SampleCount(s))) fault::Throw(FaultKind::Subscript);
  double S1 = 0;
  double S2 = 0;
  for (int i = 1; i <= SampleCount(s); ++i) {
    const double c = s.C[static_cast<std::size_t>(i)];
    S1 = Checked(S1 + c);
    S2 = Checked(S2 + c * c);
  }
  s.XM = Divide(S1, s.M);
  const double Q = Checked(S2 - Divide(S1 * S1, s.M));
  if (Q <= 1E-10) {
    s.InputState = 4;
    return;
  }
  s.SDlin = Sqrt(Divide(Q, s.M - 1));
  if (s.SDlin >= 10000) s.InputState = 5;
}

// Mean and standard deviation that follow from GM and GSD.
void LognormalMoments(ExposureSession& s) {
  const double L = Log(s.GSD);
  const double v = L * L;
  const double e = Exp(v / 2);
  s.XM = Checked(s.GM * e);
  s.SDlin = Sqrt(Divide(Checked(s.GM * s.GM * e * (e - 1) * s.M), s.M - 1));
}

}  // namespace

double FinneyMeanMVU(double& df, double& GM, double& GSD) {
  const double nL = df * Log(GSD);
  const double A = Divide(Checked(nL * nL) / 2, df + 1);
  return Checked(FinneySeries(df, A) * GM);
}

double FinneyMeanMMSE(double& df, double& GM, double& GSD) {
  const double L = Log(GSD);
  const double A = Divide(Checked((df - 3) * df * (L * L)), 2 * (df + 1));
  return Checked(FinneySeries(df, A) * GM);
}

double FinneyVarianceMVU(double& df, double& GM, double& GSD) {
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

double GMUnbiased(ExposureSession& s, double& GM, double& GSD) {
  s.InputState = 0;
  if (Divide(GSD, (s.df + 1) * (s.df + 1)) > 6) {
    s.InputState = 1;
    return 0;
  }
  const double L = Log(GSD);
  const double A = Checked(-(L * L)) / 4;
  double t = 1;
  double S = 1;
  int j = 1;
  do {
    t = Divide(Checked(t * A) / j, s.df / 2 + j);
    S = Checked(S + t);
    j = j + 1;
  } while (!(std::abs(t) < kSmallTerm || j > kMostTerms));
  return Checked(S * GM);
}

void LinearMoments(ExposureSession& s) {
  // While the user tries other values, it is those that are judged and not the outcomes.
  if (s.Mode == "R" && !s.DetecOn && !s.ModifyMode)
    SampleMoments(s);
  else
    LognormalMoments(s);
}

}  // namespace StatFWinBAS
