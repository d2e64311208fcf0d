#pragma once

#include <string>
#include <vector>

#include "session/exposure_session.h"

// What the live line says of the series and its estimates; empty where there is nothing to say.
namespace navigation {

// "3, 7 and 12"; a long list is cut.
std::string NumberList(const std::vector<int>& numbers);

// The rows that are still to be filled.
std::string MissingRows(const ExposureSession& s);
// Outcomes beyond the sample size stay until the next edit.
std::string LeftOut(const ExposureSession& s);
// Why the series gives no GM and GSD.
std::string NoEstimates(const ExposureSession& s);
// The estimates are those of all outcomes, although some lie outside the detection range.
std::string OutsideRange(const ExposureSession& s);
// Whose estimates are in force under a detection range.
std::string InForce(const ExposureSession& s);

}  // namespace navigation
