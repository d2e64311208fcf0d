#include <gtest/gtest.h>

#include <sstream>

#include "stats/normal.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

// How far the methods themselves are from the mathematical value. The figures are those of the
// head comments in normal.h; they are errors last seen, so that a loss of digits is noticed.
namespace {

using StatFWinBAS::NormalUpper;
using StatFWinBAS::NormalUpperHill;
using StatFWinBAS::NormalUpperInverse;

struct Region {
  double from;
  double to;  // included
  double ratchet;
};

template <class Routine>
void Hold(const char* name, const char* function, const Region& region, Routine routine) {
  table::Worst worst;
  for (const support::Row& row : support::ReadTable("normal_truth.csv")) {
    const double argument = row.Number("argument");
    if (row.Text("function") != function || argument < region.from || argument > region.to)
      continue;
    worst.Take(routine(argument), row.Number("true"), row.Where() + " " + row.Text("argument"));
  }
  std::ostringstream title;
  title << name << " from " << region.from << " to " << region.to;
  worst.Hold(title.str(), region.ratchet);
}

class NormalAccuracy : public table::Delivered {};

TEST_F(NormalAccuracy, OfTheAreaIsAsStated) {
  const Region regions[] = {{-37, 0, 1.3e-15},
                            {0, 1.28, 5e-15},
                            {1.28, 3, 2.8e-13},
                            {3, 5, 1e-9},  // 0.5 - sum keeps 16 decimals of an area down to 3E-7
                            {5.00000001, 37, 6e-11}};
  for (const Region& region : regions)
    Hold("NormalUpper", "upper", region, [](double x) { return NormalUpper(x); });
}

TEST_F(NormalAccuracy, OfHillsAreaIsAsStated) {
  const Region regions[] = {
      {-37, 0, 1.1e-11}, {0, 1.28, 6e-11}, {1.28000001, 5, 6e-11}, {5, 37, 6e-11}};
  for (const Region& region : regions)
    Hold("NormalUpperHill", "upper", region, [](double x) { return NormalUpperHill(x); });
}

TEST_F(NormalAccuracy, OfTheDeviateIsAsStated) {
  // One step corrects the start value of AS 111 less and less the farther out it is.
  const Region regions[] = {{1.1e-300, 1e-280, 0.02},
                            {1e-280, 1e-20, 0.005},
                            {1e-20, 2.8e-7, 1.5e-11},
                            {2.8e-7, 1e-3, 6e-11},
                            {1e-3, 0.08, 3e-14},
                            {0.08, 0.499, 7e-15},
                            {0.501, 0.92, 2.5e-15},
                            {0.92, 0.999, 1.1e-14},
                            {0.999, 0.9999999999999998, 6e-11},
                            // Beyond, one value for all.
                            {0, 1e-300, 0.012},
                            {0.9999999999999999, 1, 0.002}};
  for (const Region& region : regions)
    Hold("NormalUpperInverse", "inverse", region, [](double p) { return NormalUpperInverse(p); });
}

}  // namespace
