#pragma once

#include "tools/accuracy/search.h"

// Jahr's and Land's routines over their domains.
namespace accuracy {

// The limit for odd df from 5 to 999, or for every other; the exceedance.
Search LookAtJahrLimit(bool odd);
Search LookAtJahrExceedance();

// The density where it is no smaller than a double of full precision, and its integral from the
// peak.
Search LookAtLandDensity();
Search LookAtLandIntegral();
// The probability and what a limit gives, for nu of `from` to `to`.
Search LookAtLandProbability(double from, double to);
Search LookAtLandFactor(double from, double to);
Search LookAtLandLimit(double from, double to);
// What the button gives.
Search LookAtLandButton(bool limit);

}  // namespace accuracy
