#include "session/step_grid.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"

namespace steps {
namespace {

constexpr double kWithoutBound = HUGE_VAL;

constexpr Row kDown[] = {
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
constexpr Row kUp[] = {
    {1000, 100, true, 0.000001, 1000},  {100, 10, true, 0.00001, 100},
    {10, 1, true, 0.0001, 10},          {1, 10, false, 0.001, 1},
    {0.1, 100, false, 0.01, 0.1},       {0.01, 1000, false, 0.01, 0.01},
    {0.001, 10000, false, 0.01, 0.001}, {0.0001, 100000, false, 0.01, 0.0001},
};

// `v` cut down to the grid of its row.
double OnGrid(double v, const Row& row) {
  if (row.coarse) return Checked(std::trunc(v / row.scale + row.nudge) * row.scale);
  return Checked(std::trunc(v * row.scale + row.nudge) / row.scale);
}

}  // namespace

double Down(std::span<const Row> rows, double v) {
  const Row& row = *std::find_if(rows.begin(), rows.end() - 1,
                                 [v](const Row& candidate) { return v <= candidate.bound; });
  return OnGrid(v, row) - row.step;
}

std::optional<double> Up(std::span<const Row> rows, double v) {
  const auto row = std::find_if(rows.begin(), rows.end(),
                                [v](const Row& candidate) { return v >= candidate.bound; });
  if (row == rows.end()) return std::nullopt;
  return row->step + OnGrid(v, *row);
}

double DownByDecade(double v) { return Down(kDown, v); }

std::optional<double> UpByDecade(double v) { return Up(kUp, v); }

}  // namespace steps
