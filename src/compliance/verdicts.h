#pragma once

#include <optional>
#include <string>
#include <vector>

#include "session/exposure_session.h"

// What every test says of the present sample and limits, side by side: no button is pressed for it
// and the record stays as it is.
namespace compliance {

struct Verdict {
  std::string test;
  std::string estimate;  // its percentage with what that is; empty where the test gives none
  std::string limit;     // upper tolerance limit with its unit; empty where the test gives none
  std::optional<bool> compliance;
  std::string words;  // of the verdict, or why there is none
};

struct Verdicts {
  std::vector<Verdict> rows;  // in the order of the buttons
  std::string why;            // they differ
};

// A test that can't be computed has the fault as its words.
Verdicts VerdictsOf(const ExposureSession& s);

}  // namespace compliance
