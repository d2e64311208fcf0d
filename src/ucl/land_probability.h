#pragma once

// Land's conditional distribution: the share of the density that lies below the point that belongs
// to a trial value c. All of it works on logarithms; nu are the degrees of freedom, s the standard
// deviation of the logarithms.
namespace UCLBAS {

// -1 for a negative value, otherwise +1, also for 0 and minus 0.
double SignNonZero(double v);

// a, unless b is smaller.
double SmallerOf(double a, double b);

// The density at x, not normalised: it is 1 at its peak, x = Yq, and exactly 0 where its logarithm
// is -743 or less.
// Domain: nu > 0; Aq, Yq and Zq as LandProbability makes them. An x whose square exceeds a double
// is an overflow. Changes nothing.
// Source: C.E. Land (1975), Selected Tables in Mathematical Statistics 3, 385-419, the conditional
// density of the t statistic, scaled.
// Accuracy, relative, for nu up to 999 and Aq down to -60: 1.5E-11 (far out on the slope); the
// logarithm carries the factor nu + 1.
double LandIntegrand(double nu, double Aq, double Yq, double Zq, double x);

// Integral of LandIntegrand from a to b into `result`; with a above b it has the opposite sign.
// Domain: finite ends. More than 100 halvings of the range is a subscript fault.
// Changes: result.
// Source: adaptive Simpson's rule with Richardson's correction (J.N. Lyness 1969, J. ACM 16,
// 483-495), with an absolute tolerance of 1E-10 that is the same on every level.
// Accuracy, absolute, for a range from the peak to ten times as far as it lies: 9.4E-11. A range
// that shows nothing of the peak in its five first points is taken for empty.
void LandSimpson(double a, double b, double nu, double Aq, double Yq, double Zq, double& result);

// The probability H(c); it falls from 1 to 0 as c rises.
// Domain: nu > 0, s > 0, which the caller holds. Beyond a double: the fault of its kind.
// Changes nothing.
// Source: C.E. Land (1975), as above, by three integrals of the density.
// Accuracy, absolute, s from 0.05 to 6.9: nu from 6: 8.9E-09 (nu 6, s 0.4, c 1.96); from 3:
// 1.6E-08; nu 2: 1.2E-07; nu 1: 6.9E-06 (c far out), since the density falls off slowly and the
// range of integration ends too early. The tails are held to that and not to a relative error.
double LandProbability(double nu, double s, double c);

}  // namespace UCLBAS
