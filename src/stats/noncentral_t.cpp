#include "stats/noncentral_t.h"

#include <cmath>

#include "base/fault.h"
#include "stats/area.h"
#include "stats/normal.h"
#include "stats/student.h"

namespace StatFWinBAS {
namespace {

constexpr double kExactUpTo = 200;
constexpr double kOuterLimit = 37;  // of the exponentials, as in the normal tails

// The quantities in which the exact series is written.
struct Owen {
  double f;
  bool odd;
  double delta;
  double A;
  double B;
  double RB;
  double DRB;
};

Owen MakeOwen(double f, double delta, double K) {
  const double A = Checked(Sqrt(1 + Divide(1, f)) * K);
  const double B = Divide(1, Checked(A * A + 1));
  const double RB = std::sqrt(B);
  return {f, IsOdd(f), delta, A, B, RB, Checked(RB * delta)};
}

double ApproximateArea(double f, double delta, double K) {
  const double t = Sqrt(f + 1) * K;
  const double g = 1 - Divide(0.25, f);
  const double h = Checked(1 + Divide(t * t / 2, f));
  return NormalUpper(Checked(Divide(delta - t * g, Sqrt(h))));
}

// The recurrence of AS 5 from M1 and M2 on; for f up to 3 it has no pass. No operation in it can
// leave the finite numbers: all factors but DA are at most about 1, and the moments shrink.
double Recurrence(const Owen& o, double M1, double M2) {
  double sum = o.odd ? M1 : M2;
  if (!(o.f > 3) || (M1 == 0 && M2 == 0)) return sum;
  const double DA = o.A * o.delta;
  double AK = 1;
  for (double k = 2; k <= o.f - 2; k = k + 2) {
    M2 = ((k - 1) / k) * o.B * (AK * DA * M1 + M2);
    AK = (1 / (k - 1)) / AK;
    M1 = (k / (k + 1)) * o.B * (AK * DA * M2 + M1);
    AK = (1 / k) / AK;
    sum = sum + (o.odd ? M1 : M2);
  }
  return Checked(sum);
}

// The sum of the moments; overwrites p by the area that the first of them needs.
double MomentSum(const Owen& o, double& p) {
  if (!(o.f > 1) || !(std::abs(o.A - 1) > 1E-16)) return 0;
  p = NormalUpper(Checked(-o.A * o.DRB));
  double M2 = 0;
  double E = 0;
  if (std::abs(o.DRB) <= kOuterLimit)
    M2 = o.RB * o.A * std::exp(-o.DRB * o.DRB / 2) / std::sqrt(kTwoPi) * p;
  if (std::abs(o.delta) <= kOuterLimit) E = std::exp(-o.delta * o.delta / 2);
  E = Checked(E / kPi / 2 + M2 * o.delta);
  const double M1 = Checked(o.A * o.B * E);
  return Recurrence(o, M1, M2);
}

double ExactArea(const Owen& o, double& p) {
  const double sum = MomentSum(o, p);
  if (!o.odd) return Checked(NormalUpper(o.delta) + sum * std::sqrt(kTwoPi));
  const double tail = NormalUpper(o.DRB);
  return Checked(tail + 2 * sum + 2 * OwenT(o.DRB, o.A));
}

// The series of T for 0 < a <= 1 and h > 0, without the leading arc tangent.
double OwenSeries(double h, double a) {
  const double y = Checked(h * h / 2);
  const double a2 = a * a;
  const double e = std::abs(h) <= kOuterLimit ? std::exp(-y) : 0;
  double S = a * (1 - e);
  double u = 1;  // the running y^j / j!
  double w = 1;  // their sum
  double v = a;
  double previous = 0;
  double j = 0;
  do {
    previous = S;
    j = j + 1;
    u = u * y / j;
    w = Checked(w + u);
    v = (-v) * a2;
    const double c = 1 - e * w;
    S = previous + v * c / (2 * j + 1);
  } while (std::abs(previous - S) > 1E-10);
  return S;
}

// T(h, a) for a > 4E-08 other than 1, after the swap of large a, which leaves `add` to be added.
double OwenArea(double& h, double& a, double& add) {
  double S = 0;
  if (h > 0) {
    if (a > 1) {
      const double q1 = NormalUpper(h);
      const double q2 = NormalUpper(Checked(h * a));
      add = (q1 + q2) / 2 - q1 * q2;
      h = h * a;
      a = Divide(1, a);
    }
    S = OwenSeries(h, a);
  }
  const double T = (std::atan(a) - S) / 2 / kPi;
  return T < 0 ? 0 : T;
}

}  // namespace

double NoncentralTUpper(double f, double p, double K) { return NoncentralTUpperInPlace(f, p, K); }

double NoncentralTUpperInPlace(double f, double& p, double K) {
  if (std::abs(p - 0.5) <= 1E-16) return StudentUpper(f, K);
  if (p <= 1E-16) return 0;
  if (p >= 1) return 1;
  const double z = NormalUpperInverse(p);
  const double delta = z * Sqrt(f + 1);
  if (f > kExactUpTo) return ApproximateArea(f, delta, K);
  return ClampArea(ExactArea(MakeOwen(f, delta, K), p));
}

double OwenT(double h, double a) { return OwenTInPlace(h, a); }

double OwenTInPlace(double& h, double& a) {
  if (std::isnan(h) || std::isnan(a)) fault::Throw(FaultKind::InvalidOperation);
  h = std::abs(h);
  const bool neg = a < 0;
  if (neg) a = std::abs(a);
  const bool big = a > 1;
  double add = 0;
  double T = 0;
  if (a == 1) {
    const double q = NormalUpper(h);
    T = (1 - q) * q / 2;
  } else if (a > 4E-08) {
    if (h > 0 && h * a > 4) {
      T = NormalUpper(h) / 2;
      return neg ? -T : T;
    }
    T = OwenArea(h, a, add);
  }
  if (big) T = -T;
  T = add + T;
  return neg ? -T : T;
}

}  // namespace StatFWinBAS
