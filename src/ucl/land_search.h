#pragma once

#include <cstdint>

#include "ucl/land_watch.h"

namespace UCLBAS {

// Looks for the C at which f(C) = LandProbability(nu, s, C) - p is 0, between x1 and x2.
// Entered with status 0, or with the status of the last call after the caller has moved the
// interval: +1 when the old x2 became x1, -1 when the old x1 became x2; f1 and f2, the values at
// the ends, are then used again.
// On return status 0: C holds the root, to 1E-5 of its own size, or to 1E-8 where an end of the
// bracket is exactly 0. Status +1: the root lies above x2, -1: below x1; C keeps its value.
// Domain: nu > 0, s > 0, 0 < p < 1, x1 < x2. A bracket whose ends have come to have one sign ends
// the search with an invalid operation; faults of LandProbability come through.
// Changes: f1, f2, C, status and `watch`; x1 and x2 are the caller's to move.
// Source: bracketing secant method with a quadratic refinement and bisection where they fail, in
// the manner of T.J. Dekker (1969) and R.P. Brent (1973), Algorithms for Minimization without
// Derivatives, chapter 4.
// Accuracy: the stop at 1E-5 decides; mostly far better, since the last step is of second order. As
// a part of C sqrt(nu) / s, or of 1 where that is smaller: 3.8E-06 for nu above 2, 4.3E-06 for nu
// 2, and 2.0E-03 for nu 1, where the errors of LandProbability show.
void LandRootSearch(double nu, double s, double& x1, double& x2, double& f1, double& f2, double p,
                    double& C, std::int16_t& status, LandWatch& watch);

inline void LandRootSearch(double nu, double s, double& x1, double& x2, double& f1, double& f2,
                           double p, double& C, std::int16_t& status) {
  LandWatch watch;
  LandRootSearch(nu, s, x1, x2, f1, f2, p, C, status, watch);
}

}  // namespace UCLBAS
