#pragma once

namespace ucl {

// Jahr's approximate limit of the arithmetic mean, and the probability that the mean exceeds the
// limit value.
struct JahrLimit {
  double UCL = 0;     // natural logarithm of the limit
  double PercEx = 0;  // percent, 0 to 100
};

// One-sided upper confidence limit of the mean of a lognormal population, AMu GSD^k with
// k = t / sqrt(df), where t is the deviate of Student's t with the upper tail 1 - D / 100; and the
// upper tail at the t for which that limit would equal OELV.
// Domain: AMu > 0 and OELV > 0 in one unit; GSD > 1; df > 0; D in percent, between 0 and 100. A D
// below 50 gives a limit below AMu. AMu, OELV or GSD not above 0 is an invalid operation, GSD = 1 a
// division by zero.
// Changes nothing.
// Source: J. Jahr (1987), the approximation with the unbiased arithmetic mean as its centre.
// Accuracy of the two formulas, absolute: UCL as far as StudentUpperInverse goes, 5.1E-05 for odd
// df from 5 to 999 (df 5, GSD 1000, D 0.01), otherwise 1.4E-07 (df 1, GSD 1000, D 99.99); PercEx
// 2.0E-10 percent (df 1999, GSD 1.001). What the method lacks against the exact limit is no matter
// of digits: its limit of "95 %" lies above the mean in 93 to 83 of 100 samples of ten, the fewer
// the larger the GSD (docs/accuracy.md); see LandExactUCL.
JahrLimit JahrUCL(double AMu, double GSD, double df, double D, double OELV);

}  // namespace ucl
