#pragma once

// Student's t distribution. All routines work with the upper tail P(T > t).
namespace StatFWinBAS {

// The upper tail area P(T > t), within 0 to 1.
double StudentUpper(double& df, double& t);

// The deviate t with P(T > t) = p.
double StudentUpperInverse(double& p, double& df);

// The same with the number of Newton's steps that it took.
struct StudentDeviate {
  double t = 0;
  int passes = 0;
};
StudentDeviate StudentUpperInverseSearch(double& p, double& df);

// The deviate t with P(T > t) = p by the Cornish-Fisher expansion.
double StudentUpperInverseSeries(double& p, double& df);

inline double StudentUpper(const double& df, const double& t) {
  double dfCopy = df;
  double tCopy = t;
  return StudentUpper(dfCopy, tCopy);
}
inline double StudentUpperInverse(const double& p, const double& df) {
  double pCopy = p;
  double dfCopy = df;
  return StudentUpperInverse(pCopy, dfCopy);
}
inline double StudentUpperInverseSeries(const double& p, const double& df) {
  double pCopy = p;
  double dfCopy = df;
  return StudentUpperInverseSeries(pCopy, dfCopy);
}

}  // namespace StatFWinBAS
