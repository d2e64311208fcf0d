#pragma once

#include "compliance/en689.h"
#include "compliance/sample_size.h"
#include "compliance/wilks.h"

// The tests on a whole record, as session scripts call them: they take its fields as they stand and
// leave their numbers in it.
namespace compliance {

// Writes TestTag, PercEx and UTL. A limit beyond the bounds leaves UTL as it was and its text in
// MsgText.
WilksResult WilksTest(ExposureSession& s, double Ur);

struct En689OnRecord : En689Result {
  std::optional<bool> compliance;  // absent with df up to 4
};
// Writes TestTag, PercEx and UTL. With U up to 50 the last two stay as they were, MsgText says why,
// and the verdict is on the old UTL.
En689OnRecord En689Test(ExposureSession& s, double Ur, const En689Progress& progress = {});
std::optional<bool> En689Complies(const ExposureSession& s);

ToleranceSearch En689ToleranceLimit(const ExposureSession& s, const En689Progress& progress = {});
FractionSearch En689Fraction(const ExposureSession& s, double Ur,
                             const En689Progress& progress = {});

// Nothing is done behind another test than that of Wilks. Writes PercEx, with U up to 50 MsgText.
SampleSizeResult OptimiseSampleSize(ExposureSession& s, const SampleSizeProgress& progress = {});

}  // namespace compliance
