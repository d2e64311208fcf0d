#include "ucl/mean_limit.h"

#include <cmath>

#include "base/fault.h"
#include "catalog/own_texts.h"
#include "stats/estimators.h"
#include "ucl/land_exact.h"

namespace ucl {
namespace {

constexpr double kNearestTail = 1E-11;  // the root of a smaller p, or 1 - p, lies at infinity
constexpr double kLastRange = 0.0001;   // percent

double Limit(const Limits& limits) {
  if (!limits.OELV) fault::Throw(FaultKind::InvalidOperation);
  return *limits.OELV;
}

// The search for the confidence whose limit equals OELV.
class ConfidenceSearch {
 public:
  ConfidenceSearch(const TestBasis& basis, const MeanStatistics& statistics,
                   UCLBAS::LandWatch& watch)
      : df_(basis.df), statistics_(statistics), LnOELV_(Log(Limit(basis))), watch_(watch) {}

  // Halves towards it from `LandConfidence` on; returns the number of trials.
  int Run(double& LandConfidence) {
    double LandLow = 0;
    double LandHigh = 100;
    int halvings = 0;
    do {
      ++halvings;
      if (Excess(LandConfidence) < 0) {
        LandLow = LandConfidence;
        LandConfidence = (LandConfidence + LandHigh) / 2;
      } else {
        LandHigh = LandConfidence;
        LandConfidence = (LandConfidence + LandLow) / 2;
      }
    } while (std::abs(LandLow - LandHigh) >= kLastRange);
    return halvings;
  }

  UCLBAS::LandLimit LimitAt(double confidence) {
    return UCLBAS::LandExactUCL(0.5, df_, statistics_.LnGSD, statistics_.LnGM, confidence, watch_);
  }

 private:
  // How far the trial's limit lies above OELV on the logarithmic scale; only its sign counts.
  double Excess(double confidence) {
    const double p = 1 - confidence / 100;
    if (p < kNearestTail) return 1;
    if (p > 1 - kNearestTail) return -1;
    return LimitAt(confidence).UCL - LnOELV_;
  }

  double df_;
  const MeanStatistics& statistics_;
  double LnOELV_;
  UCLBAS::LandWatch& watch_;
};

}  // namespace

bool LandIsOffered(double M, double D) { return M > 2 && M < 1001 && D >= 0.95 && D <= 99.75; }

std::string LandRefusal(double M, double D) {
  std::string text;
  if (!(M >= 3 && M <= 1000)) text = OwnText(Own::LandSize);
  if (D < 0.95 || D > 99.75) text = OwnText(Own::LandConfidence);
  if (!text.empty()) text += OwnText(Own::LandUseJahr);
  return text;
}

MeanStatistics MeanStatisticsOf(const Sample& sample) {
  return {Log(sample.GM), Log(sample.GSD),
          StatFWinBAS::GMUnbiased(sample.df, sample.GM, sample.GSD).value_or(0),
          StatFWinBAS::FinneyMeanMVU(sample.df, sample.GM, sample.GSD)};
}

JahrLimit JahrLimits(const TestBasis& basis, double AMu) {
  return JahrUCL(AMu, basis.GSD, basis.df, basis.D, Limit(basis));
}

LandResult LandCmb(const TestBasis& basis, UCLBAS::LandWatch& watch) {
  const MeanStatistics statistics = MeanStatisticsOf(basis);
  LandResult result;
  result.jahr = JahrLimits(basis, statistics.AMu);
  result.Refusal = LandRefusal(basis.M, basis.D);
  if (!result.Refusal.empty()) return result;
  ConfidenceSearch search(basis, statistics, watch);
  result.LandConfidence = 100 - result.jahr.PercEx;
  result.Halvings = search.Run(result.LandConfidence);
  const UCLBAS::LandLimit limit = search.LimitAt(basis.D);
  result.A = 100 - result.LandConfidence;
  result.UCL = limit.UCL;
  result.Factor = limit.Factor;
  return result;
}

}  // namespace ucl
