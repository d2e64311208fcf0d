#pragma once

#include <functional>
#include <vector>

#include "tests/walks/step.h"

namespace walks {

// Plays the steps; those that were done when it fails still, and nothing when it does not.
using Fails = std::function<std::vector<Step>(const std::vector<Step>&)>;

// The fewest steps that still fail, none of which could be left out, by halves, then quarters and
// so on. Source: A. Zeller and R. Hildebrandt (2002), Simplifying and isolating failure-inducing
// input.
std::vector<Step> Shrunk(std::vector<Step> steps, const Fails& fails);

}  // namespace walks
