#include "session/exposure_session.h"

#include "session/results.h"

TestBasis BasisOf(const ExposureSession& s) {
  TestBasis basis;
  static_cast<Sample&>(basis) = {s.M, s.df, s.GM, s.GSD, s.RegressionOn, s.NInRange};
  static_cast<Limits&>(basis) = {s.OELV, s.U, s.D};
  return basis;
}

ComparisonBasis ComparisonBasisOf(const ExposureSession& s) {
  return {BasisOf(s), s.CompareMode, s.GSDChoice, s.M2, s.GM2, s.GSD2};
}
