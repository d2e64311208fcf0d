#include "tools/accuracy/truth/lognormal.h"

#include <cmath>

namespace accuracy::truth {
namespace {

constexpr Real kEnd = 1e-22L;

// 0F1(b; z) without its leading 1.
Real Series(Real b, Real z) {
  Real term = 1;
  Real sum = 0;
  for (int j = 1; j < 2000; ++j) {
    term *= z / (j * (b + j - 1));
    sum += term;
    if (std::abs(term) <= kEnd * std::abs(sum)) break;
  }
  return sum;
}

// Finney's g(t) with n degrees of freedom, less 1, is 0F1(n / 2; n n t / (2 (n + 1))) less 1.
Real Finney(Real n, Real t) { return Series(n / 2, n * n * t / (2 * (n + 1))); }

}  // namespace

Real MeanMVU(Real df, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * (1 + Finney(df, L * L / 2));
}

Real MeanMMSE(Real df, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * (1 + Finney(df, (df - 3) * L * L / (2 * df)));
}

Real VarianceMVU(Real df, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * GM * (Finney(df, 2 * L * L) - Finney(df, (df - 1) * L * L / df));
}

Real GMByBessel(Real df, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * (1 + Series(df / 2 + 1, -L * L / 4));
}

Real GMUnbiased(Real df, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * (1 + Series(df / 2, -L * L * df / (4 * (df + 1))));
}

Real ExcessOfMean(Real GSD) {
  const Real L = std::log(GSD);
  return std::expm1(L * L / 2);
}

}  // namespace accuracy::truth
