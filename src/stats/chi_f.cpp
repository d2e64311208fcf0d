#include "stats/chi_f.h"

#include <cmath>

#include "base/fault.h"
#include "stats/area.h"
#include "stats/normal.h"

namespace StatFWinBAS {
namespace {

constexpr double kLargestProduct = 32768;  // of the degrees of freedom in the finite sums of F

double EvenChi(double df, double x2) {
  double E = std::exp(-x2 / 2);
  double R = E;
  for (double j = 2; j <= df - 2; j = j + 2) {
    E = E * x2 / j;
    R = R + E;
  }
  return R;
}

double OddChi(double df, double chi, double x2) {
  const double R = NormalUpper(chi);
  double sum = 0;
  if (df > 1) {
    double term = chi;
    sum = chi;
    for (double j = 3; j <= df - 2; j = j + 2) {
      term = term * x2 / j;
      sum = sum + term;
    }
  }
  return std::exp(-x2 / 2) * sum / std::sqrt(kPi / 2) + 2 * R;
}

double WilsonHilferty(double df, double x2) {
  const double c = Divide(2, 9 * df);
  const double v = Power(Divide(x2, df), 1.0 / 3) - 1 + c;
  return NormalUpper(Divide(v, Sqrt(c)));
}

double Paulson(double d1, double d2, double F) {
  const double r = Power(F, 1.0 / 3);
  const double a = Divide(2, 9 * d1);
  const double b = Divide(2, 9 * d2);
  return NormalUpper(Divide(r * (1 - b) - 1 + a, Sqrt(a + r * r * b)));
}

// The two sums of 26.6.8, for both degrees of freedom odd.
double OddSumOfD2(double d2, double c) {
  double S = c;
  double term = c;
  for (double i = 2; i <= d2 - 3; i = i + 2) {
    term = term * c * c * i / (i + 1);
    S = S + term;
  }
  return S;
}

double OddSumOfD1(double d1, double d2, double c, double s) {
  double S = 1;
  double B = 1;
  if (d2 > 1)
    for (double i = 2; i <= d2 - 1; i = i + 2) B = B * i / (i - 1);
  B = B * s * Power(c, d2);
  double term = 1;
  double m = d2 + 1;
  for (double k = 3; k <= d1 - 2; k = k + 2) {
    term = term * s * s * m / k;
    S = S + term;
    m = m + 2;
  }
  return Checked(B * S);
}

double BothOdd(double d1, double d2, double X) {
  const double th = std::atan(Sqrt(X));
  double R = th;
  if (d1 * d2 > 1) {
    const double c = std::cos(th);
    const double s = std::sin(th);
    if (d2 > 1) R = s * OddSumOfD2(d2, c) + R;
    if (d1 > 1) R = R - OddSumOfD1(d1, d2, c, s);
  }
  return 1 - 2 * R / kPi;
}

// The sums of 26.6.4 and 26.6.5: the tail beyond the share `share` of the even degrees of freedom
// `even`; `other` is the second number, `rest` the share that belongs to it.
double EvenSum(double even, double other, double share, double rest) {
  double term = Power(rest, other / 2);
  double R = term;
  double m = other;
  for (double i = 2; i <= even - 2; i = i + 2) {
    term = term * share * m / i;
    R = R + term;
    m = m + 2;
  }
  return R;
}

double OneEven(double d1, double d2, double X) {
  const double x = Divide(1, 1 + X);
  const double y = 1 - x;
  if (!IsOdd(d1)) return EvenSum(d1, d2, y, x);
  return 1 - EvenSum(d2, d1, x, y);
}

}  // namespace

double ChiUpper(double df, double chi) {
  if (chi < 1E-16) return 0;
  const double x2 = Checked(chi * chi);
  if (!(df <= 200 && std::abs(chi) <= 24)) return WilsonHilferty(df, x2);
  return ClampArea(Checked(IsOdd(df) ? OddChi(df, chi, x2) : EvenChi(df, x2)));
}

double FUpper(double d1, double d2, double F) {
  if (std::abs(F - 1) <= 1E-10 && d1 == d2) return 0.5;
  if (F < 1E-31) return 1;
  if (F > 1E+31) return 0;
  if (d1 * d2 >= kLargestProduct) return Paulson(d1, d2, F);
  const double X = Checked(Divide(d1 * F, d2));
  return ClampArea(Checked(IsOdd(d1 * d2) ? BothOdd(d1, d2, X) : OneEven(d1, d2, X)));
}

}  // namespace StatFWinBAS
