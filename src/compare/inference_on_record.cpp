#include "compare/inference_on_record.h"

namespace compare {

InferenceResult Inference(ExposureSession& s, const Question& ask) {
  s.df2 = s.M2 - 1;
  const InferenceResult result = Inference(ComparisonBasisOf(s), [&](double A) { return ask(A); });
  if (result.combined) s.GSDChoice = result.GSDChoice;
  return result;
}

Dispersion SampleDispersion(const ExposureSession& s) {
  return SampleDispersion(ComparisonBasisOf(s));
}

Dispersion PopulationDispersion(const ExposureSession& s) {
  return PopulationDispersion(ComparisonBasisOf(s));
}

Location SampleLocation(const ExposureSession& s) { return SampleLocation(ComparisonBasisOf(s)); }

Location PopulationLocation(const ExposureSession& s) {
  return PopulationLocation(ComparisonBasisOf(s));
}

Combined CombinedStatistics(const ExposureSession& s) {
  return CombinedStatistics(ComparisonBasisOf(s));
}

}  // namespace compare
