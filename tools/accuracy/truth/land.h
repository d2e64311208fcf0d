#pragma once

#include "tools/accuracy/truth/real.h"

// Land's conditional distribution: with x = sqrt(nu) tan(angle) the density is smooth on a finite
// range, and Gauss-Legendre panels round its peak give the shares of it.
namespace accuracy::truth {

// exp((nu + 1) (Aq (x / sqrt(nu + x x) - Zq) + ln((nu + Yq Yq) / (nu + x x)) / 2)).
Real LandDensity(Real nu, Real Aq, Real Yq, Real Zq, Real x);

// The integral of that from its peak to `end`.
Real LandIntegral(Real nu, Real Aq, Real Yq, Real Zq, Real peak, Real end);

// H(c), and the c at which it is p.
Real LandProbability(Real nu, Real s, Real c);
Real LandRoot(Real nu, Real s, Real p);

}  // namespace accuracy::truth
