#pragma once

#include "ucl/land_watch.h"

namespace UCLBAS {

struct LandLimit {
  double UCL = 0;     // on the logarithmic scale
  double C = 0;       // the root of Land's equation: UCL is theta + C, or theta - C
  double Factor = 0;  // Land's factor H, C sqrt(nu) / s
};

// Exact one-sided confidence limit of mean + lambda s squared, the upper one; for lambda = 0.5 the
// natural logarithm of the upper confidence limit of the lognormal arithmetic mean.
// Domain: nu > 0, s > 0, which the caller holds; 0 < confidence < 100 in percent. At 0 and 100 the
// root lies at infinity and only rounding or a fault ends the search; 1 - confidence / 100 should
// stay within 1E-11 of neither. Faults of LandRootSearch come through.
// Changes: `watch`.
// Source: C.E. Land (1975), Selected Tables in Mathematical Statistics 3, 385-419; the factor is
// found anew for each sample.
// Accuracy for s from 0.05 to 6.9 and confidences from 0.95 to 99.75. The factor, as a part of it
// or of 1 where it is smaller: nu from 3: 3.8E-06, nu 2: 4.3E-06: the stop of the search at 1E-5
// decides. With nu 1 it is the probability: 2.0E-03. UCL itself, absolute: nu from 3: 1.1E-03, nu
// 2: 9.8E-03 (s 6.9).
LandLimit LandExactUCL(double lambda, double nu, double s, double mean, double confidence,
                       LandWatch& watch);

inline LandLimit LandExactUCL(double lambda, double nu, double s, double mean, double confidence) {
  LandWatch watch;
  return LandExactUCL(lambda, nu, s, mean, confidence, watch);
}

}  // namespace UCLBAS
