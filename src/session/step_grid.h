#pragma once

#include <optional>
#include <span>

// One click of an up-down pair: the value is cut down to the grid of its decade and moved by one
// step of it. The pairs differ in their grids and ends only.
namespace steps {

// A row of a step table. The grid is 1 / scale where the row is fine and scale where it is coarse,
// so that every factor is a whole number and exact.
struct Row {
  double bound;  // down: the row holds up to and with it; up: from it on
  double scale;
  bool coarse;   // the value is divided by scale, not multiplied
  double nudge;  // keeps a value on the grid from falling to the line below
  double step;
};

// The first row that fits applies. A step down below every bound takes the last row; a step up
// below every bound leads nowhere.
double Down(std::span<const Row> rows, double v);
std::optional<double> Up(std::span<const Row> rows, double v);

// On the grid whose lines lie one step of the decade below the value's own, by one unit of the
// decade: from 25 to 35, from 0.3 to 0.4. Exact: the double that the formula of the row gives, for
// any v. Below 0.0001 a step up leads nowhere.
double DownByDecade(double v);
std::optional<double> UpByDecade(double v);

}  // namespace steps
