#include "ui/pace.h"

#include <chrono>

namespace ui {

std::int64_t Pace::SteadyMilliseconds() {
  using std::chrono::duration_cast;
  using std::chrono::milliseconds;
  return duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

bool Pace::IsDue() {
  constexpr int kAtOnce = 60;
  constexpr int kPaceMilliseconds = 16;
  const std::int64_t present = now();
  if (painted_ >= kAtOnce && present - last_ <= kPaceMilliseconds) return false;
  ++painted_;
  last_ = present;
  return true;
}

}  // namespace ui
