#include "tools/accuracy/truth/real.h"

#include <cmath>

namespace accuracy::truth {
namespace {

constexpr int kPoints = 16;

// The i-th root of the Legendre polynomial by Newton's steps from Chebyshev's.
Node NodeAt(int i) {
  Real x = std::cos(kPi * (i + 0.75L) / (kPoints + 0.5L));
  Real slope = 1;
  for (int pass = 0; pass < 20; ++pass) {
    Real before = 1;
    Real now = x;
    for (int k = 2; k <= kPoints; ++k) {
      const Real next = ((2 * k - 1) * x * now - (k - 1) * before) / k;
      before = now;
      now = next;
    }
    slope = kPoints * (x * now - before) / (x * x - 1);
    x -= now / slope;
  }
  return {x, 2 / ((1 - x * x) * slope * slope)};
}

}  // namespace

const std::vector<Node>& Nodes() {
  static const std::vector<Node> nodes = [] {
    std::vector<Node> all;
    all.reserve(kPoints);
    for (int i = 0; i < kPoints; ++i) all.push_back(NodeAt(i));
    return all;
  }();
  return nodes;
}

}  // namespace accuracy::truth
