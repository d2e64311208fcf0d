#pragma once

#include "tools/accuracy/search.h"

// The routines of the compliance tests over their domains.
namespace accuracy {

Search LookAtWilksExceedance();
Search LookAtWilksLimit();
Search LookAtConfidence(double from, double to);
Search LookAtFactor(double from, double to);
Search LookAtFraction(double from, double to);
// Where the fraction has a text in place of a number.
Search LookAtFractionText();

}  // namespace accuracy
