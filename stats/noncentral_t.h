#pragma once

// The noncentral t distribution by Owen's method, and the T function on which it rests.
namespace StatFWinBAS {

// The lower distribution function P(T' <= K sqrt(f + 1)) of the noncentral t variable with f
// degrees of freedom and noncentrality NormalUpperInverse(p) sqrt(f + 1), within 0 to 1.
// Changes: p is overwritten by the exact series.
double NoncentralTUpper(double& f, double& p, double& K);

// Owen's function T(h, a). Changes: both arguments.
double OwenT(double& h, double& a);

inline double NoncentralTUpper(const double& f, const double& p, const double& K) {
  double fCopy = f;
  double pCopy = p;
  double KCopy = K;
  return NoncentralTUpper(fCopy, pCopy, KCopy);
}
inline double OwenT(const double& h, const double& a) {
  double hCopy = h;
  double aCopy = a;
  return OwenT(hCopy, aCopy);
}

}  // namespace StatFWinBAS
