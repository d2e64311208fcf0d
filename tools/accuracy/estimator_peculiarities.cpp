#include <cmath>

#include "session/exposure_session.h"
#include "session/moments.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/estimator_sources.h"
#include "tools/accuracy/truth/lognormal.h"

namespace accuracy {
namespace {

// Of a lognormal population, whose variance has exp(L squared).
Real PopulationDeviation(Real, Real GM, Real GSD) {
  const Real L = std::log(GSD);
  return GM * std::sqrt(std::exp(L * L) * std::expm1(L * L));
}

double Deviation(double df, double GM, double GSD) { return LinearMomentsOf(df, GM, GSD).SDlin; }

Search LookAtBias() {
  Search search = LookAtEstimator(1, 1.001, 4, GMUnbiasedOf, truth::GMUnbiased);
  search.axes[1] = {"GM", 1, 1};
  return search;
}

// A series of M outcomes with equal steps between their logarithms, of which N lie in the range.
Search LookAtRange() {
  Search search;
  search.axes = {{"M", 3, 2000, 1}, {"N", 1, 2000, 1}};
  search.call = [](const Point& at) {
    ExposureSession s;
    s.M = at[0];
    s.DetecOn = true;
    s.NInRange = static_cast<std::int16_t>(at[1]);
    s.C = {0};
    for (int i = 1; i <= at[0]; ++i) s.C.push_back(std::exp(i / at[0]));
    DegreesOfFreedom(s);
    double GM = 0, GSD = 0;
    LogMoments(s, GM, GSD);
    return std::log(GSD);
  };
  search.truth = [](const Point& at) {
    const Real M = at[0];
    return std::sqrt((M + 1) / (12 * M));
  };
  search.takes = [](const Point& at) { return at[1] <= at[0]; };
  search.tries = 1000;
  return search;
}

}  // namespace

std::vector<Entry> EstimatorPeculiarities() {
  return {
      {"LinearMoments",
       "SDlin from GM and GSD, GSD to 4",
       "e is exp(L squared / 2), where the standard deviation of a lognormal population has exp(L "
       "squared)",
       Measure::Relative,
       EstimatorTruth("population deviation", 1, 4, Deviation),
       {},
       LookAtEstimator(1, 1.001, 4, Deviation, PopulationDeviation)},
      {"GMUnbiased",
       "GSD to 4, as a part of GM",
       "GM 0F1(df / 2 + 1; -L squared / 4), where the unbiased estimate is GM 0F1(df / 2; -L "
       "squared "
       "df / (4 (df + 1))); for a large GSD and a small df either is negative",
       Measure::Absolute,
       {},
       {},
       LookAtBias()},
      {"LogMoments",
       "a detection range with N of M in range: ln GSD",
       "the squares of all M outcomes are divided by the reduced df of the range, where they have "
       "M - 1",
       Measure::Relative,
       {},
       {},
       LookAtRange()},
  };
}

}  // namespace accuracy
