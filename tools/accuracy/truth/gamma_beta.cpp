#include <cmath>

#include "tools/accuracy/truth/distributions.h"

namespace accuracy::truth {
namespace {

constexpr Real kSmall = 1e-4000L;  // in place of a zero in a continued fraction
constexpr Real kEnd = std::numeric_limits<Real>::epsilon();
constexpr int kMostTerms = 1000000;

// ln Gamma(x + 1) less Stirling's (x + 1/2) ln x - x + ln(2 pi) / 2.
Real StirlingError(Real x) {
  if (x < 20) return std::lgamma(x + 1) - (x + 0.5L) * std::log(x) + x - std::log(2 * kPi) / 2;
  constexpr Real kSeries[] = {1 / 12.0L,         -1 / 360.0L,        1 / 1260.0L, -1 / 1680.0L,
                              1 / 1188.0L,       -691 / 360360.0L,   1 / 156.0L,  -3617 / 122400.0L,
                              43867 / 244188.0L, -174611 / 125400.0L};
  const Real square = 1 / (x * x);
  Real power = 1 / x;
  Real sum = 0;
  for (const Real coefficient : kSeries) {
    sum += coefficient * power;
    power *= square;
  }
  return sum;
}

// x ln(x / m) + m - x, without the loss where x is near m.
Real Deviance(Real x, Real m) {
  const Real v = (x - m) / (x + m);
  if (std::abs(v) > 0.1L) return x * std::log(x / m) + m - x;
  Real power = v;
  Real sum = (x - m) * v;
  for (int k = 1; k < 100; ++k) {
    power *= v * v;
    const Real next = sum + 2 * x * power / (2 * k + 1);
    if (next == sum) break;
    sum = next;
  }
  return sum;
}

// x^a e^-x / Gamma(a + 1).
Real PoissonTerm(Real a, Real x) {
  return std::exp(-StirlingError(a) - Deviance(a, x)) / std::sqrt(2 * kPi * a);
}

// x^a y^b / (a B(a, b)).
Real BetaTerm(Real a, Real b, Real x, Real y) {
  const Real n = a + b;
  const Real exponent = StirlingError(n) - StirlingError(a) - StirlingError(b) -
                        Deviance(a, n * x) - Deviance(b, n * y);
  return std::exp(exponent) * std::sqrt(b / (2 * kPi * a * n));
}

Real NotZero(Real v) { return std::abs(v) < kSmall ? kSmall : v; }

// One step of Lentz's evaluation with the next numerator and denominator.
struct Lentz {
  Real c;
  Real d;
  Real value;
  bool Step(Real numerator, Real denominator) {
    d = 1 / NotZero(denominator + numerator * d);
    c = NotZero(denominator + numerator / c);
    value *= c * d;
    return std::abs(c * d - 1) <= kEnd;
  }
};

Real GammaFraction(Real a, Real x) {
  Real b = x + 1 - a;
  Lentz f{1 / kSmall, 1 / NotZero(b), 1 / NotZero(b)};
  for (int i = 1; i < kMostTerms; ++i) {
    b += 2;
    if (f.Step(-i * (i - a), b)) break;
  }
  return f.value;
}

Real BetaFraction(Real a, Real b, Real x) {
  const Real first = 1 / NotZero(1 - (a + b) * x / (a + 1));
  Lentz f{1, first, first};
  for (int m = 1; m < kMostTerms; ++m) {
    f.Step(m * (b - m) * x / ((a + 2 * m - 1) * (a + 2 * m)), 1);
    if (f.Step(-(a + m) * (a + b + m) * x / ((a + 2 * m) * (a + 2 * m + 1)), 1)) break;
  }
  return f.value;
}

// I_x(a, b), with y = 1 - x.
Real Beta(Real a, Real b, Real x, Real y) {
  if (x == 0) return 0;
  if (y == 0) return 1;
  if (x > (a + 1) / (a + b + 2)) return 1 - BetaTerm(b, a, y, x) * BetaFraction(b, a, y);
  return BetaTerm(a, b, x, y) * BetaFraction(a, b, x);
}

Real StudentDensity(Real df, Real t) {
  const Real x = df / (df + t * t);
  const Real y = t * t / (df + t * t);
  // x^(df / 2) y^(1 / 2) / B(df / 2, 1 / 2), and dx = -2 y x / t dt.
  return BetaTerm(df / 2, 0.5L, x, y) * df / 2 / t;
}

// P(0 < T < t).
Real StudentCentral(Real df, Real t) {
  return Beta(0.5L, df / 2, t * t / (df + t * t), df / (df + t * t)) / 2;
}

}  // namespace

Real ChiUpper(Real df, Real chi) {
  if (chi <= 0) return 1;
  const Real a = df / 2;
  const Real x = chi * chi / 2;
  if (x >= a + 1) return PoissonTerm(a, x) * a * GammaFraction(a, x);
  Real term = 1;
  Real sum = 1;
  for (Real k = 1; term > kEnd * sum; ++k) {
    term *= x / (a + k);
    sum += term;
  }
  return 1 - PoissonTerm(a, x) * sum;
}

Real FUpper(Real d1, Real d2, Real F) {
  const Real whole = d2 + d1 * F;
  return Beta(d2 / 2, d1 / 2, d2 / whole, d1 * F / whole);
}

Real StudentUpper(Real df, Real t) {
  if (t == 0) return 0.5L;
  const Real half = Beta(df / 2, 0.5L, df / (df + t * t), t * t / (df + t * t)) / 2;
  return t > 0 ? half : 1 - half;
}

Real StudentUpperInverse(Real df, Real p) {
  if (p == 0.5L) return 0;
  if (p > 0.5L) return -StudentUpperInverse(df, 1 - p);
  // Newton's steps on logarithms, of the tail or of the area up to the centre.
  const bool central = p > 0.25L;
  Real t = NormalUpperInverse(p);
  for (int pass = 0; pass < 200; ++pass) {
    const Real area = central ? StudentCentral(df, t) : StudentUpper(df, t);
    const Real wanted = central ? 0.5L - p : p;
    const Real step = std::log(wanted / area) * area / (t * StudentDensity(df, t));
    t *= std::exp(central ? step : -step);
    if (std::abs(step) <= 2 * kEnd) break;
  }
  return t;
}

}  // namespace accuracy::truth
