#pragma once

#include <map>
#include <string>

#include "session/exposure_session.h"

namespace accuracy {

// The series of series_sorted.csv as records with M and C, by name.
const std::map<std::string, ExposureSession>& Series();

}  // namespace accuracy
