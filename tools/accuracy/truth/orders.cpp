#include "tools/accuracy/truth/orders.h"

#include <cmath>
#include <cstddef>
#include <map>

#include "stats/coefficients.h"
#include "tools/accuracy/truth/distributions.h"

namespace accuracy::truth {
namespace {

constexpr Real kGone = -50;

// Logarithm of the density of the r-th largest, without its constant.
Real LogDensity(int n, int r, Real x) {
  return (r - 1) * std::log(NormalUpper(x)) + (n - r) * std::log(NormalUpper(-x)) - x * x / 2;
}

std::vector<Real> Medians(int M) {
  std::vector<Real> m(static_cast<std::size_t>(M / 2) + 1);
  for (int i = 1; i <= M / 2; ++i)
    m[static_cast<std::size_t>(i)] = NormalUpperInverse((i - 0.375L) / (M + 0.25L));
  return m;
}

std::vector<Real> Weights(int M) {
  if (M == 3) return {0, std::sqrt(0.5L)};
  std::vector<Real> a = Medians(M);
  Real squares = 0;
  for (const Real m : a) squares += 2 * m * m;
  const std::size_t outer = M > 5 ? 2 : 1;
  Real rest = squares;
  Real share = 1;
  for (std::size_t k = 1; k <= outer; ++k) {
    rest -= 2 * a[k] * a[k];
    a[k] = RoystonPoly(1 / std::sqrt(Real(M)), 5, static_cast<int>(k)) + a[k] / std::sqrt(squares);
    share -= 2 * a[k] * a[k];
  }
  for (std::size_t k = outer + 1; k < a.size(); ++k) a[k] /= std::sqrt(rest / share);
  return a;
}

}  // namespace

Real OrderStatistic(int n, int r) {
  const Real p = Real(r) / (n + 1);
  const Real centre = NormalUpperInverse(p);
  const Real width = std::sqrt(p * (1 - p) / n) / NormalDensity(centre);
  const Real top = LogDensity(n, r, centre);
  const Real h = width / 4;
  Real sum = 0;
  Real whole = 0;
  for (const int side : {-1, 1}) {
    for (int k = side < 0 ? 1 : 0;; ++k) {
      const Real x = centre + side * k * h;
      const Real log = LogDensity(n, r, x) - top;
      if (log < kGone) break;
      whole += std::exp(log);
      sum += (x - centre) * std::exp(log);
    }
  }
  return centre + sum / whole;
}

const std::vector<Real>& ShapiroWeights(int M) {
  static std::map<int, std::vector<Real>> known;
  const auto found = known.find(M);
  return found != known.end() ? found->second : known.emplace(M, Weights(M)).first->second;
}

Real RoystonPoly(Real x, int degree, int column) {
  const auto& row = StatFWinBAS::Coefs().RoystonTable[static_cast<std::size_t>(column)];
  Real value = 0;
  for (int i = degree; i >= 0; --i) value = value * x + row[static_cast<std::size_t>(i)];
  return value;
}

}  // namespace accuracy::truth
