#pragma once

#include "compliance/compliance_tests.h"

// The maximum likelihood compliance test: the sample's GM and GSD are taken as the population's.
namespace compliance {

// Percent of the exposure distribution above the limit value, 0 to 100. `Ur` is the standardised
// distance of the limit from the mean on the log scale, ln(OELV / GM) / ln(GSD), any finite value.
// Upper tail of the standard normal distribution; 0 above Ur = 37. Source: Leidel, Busch, Lynch,
// Occupational Exposure Sampling Strategy Manual (1977). As accurate as NormalUpper.
double LeidelExceedance(double Ur);

// The verdict on an exceedance in percent: below 5 complies. The limit does not follow U.
bool LeidelComplies(double PercEx);

// The deviate that the fraction U / 100 of the population stays below; U in percent, 0.01 to 99.99.
double LeidelDeviate(double U);

// Upper tolerance limit GM * GSD ^ deviate, in the unit of GM. Faults beyond a double.
double LeidelToleranceLimit(double GM, double GSD, double deviate);

// The whole test: exceedance, verdict and tolerance limit.
TestResult LeidelTest(const TestBasis& basis, const TestRun& how = {});

extern const ComplianceTest kLeidel;

}  // namespace compliance
