#pragma once

#include <optional>

// The up-down pairs of the limits screen.
namespace limits {

// Where a click on the pair beside the limit value leads.
struct LimitStep {
  double value = 0;
  bool atBound = false;  // the end of the range was met: the caller tells text 2160
};

// One click beside the limit value: `direction` is 1 for up, -1 for down. The value is laid on the
// grid of its decade and moved by one step of the decade. Domain 1E-10 to 1E+10, in the unit of
// the series; an unset limit becomes 1. No step leads below 0 or above 1E+10, and below 0.0001 a
// step up leaves the value alone. Every result is the double that the formula of its row gives.
LimitStep StepOELV(const std::optional<double>& v, int direction);

// One click beside the exceedance percentage or the confidence, in percent: 0.25 up or down, from
// below 99.5 or above 0.25 only; a step down stops at 0.01. Exact in doubles.
double StepPercent(double v, int direction);

}  // namespace limits
