#pragma once

// The up-down pairs of the reference values.
namespace compare {

// Where a click on a pair leads.
struct ReferenceStep {
  double value = 0;
  int text = 0;  // catalogue row that tells the end that was met, 0 within the range
};

// One click beside a reference value: `direction` is 1 for up, -1 for down. A step down ends at the
// smallest value, a step up at the largest; from beyond an end it leads back one step. Every other
// result is the double that the formula of its row gives.

// GM2, 0.0001 to 10000 in the unit of the series, by one unit of the decade. Below 0.0001 a step
// up leaves the value alone.
ReferenceStep StepGM2(double v, int direction);

// GSD2, 1.001 to 1000: by 0.001 near 1, by 10 above 100.
ReferenceStep StepGSD2(double v, int direction);

// M2, a whole number from 2 to 30000, by 1; its ends are told by no text.
ReferenceStep StepM2(double v, int direction);

}  // namespace compare
