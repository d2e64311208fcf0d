#pragma once

#include "base/date_time.h"

namespace screen {

class Clock {
 public:
  virtual ~Clock() = default;
  // The local date and time.
  virtual base::DateTime Now() const = 0;
};

}  // namespace screen
