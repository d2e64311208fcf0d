#pragma once

#include <cstdint>
#include <functional>

namespace ui {

// Which steps of a search are painted. No display shows more than some sixty pictures a second: a
// search with a thousand steps paints the first of them, and goes on at that pace.
class Pace {
 public:
  // Milliseconds since some moment; a test may stop it.
  std::function<std::int64_t()> now = SteadyMilliseconds;

  // The next step is the first of a search.
  void Restart() { painted_ = 0; }
  // Whether the step at hand is to be painted; counts it when it is.
  bool IsDue();

 private:
  static std::int64_t SteadyMilliseconds();

  int painted_ = 0;
  std::int64_t last_ = 0;
};

}  // namespace ui
