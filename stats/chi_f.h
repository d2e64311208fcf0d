#pragma once

// Upper tails of the chi-square and the F distribution.
namespace StatFWinBAS {

// The upper tail area P(X > chi chi) of chi-square with df degrees of freedom, within 0 to 1.
double ChiUpper(double& df, double& chi);

// The upper tail area P(X > F) of the F distribution, within 0 to 1.
double FUpper(double& d1, double& d2, double& F);

inline double ChiUpper(const double& df, const double& chi) {
  double dfCopy = df;
  double chiCopy = chi;
  return ChiUpper(dfCopy, chiCopy);
}
inline double FUpper(const double& d1, const double& d2, const double& F) {
  double d1Copy = d1;
  double d2Copy = d2;
  double FCopy = F;
  return FUpper(d1Copy, d2Copy, FCopy);
}

}  // namespace StatFWinBAS
