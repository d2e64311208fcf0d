#pragma once

// The noncentral t distribution by Owen's method, and the T function on which it rests.
namespace StatFWinBAS {

// The lower distribution function P(T' <= K sqrt(f + 1)) of the noncentral t variable with f
// degrees of freedom and noncentrality delta = NormalUpperInverse(p) sqrt(f + 1), within 0 to 1:
// the confidence that belongs to the tolerance factor K.
// Domain: f 1, 2, 3, ... held in a double; p up to 1E-16 gives 0, from 1 on 1; every K whose
// square is finite. |p - 0.5| <= 1E-16 gives StudentUpper(f, K) instead, which is the other tail,
// and takes K without sqrt(f + 1). An f of 0 is a division by zero; not a number is a fault.
// Source: f up to 200: D.B. Owen (1968), Technometrics 10, 445-478, with the recurrence of B.E.
// Cooper (1968), algorithm AS 5, Applied Statistics 17, 193-194; above, the approximation by one
// normal tail of M. Abramowitz and I.A. Stegun (1964), 26.7.10. Where sqrt(1 + 1 / f) K comes
// within 1E-16 of 1 and f is above 1 the sum of the moments is left out, which is no approximation
// of anything.
// Accuracy, absolute, p from 0.0001 to 0.9999: f even: 4.7E-12 (f 200, p 0.9999, K -3.72); f odd:
// 8.3E-07 (f 1, p 0.00182, K 2.97), by the short cut of OwenT; above 200: 2.8E-03 (f 201, p 0.9999,
// K -3.72), shrinking as f grows. Small areas keep that absolute error only.
double NoncentralTUpper(double f, double p, double K);
// The same as session scripts call it: behind the exact series with f above 1, p holds the area
// NormalUpper(-A DRB).
double NoncentralTUpperInPlace(double f, double& p, double K);

// Owen's function T(h, a): the probability that X > h and 0 < Y < a X, for X and Y independent
// standard normal; odd in a, even in h.
// Domain: every h and a; a up to 4E-08 gives 0. For h = 0 and a above 1 the sign is turned: T(0,
// 2) comes out as -T(0, 2); the noncentral t never asks for it. Not a number is an invalid
// operation.
// Source: D.B. Owen (1956), Annals of Mathematical Statistics 27, 1075-1090: his series, stopped
// at a term of 1E-10, and his identity for a above 1. Where h a > 4 the short cut NormalUpper(h) /
// 2 for every a.
// Accuracy, absolute: series: 3.8E-12 (h 6.5, a 0.62), besides 6.4E-09 where a counts as 0; short
// cut: 4.2E-07 (h 0.95, a 4.21).
double OwenT(double h, double a);
// The same as session scripts call it: h becomes |h| and a becomes |a|; where a is above 1 and the
// series is used, h becomes h a and a becomes 1 / a.
double OwenTInPlace(double& h, double& a);

}  // namespace StatFWinBAS
