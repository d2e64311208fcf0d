#include "ucl/mean_on_record.h"

namespace ucl {

void TakeMeanStatistics(ExposureSession& s) {
  const MeanStatistics mean = MeanStatisticsOf(BasisOf(s));
  s.LnGM = mean.LnGM;
  s.LnGSD = mean.LnGSD;
  s.GMu = mean.GMu;
  s.AMu = mean.AMu;
}

void JahrLimits(ExposureSession& s) {
  const JahrLimit limit = JahrLimits(BasisOf(s), s.AMu);
  s.UCL = limit.UCL;
  s.PercEx = limit.PercEx;
}

LandResult LandCmb(ExposureSession& s, UCLBAS::LandWatch& watch) {
  s.TestTag = Extrapolation::None;
  const LandResult result = LandCmb(BasisOf(s), watch);
  s.UCL = result.jahr.UCL;
  s.PercEx = result.jahr.PercEx;
  if (!result.Refusal.empty()) return result;
  s.TestTag = Extrapolation::Land;
  s.UCL = result.UCL;
  s.LandConfidence = result.LandConfidence;
  return result;
}

LandResult LandCmb(ExposureSession& s) {
  UCLBAS::LandWatch watch;
  return LandCmb(s, watch);
}

}  // namespace ucl
