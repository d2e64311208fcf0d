#pragma once

// Upper tails of the chi-square and the F distribution.
namespace StatFWinBAS {

// The upper tail area P(X > chi chi) of chi-square with df degrees of freedom, within 0 to 1.
// Domain: df 1, 2, 3, ... held in a double, chi (the root of chi-square) from 0 up to where its
// square is finite; chi below 1E-16, also below 0, gives 0 and not 1. Not a number is a fault.
// Source: df up to 200 and chi up to 24: M. Abramowitz and I.A. Stegun (1964), 26.4.4 (odd) and
// 26.4.5 (even); beyond: E.B. Wilson and M.M. Hilferty (1931), PNAS 17, 684-688 (26.4.17).
// Accuracy by the sums: absolute 3.3E-15, relative for areas from 0.001 2.1E-12 (df odd; with df
// even far less). By the approximation: absolute 5.5E-05 (df 201, chi 13.66), relative from 0.001
// 5.4E-03 (df 201, chi 16.39); for a chi above 24 with df up to 200 the areas are below 1E-36 and
// only their being nearly 0 is right.
double ChiUpper(double df, double chi);

// The upper tail area P(X > F) of the F distribution, within 0 to 1.
// Domain: d1 and d2 1, 2, 3, ... held in doubles; F below 1E-31, also below 0, gives 1, above
// 1E+31 0. d1 = d2 and an F within 1E-10 of 1 give 0.5. Not a number is a fault, a d2 of 0 too.
// Source: M. Abramowitz and I.A. Stegun (1964), 26.6.4 (d1 even), 26.6.5 (d2 even) and 26.6.8
// (both odd); where d1 d2 >= 32768, E. Paulson (1942), Annals of Mathematical Statistics 13,
// 233-235 (26.6.15).
// Accuracy, degrees of freedom up to 29999: the sums, absolute: 1.4E-12 (d1 2, d2 near 16000),
// besides 3.5E-09 where F counts as 1; but with d1 1 and d2 even, where 1 - x loses digits, 2.0E-11
// from F 0.01 on and 1.5E-06 below. Relative 1.4E-12 for d1 even at areas from 1E-200, otherwise
// only down to where the absolute error is small. By the approximation, absolute: 1.3E-02 (d1 2, d2
// 29999, F 0.0191: an area of 0.981 comes out as 0.969), and 7.2E-04 for degrees of freedom below
// 2000 (d1 1999, d2 17, F 1.29).
double FUpper(double d1, double d2, double F);

}  // namespace StatFWinBAS
