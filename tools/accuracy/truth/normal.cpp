#include <cmath>

#include "tools/accuracy/truth/distributions.h"

namespace accuracy::truth {
namespace {

constexpr Real kRootHalf = 0.707106781186547524400844362104849039L;
constexpr int kSteps = 100;

// Both by Newton's steps: on the area between 0 and x, and on the logarithm of the tail.
Real CentralDeviate(Real area) {
  Real x = area * std::sqrt(2 * kPi);
  for (int pass = 0; pass < kSteps; ++pass) {
    const Real step = (area - std::erf(x * kRootHalf) / 2) / NormalDensity(x);
    x += step;
    if (std::abs(step) <= std::numeric_limits<Real>::epsilon() * std::abs(x)) break;
  }
  return x;
}

Real TailDeviate(Real p) {
  Real x = std::sqrt(-2 * std::log(p)) - (p < 0.01L ? 0 : 0.5L);
  for (int pass = 0; pass < kSteps; ++pass) {
    const Real q = NormalUpper(x);
    const Real step = std::log(q / p) * q / NormalDensity(x);
    x += step;
    if (std::abs(step) <= std::numeric_limits<Real>::epsilon() * x) break;
  }
  return x;
}

}  // namespace

Real NormalDensity(Real x) { return std::exp(-x * x / 2) / std::sqrt(2 * kPi); }

Real NormalUpper(Real x) { return std::erfc(x * kRootHalf) / 2; }

Real NormalUpperInverse(Real p) {
  if (p > 0.5L) return -NormalUpperInverse(1 - p);
  return p > 0.25L ? CentralDeviate(0.5L - p) : TailDeviate(p);
}

}  // namespace accuracy::truth
