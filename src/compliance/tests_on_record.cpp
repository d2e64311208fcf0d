#include "compliance/tests_on_record.h"

#include "catalog/own_texts.h"

namespace compliance {

WilksResult WilksTest(ExposureSession& s, double Ur) {
  s.TestTag = Extrapolation::Wilks;
  const WilksResult result = WilksCalculation(BasisOf(s), Ur);
  s.PercEx = result.PercEx;
  if (result.limit.clamp == Clamp::None)
    s.UTL = result.limit.UTL;
  else
    s.MsgText = ClampText(result.limit.clamp);
  return result;
}

En689OnRecord En689Test(ExposureSession& s, double Ur, const En689Progress& progress) {
  s.TestTag = Extrapolation::En689;
  const En689OnRecord result{En689Calculation(BasisOf(s), Ur, progress), {}};
  if (result.limit) {
    s.PercEx = result.PercEx;
    s.UTL = result.limit->UTL;
  } else {
    s.MsgText = OwnText(Own::CoverageTooLow);
  }
  return {result, En689Complies(s)};
}

std::optional<bool> En689Complies(const ExposureSession& s) {
  return En689Complies(s.df, s.UTL, s.OELV.value_or(0));
}

ToleranceSearch En689ToleranceLimit(const ExposureSession& s, const En689Progress& progress) {
  return En689ToleranceLimit(BasisOf(s), progress);
}

FractionSearch En689Fraction(const ExposureSession& s, double Ur, const En689Progress& progress) {
  return En689Fraction(BasisOf(s), Ur, progress);
}

SampleSizeResult OptimiseSampleSize(ExposureSession& s, const SampleSizeProgress& progress) {
  if (s.TestTag != Extrapolation::Wilks) return {};
  const SampleSizeResult result = OptimiseSampleSize(BasisOf(s), progress);
  if (result.outcome == SampleSizeCase::CoverageTooLow)
    s.MsgText = OwnText(Own::CoverageTooLow);
  else
    s.PercEx = result.PercEx;
  return result;
}

}  // namespace compliance
