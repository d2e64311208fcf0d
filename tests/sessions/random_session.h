#pragma once

#include <cstdint>
#include <string>

#include "session/exposure_session.h"

namespace sessions {

// Session number `number` of an endless row: sample size, statistics, limits and a reference
// sample, each anywhere in the range that its field accepts, the borders often. The same number
// always gives the same session.
ExposureSession RandomSession(std::uint64_t number);

// The whole session as one line, from which it can be set up again.
std::string Described(std::uint64_t number, const ExposureSession& s);

// ln(OELV / GM) / ln(GSD), as the compliance screen hands it to its tests.
double StandardisedDistance(const ExposureSession& s);

}  // namespace sessions
