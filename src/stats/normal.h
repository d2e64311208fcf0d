#pragma once

// The standard normal distribution. All routines work with the upper tail Q(x) = P(Z > x).
namespace StatFWinBAS {

// The values of pi and 2 pi by which every routine here is defined: cut off, not rounded.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kTwoPi = 6.28318530717958;

// The upper tail area Q(x), within 0 to 1.
// Domain: every finite x; beyond 37 the result is exactly 0, below -37 exactly 1. An argument that
// is not a number is an invalid operation.
// Source: |x| <= 5: Taylor series of the integral (G. Marsaglia 2004, J. Stat. Software 11(4),
// eq. 1, with the stop at a relative term of 1E-15); beyond: NormalUpperHill.
// Accuracy, relative: x below 0: 1.2E-15; up to 1.28: 6.2E-15; up to 3: 5.3E-13; up to 5: 3.7E-09,
// as the difference from a half leaves an absolute error of some 1E-15 there; beyond: 4.2E-11 (at
// 12).
double NormalUpper(double x);

// The upper tail area Q(x), within 0 to 1, by rational functions.
// Domain: every finite x; |x| <= 1E-16 gives 0.5, beyond 37 exactly 0, below -37 exactly 1. An
// argument that is not a number is an invalid operation.
// Source: I.D. Hill (1973), algorithm AS 66, Applied Statistics 22, 424-427; the split between the
// centre and the tail at 1.28, and with an outer limit of 37. HillCoefficients 1 to 19 are c6, c5,
// d5, c4, d4, c3, d3, c2, d2, c1, d1, r, a3, a2, b2, a1, b1, p and minus q of the listing.
// Accuracy, relative: x below 0: 7.1E-12 (at -0.14); up to 1.28: 4.3E-11 (at 1.257); beyond:
// 4.2E-11 (at 12).
double NormalUpperHill(double x);

// The deviate z with Q(z) = p, so that a small p gives a large positive z.
// Domain: 1E-300 < p < 0.9999999999999999. A smaller p, also 0 and below, returns 37; a larger p,
// also above 1, returns InverseNormalCoefficients(1), about -8.222. Not a number is an invalid
// operation.
// Source: start value by J.D. Beasley and S.G. Springer (1977), algorithm AS 111, Applied
// Statistics 26, 118-121, then one correction step of third order by Taylor's expansion.
// InverseNormalCoefficients 2 to 15 are d2, d1, c3, c2, c1, c0, b4, b3, b2, b1, a2, a3, a1 and a0
// of the listing.
// Accuracy, relative: p from 0.001 to 0.499: 1.1E-13 (near 0.001), from 0.501 to 0.999: 7.6E-14;
// between, where the deviate passes through 0, absolute 9.8E-16; down to 1E-20: 1.7E-10 (near
// 3E-07, where NormalUpper leaves most), up to 1 - 2E-16: 1.3E-10. Below 1E-20 the one step no
// longer makes good the start value: 3.3E-03 down to 1E-280 and 1.4E-02 beyond.
double NormalUpperInverse(double p);
// The same as session scripts call it: a p above 0.5 passes through 1 - p and comes back as
// 1 - (1 - p), which may differ from the p that was given in the last place.
double NormalUpperInverseInPlace(double& p);

}  // namespace StatFWinBAS
