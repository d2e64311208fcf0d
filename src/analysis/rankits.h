#pragma once

#include <vector>

// Expected normal order statistics, against which the outcomes of a series are plotted.
namespace analysis {

// The rankits R(1) to R(M\2) of a sample of M: R(i) is the expected value of the i-th largest of M
// standard normal deviates, a positive number. Element 0 is not used.
// Domain: M from 3 to 2000; for any other M all elements are 0. Changes nothing.
// Source: M = 3 and M from 4 to 20: expected normal order statistics, which H.L. Harter (1961),
// Biometrika 48, 151-165, prints to five decimals; those from 4 to 20 are recomputed to 15. Beyond,
// the approximation by J.P. Royston (1982), algorithm AS 177.3, Applied Statistics 31, 161-165.
// RankitCoefficients 1 to 24 are its constants eps, dl1, dl2, gam and lam of each order, in the
// order of the formulas. Accuracy, absolute: 4.4E-06 for M = 3 (the five decimals of the
// method), 5.3E-16 up to 20; by the approximation 7.5E-05 up to 39 (M 26, i 5) and 8.3E-05 up to
// 2000 (M 2000, i 4).
std::vector<double> RankitsForSampleSize(int M);

// The score z(i) of the i-th lowest of M outcomes: -R(i) in the lower half, 0 in the middle of an
// odd sample, +R(M + 1 - i) in the upper half.
// Domain: 1 <= i <= M and a table for M; otherwise a subscript fault. Changes nothing; exact.
double Score(const std::vector<double>& RankitTable, int M, int i);

}  // namespace analysis
