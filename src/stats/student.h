#pragma once

// Student's t distribution. All routines work with the upper tail P(T > t).
namespace StatFWinBAS {

// The upper tail area P(T > t), within 0 to 1.
// Domain: df 1, 2, 3, ... held in a double, every t whose square is finite; |t| < 1E-16 gives 0.5.
// A df of 0 or below, a t that is not a number and a t t beyond the doubles are faults.
// Changes nothing: df and t are the same on return.
// Source: M. Abramowitz and I.A. Stegun (1964), Handbook of Mathematical Functions, equations
// 26.7.3 (df odd) and 26.7.4 (df even), as 0.5 less the finite sum; above df 30000 the normal
// approximation 26.7.8.
// Accuracy against arbitrary precision, for areas from 0.01: relative 1.7E-13 up to df 1001, 3E-12
// up to 30000 (df 30000, t 1.38), 6.4E-9 above (df 30001, t 2.165; absolute 9.7E-11 there).
// Smaller areas keep the absolute error of the difference from 0.5: 9E-15 up to df 1001, 2.5E-13 up
// to 30000; so an area below about 1E-15 is noise, or 0.
double StudentUpper(double& df, double& t);

// The deviate t with P(T > t) = p, so that a small p gives a large positive t.
// Domain: df 1, 2, 3, ... held in a double, 1E-11 < p < 1 - 1E-11; |p - 0.5| < 1E-16 gives 0.
// Other df below 3 give 0. Nearer to 0 or 1, and outside, the answer is not to be relied on: where
// the start value is too far out for Newton's step, or 1 - (p + p) is 1, it ends with a fault.
// Changes nothing: p and df are the same on return.
// Source: df 1 and 2 in closed form; above 1000 StudentUpperInverseSeries; between, Newton's steps
// on the sums of StudentUpper from the start value of that series, until |t| 1E-6 > |delta / t|, a
// step leaves t as it was, or 100 steps are done. For odd df above 3 the slope lacks the factor
// (df - 1) / (df - 2), so that the steps converge only linearly, alternating about the root, and
// the stopping rule then shows in the answer.
// Accuracy against arbitrary precision, relative, p from 0.025 to 0.975: df 1 and 2: 2E-14; df 3:
// 7.7E-12 (p 0.025); even: 6.4E-12 (df 10, p 0.036); odd above 3: 5.3E-7 (df 5, p 0.0459); above
// 1000: 6.1E-14. Out to 0.0001: 5.4E-12 (df 1), 2.8E-10 (df 3, p 0.00065), 3.9E-10 (even, df 4),
// 1.7E-6 (odd, df 5), 1.9E-13 (above 1000), each but that of df 3 at the outermost p.
// Steps: p from 0.001 to 0.999 in thousandths: at most 10 (df 5, p 0.499). Close to 0.5, where the
// rule asks for more digits than there are, all 100, and the answer stands all the same.
double StudentUpperInverse(double& p, double& df);

// The same with the number of Newton's steps that it took.
struct StudentDeviate {
  double t = 0;
  int passes = 0;
};
StudentDeviate StudentUpperInverseSearch(double& p, double& df);

// The deviate t with P(T > t) = p by the Cornish-Fisher expansion: the start value of
// StudentUpperInverse and its whole answer above 1000 degrees of freedom.
// Domain: that of NormalUpperInverse for p, df above 0; |p - 0.5| < 1E-16 gives 0. A df of 0 is a
// division by zero.
// Changes nothing: p and df are the same on return.
// Source: M. Abramowitz and I.A. Stegun (1964), equation 26.7.5, held from coming nearer to the
// centre than the normal deviate.
// Accuracy against arbitrary precision, relative, p from 0.025 to 0.975: above df 1000: 6.1E-14;
// from df 10: 3.6E-6 (df 10, p 0.025); below: 0.11 (df 1, p 0.025). Out to p 0.0001: 1.9E-13,
// 5.7E-4 and 0.88.
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
