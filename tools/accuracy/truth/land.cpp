#include "tools/accuracy/truth/land.h"

#include <algorithm>
#include <cmath>

namespace accuracy::truth {
namespace {

constexpr Real kGone = -50;  // logarithm of a density that adds nothing any more
constexpr int kPanels = 24;

// The logarithm of the density in the angle, as a part of that at its peak.
class Angle {
 public:
  Angle(Real nu, Real A) : nu_(nu), slope_((nu + 1) * A) {
    peak_ = std::asin(PeakSine((nu - 1) / (2 * slope_)));
    top_ = Log(peak_);
    low_ = End(-1);
    high_ = End(1);
  }

  Real Share(Real to) const {
    to = std::clamp(to, low_, high_);
    const Real below = Part(low_, to);
    const Real above = Part(to, high_);
    return below / (below + above);
  }

 private:
  // At the peak the slope times cos^2 is (nu - 1) sin: the root of sin^2 + 2 q sin - 1 = 0 that
  // lies within -1 to 1, on the side of the slope.
  Real PeakSine(Real q) const {
    const Real root = std::sqrt(q * q + 1);
    return slope_ < 0 ? -1 / (root - q) : 1 / (root + q);
  }
  Real Log(Real angle) const {
    const Real cosine = nu_ == 1 ? 0 : (nu_ - 1) * std::log(std::cos(angle));
    return cosine + slope_ * std::sin(angle);
  }
  Real Density(Real angle) const { return std::exp(Log(angle) - top_); }
  // Where on that side the density has gone, by halving.
  Real End(Real side) const {
    const Real last = side * kPi / 2;
    if (Log(last * (1 - 1e-15L)) - top_ > kGone) return last;
    Real inner = peak_;
    Real outer = last;
    for (int pass = 0; pass < 40; ++pass) {
      const Real middle = (inner + outer) / 2;
      (Log(middle) - top_ > kGone ? inner : outer) = middle;
    }
    return outer;
  }
  Real Part(Real from, Real to) const {
    if (!(to > from)) return 0;
    return Integral([this](Real angle) { return Density(angle); }, from, to, kPanels);
  }

  Real nu_;
  Real slope_;
  Real peak_ = 0;
  Real top_ = 0;
  Real low_ = 0;
  Real high_ = 0;
};

}  // namespace

Real LandDensity(Real nu, Real Aq, Real Yq, Real Zq, Real x) {
  const Real square = nu + x * x;
  const Real g = Aq * (x / std::sqrt(square) - Zq) + std::log((nu + Yq * Yq) / square) / 2;
  return std::exp((nu + 1) * g);
}

// The far end comes in to where the density has gone, so that the panels do not step over its peak.
Real LandIntegral(Real nu, Real Aq, Real Yq, Real Zq, Real peak, Real end) {
  const Real root = std::sqrt(nu);
  const auto f = [&](Real angle) {
    const Real c = std::cos(angle);
    return LandDensity(nu, Aq, Yq, Zq, root * std::tan(angle)) * root / (c * c);
  };
  const Real from = std::atan(peak / root);
  Real to = std::atan(end / root);
  while (f((from + to) / 2) < std::exp(kGone) * root) to = (from + to) / 2;
  return Integral(f, from, to, 2 * kPanels);
}

Real LandProbability(Real nu, Real s, Real c) {
  const Real x0 = -std::sqrt(nu + 1) * (s / 2 + c / s);
  const Real A = -s / 2 * std::sqrt((nu + x0 * x0) / (nu + 1));
  return Angle(nu, A).Share(std::atan(x0 / std::sqrt(nu)));
}

Real LandRoot(Real nu, Real s, Real p) {
  const auto f = [=](Real c) { return LandProbability(nu, s, c) - p; };
  Real low = -s * (4 + 2 * s) / std::sqrt(nu);
  Real high = 4 * s * (1 + s) / std::sqrt(nu);
  while (f(low) < 0) low *= 2;
  while (f(high) > 0) high *= 2;
  return Root(f, low, high);
}

}  // namespace accuracy::truth
