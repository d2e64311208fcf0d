#include "compare/steps.h"

#include <cmath>
#include <span>

#include "session/step_grid.h"

namespace compare {
namespace {

// The ends of a range with the texts that tell them.
struct Ends {
  double lowest;
  int lowestText;
  double highest;
  int highestText;
};

constexpr Ends kGM2 = {0.0001, 705, 10000, 710};
constexpr Ends kGSD2 = {1.001, 715, 1000, 720};

constexpr double kLastStepDownGM2 = 0.0002;  // below it a step down ends at the smallest value
constexpr double kLastStepUpGM2 = 9900;      // from it on a step up ends at the largest value

// Both of GSD2's directions stand on the same grid, with their bounds reversed.
constexpr steps::Row kDownGSD2[] = {
    {1.01, 1000, false, 0.1, 0.001}, {1.1, 100, false, 0.01, 0.01},
    {10, 10, false, 0.001, 0.1},     {50, 2, false, 0.0002, 1},
    {100, 1, true, 0.0001, 5},       {HUGE_VAL, 10, true, 0.00001, 10},
};
constexpr steps::Row kUpGSD2[] = {
    {100, 10, true, 0.00001, 10},   {50, 1, true, 0.0001, 5},
    {10, 2, false, 0.0002, 1},      {1.1, 10, false, 0.001, 0.1},
    {1.01, 100, false, 0.01, 0.01}, {-HUGE_VAL, 1000, false, 0.1, 0.001},
};

ReferenceStep HeldAbove(double v, const Ends& ends) {
  return v < ends.lowest ? ReferenceStep{ends.lowest, ends.lowestText} : ReferenceStep{v};
}

ReferenceStep HeldBelow(double v, const Ends& ends) {
  return v > ends.highest ? ReferenceStep{ends.highest, ends.highestText} : ReferenceStep{v};
}

}  // namespace

ReferenceStep StepGM2(double v, int direction) {
  if (direction > 0) {
    if (v >= kLastStepUpGM2) return {kGM2.highest, kGM2.highestText};
    return HeldBelow(steps::UpByDecade(v).value_or(v), kGM2);
  }
  if (v < kLastStepDownGM2) return {kGM2.lowest, kGM2.lowestText};
  return HeldAbove(steps::DownByDecade(v), kGM2);
}

ReferenceStep StepGSD2(double v, int direction) {
  if (direction > 0) return HeldBelow(steps::Up(kUpGSD2, v).value_or(v), kGSD2);
  return HeldAbove(steps::Down(kDownGSD2, v), kGSD2);
}

ReferenceStep StepM2(double v, int direction) {
  constexpr double lowest = 2;
  constexpr double highest = 30000;
  if (direction > 0) return {v < highest ? v + 1 : v};
  return {v > lowest ? v - 1 : v};
}

}  // namespace compare
