#pragma once

// Student's t distribution. All routines work with the upper tail P(T > t).
namespace StatFWinBAS {

// The upper tail area P(T > t), within 0 to 1.
// Domain: df 1, 2, 3, ... held in a double, every t whose square is finite; |t| < 1E-16 gives 0.5.
// A df of 0 or below, a t that is not a number and a t t beyond the doubles are faults.
// Source: M. Abramowitz and I.A. Stegun (1964), Handbook of Mathematical Functions, equations
// 26.7.3 (df odd) and 26.7.4 (df even), as 0.5 less the finite sum; above df 30000 the normal
// approximation 26.7.8.
// Accuracy, absolute for every t: 2.7E-13 up to df 30000 (df 30000, t 1.4), growing with df;
// 9.7E-11 above (df 30001, t 2.17). Relative for areas from 0.001: 1.4E-10 and 4.7E-08. Smaller
// areas keep the absolute error of the difference from 0.5, so that one below about 1E-15 is noise,
// or 0.
double StudentUpper(double df, double t);

// The deviate t with P(T > t) = p, so that a small p gives a large positive t.
// Domain: df 1, 2, 3, ... held in a double, 1E-11 < p < 1 - 1E-11; |p - 0.5| < 1E-16 gives 0.
// Other df below 3 give 0. Nearer to 0 or 1, and outside, the answer is not to be relied on: where
// the start value is too far out for Newton's step, or 1 - (p + p) is 1, it ends with a fault.
// Source: df 1 and 2 in closed form; above 1000 StudentUpperInverseSeries; between, Newton's steps
// on the sums of StudentUpper from the start value of that series, until |t| 1E-6 > |delta / t|, a
// step leaves t as it was, or 100 steps are done. For odd df above 3 the slope lacks the factor
// (df - 1) / (df - 2), so that the steps converge only linearly, alternating about the root, and
// the stopping rule then shows in the answer.
// Accuracy, relative, p from 0.0001 to 0.995: df 1 and 2: 5.8E-12; df 3: 2.8E-10; even: 4.0E-10 (df
// 4); odd above 3: 1.7E-06 (df 5); above 1000, p 0.001 and more from a half: 6.2E-13; each but that
// of df 3 at the outermost p.
// Steps: p from 0.001 to 0.999 in thousandths: at most 10 (df 5, p 0.499). Close to 0.5, where the
// rule asks for more digits than there are, all 100, and the answer stands all the same.
double StudentUpperInverse(double p, double df);

// The same with the number of Newton's steps that it took.
struct StudentDeviate {
  double t = 0;
  int passes = 0;
};
StudentDeviate StudentUpperInverseSearch(double p, double df);

// The deviate t with P(T > t) = p by the Cornish-Fisher expansion: the start value of
// StudentUpperInverse and its whole answer above 1000 degrees of freedom.
// Domain: that of NormalUpperInverse for p, df above 0; |p - 0.5| < 1E-16 gives 0. A df of 0 is a
// division by zero.
// Source: M. Abramowitz and I.A. Stegun (1964), equation 26.7.5, held from coming nearer to the
// centre than the normal deviate.
// Accuracy, relative, p from 0.0001 to 0.995, but 0.001 and more from a half: above df 1000:
// 6.2E-13; from df 10: 5.8E-04 (df 10, p 0.0001); below: 8.8E-01 (df 1, p 0.0001).
double StudentUpperInverseSeries(double p, double df);

}  // namespace StatFWinBAS
