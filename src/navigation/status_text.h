#pragma once

#include <string>

#include "session/workflow.h"

namespace navigation {

// What the status line below a screen tells of the record: why the start screen has no tabs,
// outcomes that are left out, why there are no estimates, and whose estimates are in force under a
// detection range.
std::string StatusText(const ExposureSession& s);

}  // namespace navigation
