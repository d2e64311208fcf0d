#pragma once

#include <string_view>

#include "tools/accuracy/search.h"

// Rankits, weights and scales over their domains.
namespace accuracy {

using TransformOf = double (*)(std::string_view, double);

Search LookAtRankits(double from, double to);
// Only the fourth largest, from a sample of 40 on.
Search LookAtOrderFour();
Search LookAtWeights();
// One way of the scales, there or back: the double logarithm, or all others.
Search LookAtScale(bool there, bool doubled, TransformOf scale);
// The slope on the scale 1/x in a range of a sample of 20, against that of the same outcomes.
Search LookAtMirroredRange();
// The probability of three outcomes against that of the publication.
Search LookAtThree();
double PublishedForThree(double W);

}  // namespace accuracy
