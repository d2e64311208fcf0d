#pragma once

#include <vector>

#include "tools/accuracy/truth/real.h"

// Normal order statistics and the weights of Shapiro and Wilk's test.
namespace accuracy::truth {

// The expected value of the r-th largest of n standard normal deviates.
Real OrderStatistic(int n, int r);

// The weights a(1) to a(M / 2) by the published formula, from the program's constants; element 0 is
// not used.
const std::vector<Real>& ShapiroWeights(int M);

// A polynomial of those constants.
Real RoystonPoly(Real x, int degree, int column);

}  // namespace accuracy::truth
