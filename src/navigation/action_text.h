#pragma once

#include <string>

#include "session/exposure_session.h"
#include "session/last_action.h"

namespace navigation {

// What the live line says of an action, other than a click on a closed tab.
std::string ActionText(const ExposureSession& s, const LastAction& action);

}  // namespace navigation
