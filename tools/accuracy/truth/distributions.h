#pragma once

#include <functional>

#include "tools/accuracy/truth/real.h"

// Distribution functions. A tail is an upper one, P(X > x).
namespace accuracy::truth {

Real NormalDensity(Real x);
Real NormalUpper(Real x);
// The deviate with that tail, 0 < p < 1.
Real NormalUpperInverse(Real p);

// Of the root of chi-square, and of F: incomplete gamma and beta functions by continued fractions
// (Abramowitz and Stegun 6.5.29, 6.5.31, 26.5.8), their leading factor by C. Loader's deviances
// (2000), so that large degrees of freedom lose nothing.
Real ChiUpper(Real df, Real chi);
Real FUpper(Real d1, Real d2, Real F);
Real StudentUpper(Real df, Real t);
Real StudentUpperInverse(Real df, Real p);

// The mean of f(s) over the standard deviation s of a sample with that many degrees of freedom from
// a population with standard deviation 1.
Real MeanOverChi(Real df, const std::function<Real(Real s)>& f);

// P(T' <= K sqrt(f + 1)) with noncentrality z sqrt(f + 1): quadrature of the normal integral over
// the chi density in its logarithm.
Real NoncentralLower(Real f, Real z, Real K);
// The K, or the z, at which that is `confidence` (as a fraction).
Real NoncentralFactor(Real f, Real z, Real confidence);
Real NoncentralQuantile(Real f, Real K, Real confidence);

// Owen's T(h, a), by quadrature over the angle.
Real OwenT(Real h, Real a);

}  // namespace accuracy::truth
