#pragma once

#include "screen/clock.h"

namespace ui {

// The system's clock.
class Clock final : public screen::Clock {
 public:
  base::DateTime Now() const override;
};

}  // namespace ui
