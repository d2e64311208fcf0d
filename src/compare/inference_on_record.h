#pragma once

#include "compare/inference.h"

// The comparison on a whole record, as session scripts call it.
namespace compare {

// Writes df2 and, with a reference sample, GSDChoice.
InferenceResult Inference(ExposureSession& s, const Question& ask);

Dispersion SampleDispersion(const ExposureSession& s);
Dispersion PopulationDispersion(const ExposureSession& s);
Location SampleLocation(const ExposureSession& s);
Location PopulationLocation(const ExposureSession& s);
Combined CombinedStatistics(const ExposureSession& s);

}  // namespace compare
