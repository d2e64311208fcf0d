#pragma once

#include <functional>
#include <string>
#include <vector>

#include "session/exposure_session.h"

namespace bench {

// Something that a user waits for, without what is painted meanwhile.
struct Calculation {
  std::string name;
  std::function<void()> run;  // once; every time the same, and without copies of what it is given
};

// The coefficients must be loaded.
std::vector<Calculation> Calculations();

// A sample of typed statistics, with all that the tests and the mean need.
ExposureSession Known(double M, double GSD, double OELV);

}  // namespace bench
