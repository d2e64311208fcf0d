#pragma once

#include <limits>
#include <vector>

// Mathematical values to hold the routines against, reckoned here by other methods than theirs and
// in a wider type: 64 bits of mantissa or more, which both compilers have without a library. What
// they give is itself held against the tables in arbitrary precision (tests/accuracy).
namespace accuracy::truth {

using Real = long double;
static_assert(std::numeric_limits<Real>::digits >= 64, "a truth needs more digits than a double");

inline constexpr Real kPi = 3.14159265358979323846264338327950288L;

struct Node {
  Real x;
  Real weight;
};
// Of the Gauss-Legendre rule with 16 points on -1 to 1.
const std::vector<Node>& Nodes();

// The integral of a smooth f by that rule on each of `panels` equal parts.
template <class Function>
Real Integral(const Function& f, Real from, Real to, int panels) {
  const Real half = (to - from) / (2 * panels);
  Real sum = 0;
  for (int i = 0; i < panels; ++i) {
    const Real centre = from + (2 * i + 1) * half;
    for (const Node& node : Nodes()) sum += node.weight * f(centre + half * node.x);
  }
  return sum * half;
}

// The root of a rising or falling f between `low` and `high`, by false position in the Illinois
// form with a halving where that stalls.
template <class Function>
Real Root(const Function& f, Real low, Real high) {
  Real atLow = f(low);
  Real atHigh = f(high);
  for (int pass = 0; pass < 200 && low != high; ++pass) {
    Real x = pass % 4 == 3 ? (low + high) / 2 : (low * atHigh - high * atLow) / (atHigh - atLow);
    if (!(x > low && x < high)) x = (low + high) / 2;
    const Real at = f(x);
    if (at == 0 || x == low || x == high) return x;
    if ((at < 0) == (atLow < 0)) {
      low = x;
      atLow = at;
      atHigh /= 2;
    } else {
      high = x;
      atHigh = at;
      atLow /= 2;
    }
    const Real size = low < 0 ? -low : low;
    if (high - low <= 4 * std::numeric_limits<Real>::epsilon() * size) break;
  }
  return (low + high) / 2;
}

}  // namespace accuracy::truth
