#include "stats/student.h"

#include <cmath>

#include "base/fault.h"
#include "stats/area.h"
#include "stats/normal.h"

// The terms of the finite sums never grow and keep one sign, so that no operation inside a loop can
// leave the finite numbers: what comes out of a loop is checked where it is used.
namespace StatFWinBAS {
namespace {

constexpr double kNormalAbove = 30000;
constexpr double kSeriesAbove = 1000;
constexpr int kMostPasses = 100;

bool IsHalf(double p) { return std::abs(p - 0.5) < 1E-16; }

// The sums of 26.7.3 and 26.7.4, with b = 1 / (t t / df + 1).
double OddSum(double df, double b) {
  double term = 1;
  double s = 1;
  for (double i = 2; i <= df - 3; i = i + 2) {
    term = term * b * i / (i + 1);
    s = s + term;
  }
  return s;
}

double EvenSum(double df, double b) {
  double term = 1;
  double s = 1;
  for (double i = 2; i <= df - 2; i = i + 2) {
    term = term * b * (i - 1) / i;
    s = s + term;
  }
  return s;
}

double NormalArea(double df, double t) {
  const double g = 1 - Divide(0.25, df);
  const double h = Checked(1 + Divide(t * t / 2, df));
  return NormalUpper(Checked(t * g / Sqrt(h)));
}

double FiniteArea(double df, double t) {
  const double a = Divide(t, Sqrt(df));
  const double b = Divide(1, Checked(a * a + 1));
  if (IsOdd(df)) {
    const double s = df == 1 ? 0 : OddSum(df, b);
    return Checked(0.5 - (std::atan(a) + b * a * s) / kPi);
  }
  return Checked(0.5 - std::sqrt(b) * a * EvenSum(df, b) / 2);
}

// Newton's steps, with a = t / sqrt df, b as above and k = b^((df + 1) / 2) / sqrt df, which the
// factors below make the slope. For odd df above 3 they leave out the last one, (df - 1) / (df -
// 2), so that each step is longer by it than Newton's: the error shrinks only to 1 / (df - 2) a
// step.
double OddStep(double p, double df, double a, double b, double k) {
  double s = 1;
  if (df == 3) {
    k = 2 * k;
  } else {
    s = OddSum(df, b);
    for (double i = 2; i <= df - 3; i = i + 2) k = k * i / (i - 1);
  }
  const double G = std::atan(a) + b * a * s;
  return Divide((0.5 - p) * kPi - G, k);
}

double EvenStep(double p, double df, double a, double b, double k) {
  const double s = EvenSum(df, b);
  for (double i = 2; i <= df - 2; i = i + 2) k = (i + 1) * k / i;
  const double G = a * std::sqrt(b) * s;
  return Divide(1 - (p + p) - G, k);
}

StudentDeviate NewtonSearch(double p, double df) {
  double t = StudentUpperInverseSeries(p, df);
  const double e = (df + 1) / 2;
  const double r = Sqrt(df);
  double delta = 1;
  double before = 0;
  int passes = 0;
  while (!(std::abs(t) * 1E-6 > std::abs(Divide(delta, t))) && t != before &&
         passes < kMostPasses) {
    const double a = t / r;
    const double b = Divide(1, Checked(a * a + 1));
    const double k = Divide(Power(b, e), r);
    delta = IsOdd(df) ? OddStep(p, df, a, b, k) : EvenStep(p, df, a, b, k);
    before = t;
    t = Checked(t + delta);
    ++passes;
  }
  return {t, passes};
}

}  // namespace

double StudentUpper(double df, double t) {
  if (std::abs(t) < 1E-16) return 0.5;
  return ClampArea(df > kNormalAbove ? NormalArea(df, t) : FiniteArea(df, t));
}

StudentDeviate StudentUpperInverseSearch(double p, double df) {
  if (IsHalf(p)) return {0, 0};
  if (df > kSeriesAbove) return {StudentUpperInverseSeries(p, df), 0};
  if (df == 1) return {Checked(std::tan((0.5 - p) * kPi)), 0};
  if (df == 2) {
    const double w = 1 - (p + p);
    return {Checked(w * Sqrt(Divide(2, 1 - w * w))), 0};
  }
  if (df < 3) return {0, 0};
  return NewtonSearch(p, df);
}

double StudentUpperInverse(double p, double df) { return StudentUpperInverseSearch(p, df).t; }

double StudentUpperInverseSeries(double p, double df) {
  if (IsHalf(p)) return 0;
  const double z = NormalUpperInverse(p);
  const double n = df;
  const double z3 = Power(z, 3);
  const double z5 = Power(z, 5);
  const double z7 = Power(z, 7);
  const double z9 = Power(z, 9);
  double t = z + Divide((z3 + z) / 4, n);
  t = t + Divide(Divide((5 * z5 + 16 * z3 + 3 * z) / 96, n), n);
  t = t + Divide(Divide(Divide((3 * z7 + 19 * z5 + 17 * z3 - 15 * z) / 384, n), n), n);
  t = t + Divide((79 * z9 + 776 * z7 + 1482 * z5 - 1920 * z3 - 945 * z) / 92160, Power(n, 4));
  if ((z < 0 && t > z) || (z > 0 && t < z)) t = z;
  return Checked(t);
}

}  // namespace StatFWinBAS
