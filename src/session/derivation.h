#pragma once

#include "session/exposure_session.h"

// What follows from what the user gave. A pure function: the same given, the same derived.

struct Consequences {
  Given given;  // brought into order: a complete series sorted, its median, the ends of its range
  Derived derived;
};

// Domain: every given. Faults where a statistic is no number; nothing has changed then.
Consequences ConsequencesOf(Given given);

// Whether C(1) to C(M) hold a sample that can be evaluated: M of 2 to 2000, and every row filled.
bool CompleteSeries(const Given& given);

// The number of outcomes of the series itself, also while another M is tried on top of it.
int SeriesCount(const Given& given);
// How many ends of the series the range cuts off, in words: "Single censored".
std::string CensoringLabel(const Given& given);
// Its name, which Modify sets aside for another.
const std::string& SeriesName(const Given& given);
