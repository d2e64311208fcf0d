#pragma once

#include "ucl/mean_limit.h"

// The limits of the mean on a whole record, as session scripts call them.
namespace ucl {

// Writes LnGM, LnGSD, GMu and AMu.
void TakeMeanStatistics(ExposureSession& s);
// From AMu of the record; writes UCL and PercEx. After a fault both keep their values.
void JahrLimits(ExposureSession& s);
// Writes UCL (Land's), PercEx (Jahr's), LandConfidence and TestTag, which is empty when the search
// was refused. A fault leaves UCL and PercEx as they were and TestTag empty, and goes on.
LandResult LandCmb(ExposureSession& s, UCLBAS::LandWatch& watch);
LandResult LandCmb(ExposureSession& s);

}  // namespace ucl
