#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "tests/stats/table_check.h"
#include "tests/support/csv.h"
#include "ucl/land_exact.h"
#include "ucl/land_probability.h"

// How far Land's routines are from quadrature in arbitrary precision; the figures are those of the
// head comments, errors last seen.
namespace {

using UCLBAS::LandExactUCL;
using UCLBAS::LandLimit;

TEST(LandAccuracy, OfTheDensityIsAsStated) {
  table::Worst worst;
  for (const support::Row& row : support::ReadTable("land_truth.csv")) {
    if (row.Text("function") != "LandIntegrand" || row.Number("true") < 1e-300) continue;
    const double nu = row.Number("nu");
    const double f = UCLBAS::LandIntegrand(nu, row.Number("a2"), row.Number("a3"), row.Number("a4"),
                                           row.Number("a5"));
    worst.Take(f, row.Number("true"), row.Where());
  }
  worst.Hold("LandIntegrand", 5.5e-12);
}

std::vector<support::Row> RowsOf(const std::string& function, double from, double to) {
  std::vector<support::Row> rows = support::ReadTable("land_truth.csv");
  std::erase_if(rows, [&](const support::Row& row) {
    return row.Text("function") != function || row.Number("nu") < from || row.Number("nu") > to;
  });
  return rows;
}

std::string Described(const support::Row& row) {
  return row.Where() + " nu " + row.Text("nu") + " s " + row.Text("a2") + ", " + row.Text("a3");
}

void HoldProbability(double from, double to, double ratchet) {
  table::WorstAbsolute worst;
  for (const support::Row& row : RowsOf("LandProbability", from, to))
    worst.Take(UCLBAS::LandProbability(row.Number("nu"), row.Number("a2"), row.Number("a3")),
               row.Number("true"), Described(row));
  worst.Hold("LandProbability", ratchet);
}

// With one degree of freedom the density falls off like 1 / x squared, and what lies beyond the
// end of the range of integration still has weight.
TEST(LandAccuracy, OfTheProbabilityIsAsStated) {
  HoldProbability(1, 1, 3.5e-6);
  HoldProbability(2, 2, 8e-8);
  HoldProbability(3, 5, 1e-8);
  HoldProbability(6, 1000, 7e-10);
}

// The error of the root as a fraction of the root, or of s / sqrt(nu) where the root is smaller:
// the stop is relative and so is the scale of H.
void HoldRoot(double from, double to, double ratchet) {
  table::WorstAbsolute worst;
  for (const support::Row& row : RowsOf("LandExactUCL", from, to)) {
    const double nu = row.Number("nu"), s = row.Number("a2"), truth = row.Number("true");
    const LandLimit limit = LandExactUCL(0.5, nu, s, 0, row.Number("a3"));
    const double unit = std::max(std::abs(truth), s / std::sqrt(nu));
    worst.Take(limit.C / unit, truth / unit, Described(row));
  }
  worst.Hold("Land's root", ratchet);
}

TEST(LandAccuracy, OfTheRootIsAsStated) {
  HoldRoot(1, 1, 2.5e-3);
  HoldRoot(2, 2, 1.6e-6);
  HoldRoot(3, 5, 1e-6);
  HoldRoot(6, 1000, 3.5e-6);
}

TEST(LandAccuracy, OfTheFactorAgainstValuesDerivedElsewhere) {
  table::Worst worst;
  for (const support::Row& row : support::ReadTable("land_factor_derived.csv")) {
    const LandLimit limit =
        LandExactUCL(0.5, row.Number("n") - 1, row.Number("s"), 0, 100 * row.Number("confidence"));
    worst.Take(limit.Factor, row.Number("H"), row.Where());
  }
  worst.Hold("Land's factor", 4e-6);
}

// The printed table, three or two decimals; the row for 31 samples and a spread of 1 is misprinted.
TEST(LandAccuracy, AgreesWithThePrintedTable) {
  for (const support::Row& row : support::ReadTable("land_published.csv")) {
    const LandLimit limit =
        LandExactUCL(0.5, row.Number("nu"), row.Number("s"), 0, row.Number("confidence"));
    const double unit = row.Number("unit_last_digit");
    const double allowed = row.Text("agrees") == "no" ? 1.4 * unit : unit;
    EXPECT_NEAR(limit.Factor, row.Number("published"), allowed) << row.Where();
  }
}

}  // namespace
