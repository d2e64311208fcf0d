#pragma once

#include <string>
#include <vector>

#include "session/exposure_session.h"

// One calculation on a session, held against what a user may meet: a result that is finite and in
// its range, or one of the texts that the method has for such a case, after a bounded number of
// evaluations. Each returns what it found wrong; empty is good.
namespace sessions {

using Complaints = std::vector<std::string>;

struct Most {
  int toleranceSearch = 0;  // most evaluations that a search took
  int fractionSearch = 0;
  int sampleSize = 0;
  int studentPasses = 0;
  int landEvaluations = 0;  // of Land's probability, one whole button press
  int landSearches = 0;     // sessions that were not refused
};

Complaints PlayLeidel(ExposureSession s);
Complaints PlayWilks(ExposureSession s, Most& most);
Complaints PlayEn689(ExposureSession s, Most& most);
Complaints PlaySampleSize(ExposureSession s, Most& most);
Complaints PlayComparison(ExposureSession s);
Complaints PlayJahr(ExposureSession s);
Complaints PlayLand(ExposureSession s, Most& most);

}  // namespace sessions
