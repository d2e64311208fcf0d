#pragma once

#include <optional>

#include "session/exposure_session.h"

// Estimators of a lognormal population from a sample's degrees of freedom df, geometric mean GM
// and geometric standard deviation GSD, and the linear moments of the record.
//
// Units: GM and every mean in the unit of the outcomes, a variance in its square; GSD has none.
// Common faults: GSD not above 0 is an invalid operation; a df that makes a divisor 0 is a
// division by zero; a term beyond a double is an overflow.
namespace StatFWinBAS {

// Minimum variance unbiased estimate of the arithmetic mean.
// Domain: df > 0, GSD > 0.
// Source: D.J. Finney (1941), Suppl. J. R. Statist. Soc. 7, 155-161: GM g(L squared / 2) with
// L = ln GSD, where g(t) is the series with n = df degrees of freedom.
// Accuracy, relative: 1.2E-14 (GSD near 1000); GSD from 1.001.
double FinneyMeanMVU(double df, double GM, double GSD);

// Estimate of the arithmetic mean with the smallest mean square error.
// Domain: df > 3, which the caller holds, GSD > 0. For df < 3 the series alternates and the result
// means nothing.
// Source: X.H. Zhou (1998), Statistics in Medicine 17, 2251-2264: GM g((df - 3) L squared / (2 df))
// with Finney's g.
// Accuracy, relative: 8.8E-15 (GSD near 1000); GSD from 1.001.
double FinneyMeanMMSE(double df, double GM, double GSD);

// Unbiased estimate of the variance of the population (not of its standard deviation).
// Domain: df > 0, GSD > 0 but not 1, where the sum is 0 and its relative test a division by zero.
//
// Source: D.J. Finney (1941), as above: GM squared (g(2 L squared) - g((df - 1) L squared / df)),
// the two series summed together so that their common first term cancels.
// Accuracy, relative: 5.8E-15 for GSD from 1.05 to 8, 4.2E-14 from 1.001 to 1000.
double FinneyVarianceMVU(double df, double GM, double GSD);

// Estimate of the geometric mean, unbiased but for small samples.
// Domain: GSD / (df + 1) squared at most 6; beyond there is none.
// Source: D.J. Finney (1941), as above, the same kind of series for a negative argument:
// GM 0F1(df / 2 + 1; -L squared / 4), where the unbiased estimate has GM 0F1(df / 2; -L squared df
// / (4 (df + 1))). At a GSD of 3 the bias is +12 percent for M 2, +5.6 for 3, +1.5 for 6, +0.6 for
// 10; for a large GSD and a small df the estimate is negative. It stays, because results must
// remain comparable. Accuracy of that series, as a part of GM: 5.6E-16; relative to the estimate,
// which passes through 0 (df 2: near GSD 46.14), 3.1E-14 where it is a hundredth of GM and more.
std::optional<double> GMUnbiased(double df, double GM, double GSD);
// The same by the record's df, as session scripts call it: 0 and InputState 1 where there is none,
// otherwise InputState 0.
double GMUnbiased(ExposureSession& s, double GM, double GSD);

// Arithmetic mean XM and standard deviation SDlin.
// In mode "R" without a detection range they are those of the outcomes C(1) to C(M), unless other
// values are tried in their place (ModifyMode); otherwise they follow from GM and GSD: XM = GM e,
// SDlin = sqrt(GM squared e (e - 1) M / (M - 1)) with e = exp(L squared / 2), L = ln GSD. That
// factor is how this value is defined here; it is not the exp(L squared) (exp(L squared) - 1) of
// the lognormal variance.
// Domain: M >= 2; M = 1 is a division by zero. No SDlin where the outcomes have no spread (sum of
// squares at most 1E-10).
// Source: the textbook sum of squares, S2 - S1 squared / M.
// Accuracy, relative: from outcomes XM 4.0E-16 and SDlin 2.3E-15 over the reference series, where
// the subtraction loses as many digits as the outcomes have in common; from GM and GSD XM 5.0E-15,
// SDlin 4.7E-14 for GSD from 1.05 and 1.2E-10 from 1.001, where e - 1 loses digits.
struct LinearStatistics {
  double XM = 0;
  std::optional<double> SDlin;
};
LinearStatistics LinearMomentsOf(const ExposureSession& s);
// The same into XM and SDlin of the record, as session scripts call it: InputState 4 when there is
// no spread (SDlin then keeps its value), 5 when SDlin is 10000 or more (it is stored all the
// same).
void LinearMoments(ExposureSession& s);

// All estimators of a sample, as the descriptive screen shows them.
struct Estimators {
  double LnGM = 0;
  double LnGSD = 0;
  std::optional<double> GMu;
  double AMml = 0;
  double AMu = 0;
  std::optional<double> AMmv;  // none with df up to 3
  double SDu = 0;
  LinearStatistics linear;
};
Estimators EstimatorsOf(const ExposureSession& s);

}  // namespace StatFWinBAS
