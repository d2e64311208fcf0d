#include <cstdint>

#include "drive/call.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"
#include "ucl/land_probability.h"
#include "ucl/land_search.h"
#include "ucl/mean_on_record.h"

namespace drive {
namespace {

void Integrand(Call& c) {
  c.Tell(UCLBAS::LandIntegrand(c.Number(0), c.Number(1), c.Number(2), c.Number(3), c.Number(4)));
}

void Simpson(Call& c) {
  double result = 0;
  UCLBAS::LandSimpson(c.Number(0), c.Number(1), c.Number(2), c.Number(3), c.Number(4), c.Number(5),
                      result);
  c.Tell(result);
}

// Tells f1, f2, C and status, all of which it changes.
void RootSearch(Call& c) {
  double& f1 = c.Ref(4);
  double& f2 = c.Ref(5);
  double& C = c.Ref(7);
  auto status = static_cast<std::int16_t>(c.Int(8));
  UCLBAS::LandRootSearch(c.Number(0), c.Number(1), c.Ref(2), c.Ref(3), f1, f2, c.Number(6), C,
                         status);
  for (const double value : {f1, f2, C}) c.Tell(value);
  c.Tell(int{status});
}

void ExactUCL(Call& c) {
  const UCLBAS::LandLimit limit =
      UCLBAS::LandExactUCL(c.Number(0), c.Number(1), c.Number(2), c.Number(3), c.Number(4));
  c.s.UCL = limit.UCL;
  for (const double value : {limit.UCL, limit.C, limit.Factor}) c.Tell(value);
}

void Jahr(Call& c) {
  ucl::JahrLimits(c.s);
  c.Tell(c.s.UCL);
  c.Tell(c.s.PercEx);
}

void Land(Call& c) {
  const ucl::LandResult result = ucl::LandCmb(c.s);
  if (!result.Refusal.empty()) {
    c.Tell(result.Refusal);
    return;
  }
  for (const double value : {result.A, result.UCL, result.Factor}) c.Tell(value);
  c.Tell(result.Halvings);
}

void Statistics(Call& c) {
  ucl::TakeMeanStatistics(c.s);
  for (const double value : {c.s.LnGM, c.s.LnGSD, c.s.GMu, c.s.AMu}) c.Tell(value);
}

}  // namespace

const std::vector<Routine>& MeanRoutines() {
  static const std::vector<Routine> routines = {
      {"SignNonZero", 1, [](Call& c) { c.Tell(UCLBAS::SignNonZero(c.Number(0))); }},
      {"SmallerOf", 2, [](Call& c) { c.Tell(UCLBAS::SmallerOf(c.Number(0), c.Number(1))); }},
      {"LandIntegrand", 5, Integrand},
      {"LandSimpson", 6, Simpson},
      {"LandProbability", 3,
       [](Call& c) { c.Tell(UCLBAS::LandProbability(c.Number(0), c.Number(1), c.Number(2))); }},
      {"LandRootSearch", 9, RootSearch},
      {"LandExactUCL", 5, ExactUCL},
      {"MeanStatistics", 0, Statistics},
      {"JahrLimits", 0, Jahr},
      {"LandCmb", 0, Land},
  };
  return routines;
}

}  // namespace drive
