#include <algorithm>
#include <cmath>

#include "tools/accuracy/truth/distributions.h"

namespace accuracy::truth {
namespace {

constexpr Real kGone = -50;  // logarithm of a density that adds nothing any more

// Logarithm of the chi density of s = e^v, as a part of its peak at v = 0.
Real LogChi(Real f, Real v) { return f * (v - std::expm1(2 * v) / 2); }

Real EndOfChi(Real f, Real side) {
  Real v = side * 4 / std::sqrt(2 * f);
  while (LogChi(f, v) > kGone) v *= 1.1L;
  return v;
}

// The root of a rising function, looked for around `start`.
template <class Function>
Real RisingRoot(const Function& f, Real start, Real step) {
  Real low = start - step;
  Real high = start + step;
  while (f(low) > 0) low -= step *= 2;
  while (f(high) < 0) high += step *= 2;
  return Root(f, low, high);
}

}  // namespace

namespace {

// The trapezium rule converges at once on an integrand that dies away on both sides of it.
template <class Function>
Real MeanInSteps(Real df, Real h, const Function& f) {
  const Real high = EndOfChi(df, 1);
  Real sum = 0;
  Real whole = 0;
  for (Real v = EndOfChi(df, -1); v < high; v += h) {
    const Real density = std::exp(LogChi(df, v));
    whole += density;
    sum += density * f(std::exp(v));
  }
  return sum / whole;
}

}  // namespace

Real MeanOverChi(Real df, const std::function<Real(Real s)>& f) {
  return MeanInSteps(df, std::min(0.05L, 0.2L / std::sqrt(2 * df)), f);
}

// The step follows the narrower of the chi density and the normal integral.
Real NoncentralLower(Real f, Real z, Real K) {
  const Real root = std::sqrt(f + 1);
  const Real narrow = std::max(std::sqrt(2 * f), root * std::max<Real>(1, std::abs(z)));
  return MeanInSteps(f, std::min(0.1L, 0.4L / narrow),
                     [=](Real s) { return NormalUpper(root * (z - K * s)); });
}

Real NoncentralFactor(Real f, Real z, Real confidence) {
  return RisingRoot([&](Real K) { return NoncentralLower(f, z, K) - confidence; }, z,
                    1 / std::sqrt(f + 1));
}

Real NoncentralQuantile(Real f, Real K, Real confidence) {
  return -RisingRoot([&](Real z) { return NoncentralLower(f, -z, K) - confidence; }, -K,
                     1 / std::sqrt(f + 1));
}

Real OwenT(Real h, Real a) {
  constexpr int kPanels = 24;
  // The integrand falls off at once before the right angle; Owen's identity turns that away.
  if (a > 1) {
    const Real q1 = NormalUpper(h);
    const Real q2 = NormalUpper(h * a);
    return (q1 + q2) / 2 - q1 * q2 - OwenT(h * a, 1 / a);
  }
  const auto f = [h](Real angle) {
    const Real c = std::cos(angle);
    return std::exp(-h * h / (2 * c * c));
  };
  return Integral(f, 0, std::atan(a), kPanels) / (2 * kPi);
}

}  // namespace accuracy::truth
