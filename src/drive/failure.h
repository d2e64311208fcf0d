#pragma once

#include <stdexcept>

namespace drive {

// A command that could not be done, or an expectation that does not hold. Ends the script.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace drive
