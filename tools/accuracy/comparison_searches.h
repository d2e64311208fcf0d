#pragma once

#include "tools/accuracy/search.h"

// The comparison of two samples, or of a sample and a population, over its domain: sample sizes to
// those that the screen takes, GM and GM2 0.0001 to 10000, GSD and GSD2 1.001 to 1000.
namespace accuracy {

Search LookAtDispersions(bool bySums);
Search LookAtPooled();
// Against the same degrees of freedom, cut to a whole number, or against those uncut.
Search LookAtSeparate(bool cut);
Search LookAtBothGM();
Search LookAtBothGSD();
// What the answer Yes gives against the pooled test.
Search LookAtAnswer();
// The GSD of both against that of the united measurements.
Search LookAtUnited();

}  // namespace accuracy
