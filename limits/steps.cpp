#include "limits/steps.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/fault.h"

namespace limits {
namespace {

// A row of the step tables. The grid is 1 / scale for values up to 10 and scale above, so that
// every factor is a whole number and exact.
struct StepRow {
  double bound;  // down: the row holds up to and with it; up: from it on
  double scale;
  bool coarse;   // the value is divided by scale, not multiplied
  double nudge;  // keeps a value on the grid from falling to the line below
  double step;
};

constexpr double kWithoutBound = HUGE_VAL;

// The first row that fits applies.
constexpr StepRow kDown[] = {
    {0.0001, 1000000, false, 0.01, 0.00001},
    {0.001, 100000, false, 0.01, 0.0001},
    {0.01, 10000, false, 0.01, 0.001},
    {0.1, 1000, false, 0.01, 0.01},
    {1, 100, false, 0.01, 0.1},
    {10, 10, false, 0.001, 1},
    {100, 1, true, 0.0001, 10},
    {1000, 10, true, 0.00001, 100},
    {kWithoutBound, 100, true, 0.000001, 1000},
};
constexpr StepRow kUp[] = {
    {1000, 100, true, 0.000001, 1000},  {100, 10, true, 0.00001, 100},
    {10, 1, true, 0.0001, 10},          {1, 10, false, 0.001, 1},
    {0.1, 100, false, 0.01, 0.1},       {0.01, 1000, false, 0.01, 0.01},
    {0.001, 10000, false, 0.01, 0.001}, {0.0001, 100000, false, 0.01, 0.0001},
};

constexpr double kLowest = 1E-10;
constexpr double kHighest = 1E+10;
constexpr double kLastStepDown = 2E-10;     // below it a step down ends at the lowest value
constexpr double kLastStepUp = 9999999000;  // above it a step up ends at the highest value

// `v` cut down to the grid of its row.
double OnGrid(double v, const StepRow& row) {
  if (row.coarse) return Checked(std::trunc(v / row.scale + row.nudge) * row.scale);
  return Checked(std::trunc(v * row.scale + row.nudge) / row.scale);
}

LimitStep StepDown(double v) {
  if (v < kLastStepDown) return {kLowest, true};
  const StepRow& row =
      *std::find_if(std::begin(kDown), std::end(kDown) - 1,
                    [v](const StepRow& candidate) { return v <= candidate.bound; });
  return {std::max(0.0, OnGrid(v, row) - row.step)};
}

LimitStep StepUp(double v) {
  if (v > kLastStepUp) return {kHighest, true};
  const auto* row = std::find_if(std::begin(kUp), std::end(kUp),
                                 [v](const StepRow& candidate) { return v >= candidate.bound; });
  if (row == std::end(kUp)) return {v};
  return {std::min(kHighest, row->step + OnGrid(v, *row))};
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
