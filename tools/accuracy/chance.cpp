#include "tools/accuracy/chance.h"

#include <algorithm>
#include <cmath>

namespace accuracy {

double Chance::Uniform() { return (double(bits_() >> 12) + 0.5) / 4503599627370496.0; }

// G. Marsaglia's polar method.
double Chance::Normal() {
  if (waits_) {
    waits_ = false;
    return waiting_;
  }
  for (;;) {
    const double u = 2 * Uniform() - 1;
    const double v = 2 * Uniform() - 1;
    const double square = u * u + v * v;
    if (square >= 1 || square == 0) continue;
    const double radius = std::sqrt(-2 * std::log(square) / square);
    waiting_ = v * radius;
    waits_ = true;
    return u * radius;
  }
}

// G. Marsaglia and W.W. Tsang (2000), with one normal square more for a single degree of freedom.
double Chance::ChiSquare(double df) {
  if (df < 2) {
    const double z = Normal();
    return z * z;
  }
  const double d = df / 2 - 1.0 / 3;
  const double c = 1 / std::sqrt(9 * d);
  for (;;) {
    const double x = Normal();
    const double root = 1 + c * x;
    if (root <= 0) continue;
    const double v = root * root * root;
    if (std::log(Uniform()) < x * x / 2 + d - d * v + d * std::log(v)) return 2 * d * v;
  }
}

std::vector<double> Chance::Ordered(int n) {
  std::vector<double> z;
  z.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) z.push_back(Normal());
  std::sort(z.begin(), z.end());
  return z;
}

Found Tally::Result() const { return {mean_, std::sqrt(squares_ / runs_ / (runs_ - 1))}; }

}  // namespace accuracy
