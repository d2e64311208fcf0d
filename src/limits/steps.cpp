#include "limits/steps.h"

#include <algorithm>

#include "session/step_grid.h"

namespace limits {
namespace {

constexpr double kLowest = 1E-10;
constexpr double kHighest = 1E+10;
constexpr double kLastStepDown = 2E-10;     // below it a step down ends at the lowest value
constexpr double kLastStepUp = 9999999000;  // above it a step up ends at the highest value

LimitStep StepDown(double v) {
  if (v < kLastStepDown) return {kLowest, true};
  return {std::max(0.0, steps::DownByDecade(v))};
}

LimitStep StepUp(double v) {
  if (v > kLastStepUp) return {kHighest, true};
  return {std::min(kHighest, steps::UpByDecade(v).value_or(v))};
}

}  // namespace

LimitStep StepOELV(const std::optional<double>& v, int direction) {
  if (!v) return {1};
  return direction > 0 ? StepUp(*v) : StepDown(*v);
}

double StepPercent(double v, int direction) {
  constexpr double step = 0.25;
  constexpr double lowest = 0.01;
  constexpr double lastUp = 99.5;
  if (direction > 0) return v < lastUp ? v + step : v;
  return v > step ? std::max(lowest, v - step) : v;
}

}  // namespace limits
