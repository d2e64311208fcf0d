#include "ucl/mean_limit.h"

#include <cmath>
#include <utility>

#include "base/fault.h"
#include "stats/estimators.h"
#include "ucl/jahr.h"
#include "ucl/land_exact.h"

namespace ucl {
namespace {

constexpr double kNearestTail = 1E-11;  // the root of a smaller p, or 1 - p, lies at infinity
constexpr double kLastRange = 0.0001;   // percent

double Limit(const ExposureSession& s) {
  if (!s.OELV) fault::Throw(FaultKind::InvalidOperation);
  return *s.OELV;
}

// How far the trial's limit lies above OELV on the logarithmic scale; only its sign counts.
double Excess(const ExposureSession& s, double LnOELV, UCLBAS::LandWatch& watch) {
  const double p = 1 - s.LandConfidence / 100;
  if (p < kNearestTail) return 1;
  if (p > 1 - kNearestTail) return -1;
  return UCLBAS::LandExactUCL(0.5, s.df, s.LnGSD, s.LnGM, s.LandConfidence, watch).UCL - LnOELV;
}

// Halves towards the confidence whose limit equals OELV; returns the number of trials.
int SearchConfidence(ExposureSession& s, UCLBAS::LandWatch& watch) {
  const double LnOELV = Log(Limit(s));
  double LandLow = 0;
  double LandHigh = 100;
  int halvings = 0;
  do {
    ++halvings;
    if (Excess(s, LnOELV, watch) < 0) {
      LandLow = s.LandConfidence;
      s.LandConfidence = (s.LandConfidence + LandHigh) / 2;
    } else {
      LandHigh = s.LandConfidence;
      s.LandConfidence = (s.LandConfidence + LandLow) / 2;
    }
  } while (std::abs(LandLow - LandHigh) >= kLastRange);
  return halvings;
}

LandResult Searched(ExposureSession& s, UCLBAS::LandWatch& watch) {
  LandResult result;
  JahrLimits(s);
  result.Refusal = LandRefusal(s.M, s.D);
  if (!result.Refusal.empty()) {
    s.TestTag = "";
    return result;
  }
  s.LandConfidence = 100 - s.PercEx;
  result.Halvings = SearchConfidence(s, watch);
  const UCLBAS::LandLimit limit = UCLBAS::LandExactUCL(0.5, s.df, s.LnGSD, s.LnGM, s.D, watch);
  s.UCL = limit.UCL;
  result.LandConfidence = s.LandConfidence;
  result.A = 100 - s.LandConfidence;
  result.UCL = limit.UCL;
  result.Factor = limit.Factor;
  return result;
}

}  // namespace

bool LandIsOffered(double M, double D) { return M > 2 && M < 1001 && D >= 0.95 && D <= 99.75; }

std::string LandRefusal(double M, double D) {
  std::string text;
  if (!(M >= 3 && M <= 1000)) text = "Sample Size out of range. ";
  if (D < 0.95 || D > 99.75) text = "Desired Confidence U out of range. ";
  if (!text.empty()) text += "Use Jahr's approximate method";
  return text;
}

void MeanStatistics(ExposureSession& s) {
  s.LnGM = Log(s.GM);
  s.LnGSD = Log(s.GSD);
  s.GMu = StatFWinBAS::GMUnbiased(s, std::as_const(s.GM), std::as_const(s.GSD));
  s.AMu =
      StatFWinBAS::FinneyMeanMVU(std::as_const(s.df), std::as_const(s.GM), std::as_const(s.GSD));
}

void JahrLimits(ExposureSession& s) {
  const JahrLimit limit = JahrUCL(s.AMu, s.GSD, s.df, s.D, Limit(s));
  s.UCL = limit.UCL;
  s.PercEx = limit.PercEx;
}

LandResult LandCmb(ExposureSession& s, UCLBAS::LandWatch& watch) {
  const double UCL = s.UCL;
  const double PercEx = s.PercEx;
  s.TestTag = "Ex";
  try {
    return Searched(s, watch);
  } catch (const RunTimeError&) {
    s.UCL = UCL;
    s.PercEx = PercEx;
    s.TestTag = "";
    throw;
  }
}

}  // namespace ucl
