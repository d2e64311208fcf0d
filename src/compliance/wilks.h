#pragma once

#include "compliance/compliance_tests.h"

// The compliance test on the "unbiased" estimate of the exceedance, which takes the sample size
// into account through Student's t.
namespace compliance {

// What the box of the exceedance shows in place of exactly 0.
inline constexpr const char* kWilksBelowAllNumbers = "    <1E-16";

// sqrt(1 / (df + 1) + 1), the spread of a next outcome about the sample's mean in units of the
// sample's standard deviation; df at least 1.
double WilksSpread(double df);

// Percent of the exposures above the limit value, expected over samples, 0 to 100: the upper tail
// of Student's t at Ur / sqrt(1 / (df + 1) + 1). `Ur` is the standardised distance of the limit
// from the mean on the log scale, any finite value; `df` at least 1.
// Source: S.S. Wilks (1941), Annals of Mathematical Statistics 12, 91-96; F. Proschan (1953),
// Journal of the American Statistical Association 48, 550-564.
// Accuracy, absolute: 2.0E-12 percent (df 1999), the cancellation of the finite series; a result of
// 0 means less than about 1E-14.
double WilksExceedance(double df, double Ur);

// The verdict on an exceedance in percent: below 5 complies. The limit does not follow U.
bool WilksComplies(double PercEx);

// Beyond which bound a tolerance limit lies.
enum class Clamp { None, Below1E300th, Above1E300 };

struct WilksLimit {
  double WilksFactor = 0;  // Student deviate of the coverage
  Clamp clamp = Clamp::None;
  double UTL = 0;  // in the unit of GM; only without a clamp
};

// Upper tolerance limit GM GSD^g with g = sqrt(1 / (df + 1) + 1) StudentUpperInverse(1 - U / 100),
// which the fraction U / 100 of the exposures stays below on average. U in percent, 0.01 to 99.99.
// The test for a small limit comes first and takes the mirrored limit GM GSD^-g: a very large g
// counts as small. With U below 50, g is negative: then a limit below 1E-300 has no clamp, and one
// below all doubles is 0, which is also what its box shows.
// Accuracy: ln(UTL / GM) at a GSD of 2.5 is off by 1.7E-05 at most (at df 5, U 99.99, by the
// stopping rule of the deviate), from df 1001 on by less than 1E-11.
WilksLimit WilksToleranceLimit(double GM, double GSD, double U, double df);

struct WilksResult {
  double PercEx = 0;  // percent
  bool compliance = false;
  WilksLimit limit;
};

WilksResult WilksCalculation(const TestBasis& basis, double Ur);

// The whole test. A limit beyond the bounds leaves the standing one in its box, with a sentence
// that says so; where none stands, the box shows the bound.
TestResult WilksTest(const TestBasis& basis, const TestRun& how = {});
// What is told of a limit beyond the bounds.
const char* ClampText(Clamp clamp);

extern const ComplianceTest kWilks;

}  // namespace compliance
