#include "ucl/land_probability.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "base/fault.h"

namespace UCLBAS {
namespace {

constexpr double kDeadDensity = 1E-10;  // the range of integration ends where no more is left
constexpr double kNoWeight = 1E-11;     // a segment of this integral is taken as it is
constexpr double kTolerance = 1E-10;    // of a segment, the same on every level

// The density with what does not depend on x worked out once.
class Density {
 public:
  Density(double nu, double Aq, double Yq, double Zq)
      : nu_(nu), Aq_(Aq), Zq_(Zq), peak_(Checked(nu + Yq * Yq)), power_(nu + 1) {}

  double operator()(double x) const {
    const double square = Checked(nu_ + x * x);
    const double r = Divide(peak_, square);
    const double t = Divide(x, std::sqrt(square));
    const double g = Aq_ * (t - Zq_) + 0.5 * Log(r);
    const double e = Checked(power_ * g);
    return e <= -743 ? 0 : Exp(e);
  }

 private:
  double nu_;
  double Aq_;
  double Zq_;
  double peak_;
  double power_;
};

// A stretch of the range: its left end, its half width, the density at left, middle and right end,
// and Simpson's estimate.
struct Segment {
  double A = 0;
  double H = 0;
  double FA = 0;
  double FC = 0;
  double FB = 0;
  double S = 0;
};

// The segments that wait, the one to be handled next on top.
class SegmentStack {
 public:
  bool Empty() const { return level_ == 0; }
  void Push(const Segment& segment) {
    if (level_ == kLevels) fault::Throw(FaultKind::Subscript);
    segments_[level_++] = segment;
  }
  Segment Pop() { return segments_[--level_]; }

 private:
  static constexpr std::size_t kLevels = 100;
  std::array<Segment, kLevels> segments_;
  std::size_t level_ = 0;
};

double Integral(const Density& f, double a, double b) {
  double result = 0;
  SegmentStack stack;
  const double half = (b - a) / 2;
  const double FA = f(a), FC = f(a + half), FB = f(b);
  stack.Push({a, half, FA, FC, FB, half * (FA + 4 * FC + FB) / 3});
  while (!stack.Empty()) {
    const Segment v = stack.Pop();
    const double FD = f(v.A + v.H / 2);
    const double FE = f(v.A + 1.5 * v.H);
    const double S1 = v.H * (v.FA + 4 * FD + v.FC) / 6;
    const double S2 = v.H * (v.FC + 4 * FE + v.FB) / 6;
    if (std::abs(S1 + S2) <= kNoWeight || std::abs(S1 + S2 - v.S) <= kTolerance) {
      result = Checked(result + (16 * (S1 + S2) - v.S) / 15);
    } else {
      stack.Push({v.A + v.H, v.H / 2, v.FC, FE, v.FB, Checked(S2)});
      stack.Push({v.A, v.H / 2, v.FA, FD, v.FC, Checked(S1)});
    }
  }
  return result;
}

// `end` moved outwards by tens until the density has died away there.
double WidenedHigh(const Density& f, double end) {
  while (std::abs(f(end)) > kDeadDensity) end = 10 * end;
  return end;
}

// The same for the lower end, which must also lie left of the peak. Where |x0| is small against the
// peak's own distance, ten times |x0| is still right of it, perhaps with nothing of the density in
// sight, and the integrals would miss the peak.
double WidenedLow(const Density& f, double end, double peak) {
  while (std::abs(f(end)) > kDeadDensity || !(end < peak)) end = 10 * end;
  return end;
}

}  // namespace

double SignNonZero(double v) { return v < 0 ? -1 : 1; }

double SmallerOf(double a, double b) { return b < a ? b : a; }

double LandIntegrand(double nu, double Aq, double Yq, double Zq, double x) {
  return Density(nu, Aq, Yq, Zq)(x);
}

void LandSimpson(double a, double b, double nu, double Aq, double Yq, double Zq, double& result) {
  result = Integral(Density(nu, Aq, Yq, Zq), a, b);
}

double LandProbability(double nu, double s, double c) {
  const double x0 = Checked(-Sqrt(nu + 1) * (0.5 * s + Divide(c, s)));
  const double Aq = Checked((-0.5 * s) * Sqrt((nu + x0 * x0) / (nu + 1)));
  const double Yq = Checked(-Sqrt((nu / 2) * (Sqrt(1 + 4 * (Aq * Aq)) - 1)));
  const double Zq = Divide(Yq, Sqrt(nu + Yq * Yq));
  const Density f(nu, Aq, Yq, Zq);
  // The peak again, by an expression that keeps its digits otherwise: the point of splitting.
  const double W = Checked(-Sqrt(nu * Sqrt(Aq * Aq + 0.25) - nu / 2));
  double lo = -10 * std::abs(x0);
  double hi = 10 * std::abs(x0);
  if (lo == 0) {
    lo = -1;
    hi = 1;
  }
  lo = WidenedLow(f, lo, W);
  hi = WidenedHigh(f, hi);
  const double I1 = Integral(f, lo, W);
  const double I2 = Integral(f, W, hi);
  const double I3 = Integral(f, x0, W);
  return Divide(I1 - I3, I2 + I1);
}

}  // namespace UCLBAS
