#include <gtest/gtest.h>

#include "analysis/regression_on_record.h"
#include "base/fault.h"
#include "session/limit_checks.h"
#include "session/moments.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using analysis::CheckVariability;
using analysis::FitState;
using analysis::ProbabilityRegression;
using analysis::Regression;
using support::Row;

class RegressionTables : public table::Delivered {};

// The record with the limits of the row in force.
ExposureSession Before(const Row& row) {
  ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
  s.DetecOn = !row.Text("LOQ_in").empty() || !row.Text("URR_in").empty();
  if (!row.Text("LOQ_in").empty()) ControleOndergrens(s, row.Number("LOQ_in"));
  if (!row.Text("URR_in").empty()) ControleBovengrens(s, row.Number("URR_in"));
  DegreesOfFreedom(s);
  return s;
}

void ExpectFit(const Row& row, const Regression& fit) {
  const std::vector<std::string> inputs = {"series", "menu", "First", "Last"};
  const auto expect = [&](const std::string& column, double result, double tolerance) {
    table::Expect(row, inputs, column, tolerance, [&] { return result; });
  };
  // The scores add to 0 but for the rounding of the sum.
  EXPECT_NEAR(fit.sums.SZ, row.Number("SZ"), 1e-12) << row.Where();
  expect("SZZ", fit.sums.SZZ, 1e-13);
  expect("SZY", fit.sums.SZY, 1e-9);
  expect("SY", fit.sums.SY, 1e-9);
  expect("SZX", fit.sums.SZX, 1e-9);
  expect("SX", fit.sums.SX, 1e-13);
  expect("a", fit.a, 1e-9);
  expect("b", fit.b, 1e-9);
  expect("yLow", fit.yLow, 1e-9);
  expect("yHigh", fit.yHigh, 1e-9);
  expect("W", fit.test.W, 1e-12);
  expect("PW", fit.test.PW, 1e-9);
  EXPECT_EQ(fit.test.fault, row.Number("fault")) << row.Where();
  EXPECT_EQ(fit.estimates, !row.Text("estimates").empty());
  if (row.Text("GMg").empty()) return;
  expect("GMg", fit.location, 1e-13);
  expect("GSDg", fit.scale, 1e-13);
}

void ExpectRecord(const Row& row, const ExposureSession& s) {
  const std::vector<std::string> inputs = {"series", "menu", "First", "Last"};
  EXPECT_EQ(s.FirstInRange, row.Number("First"));
  EXPECT_EQ(s.LastInRange, row.Number("Last"));
  EXPECT_EQ(s.NInRange, row.Number("NInRange"));
  EXPECT_EQ(s.LOQ, row.Number("LOQ"));
  EXPECT_EQ(s.URR, row.Number("URR"));
  EXPECT_EQ(s.RegressionLabel, row.Text("RegressionLabel"));
  EXPECT_EQ(s.RegressionOn, row.Text("RegressionOn") == "1");
  EXPECT_EQ(s.InputState, row.Number("InputState"));
  EXPECT_EQ(s.df, row.Number("df"));
  table::Expect(row, inputs, "GM", 1e-13, [&] { return s.GM; });
  table::Expect(row, inputs, "GSD", 1e-13, [&] { return s.GSD; });
  table::Expect(row, inputs, "GMu", 1e-13, [&] { return s.GMu; });
  table::Expect(row, inputs, "SDu", 1e-12, [&] { return s.SDu; });
}

TEST_F(RegressionTables, FitsTheSeriesOfTheReferenceTable) {
  int rows = 0;
  for (const Row& row : support::ReadTable("regression.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series") + " " + row.Text("menu"));
    ExposureSession s = Before(row);
    // Limits that the checks settle by the first outcome, where the table took the median.
    if (s.FirstInRange != row.Number("First") || s.LOQ != row.Number("LOQ") ||
        s.URR != row.Number("URR")) {
      EXPECT_LT(s.M, 4) << "a range that differs";
      continue;
    }
    FitState state = fit_data::Activated(s, fit_data::NameOfMenu(row.Text("menu")));
    const Regression fit = ProbabilityRegression(s, state);
    EXPECT_TRUE(fit.line);
    ExpectFit(row, fit);
    ExpectRecord(row, s);
    ++rows;
  }
  EXPECT_GE(rows, 480);
}

TEST_F(RegressionTables, FitsTheRealisticSeriesWholeAndWithARange) {
  for (const Row& row : support::ReadTable("realistic.csv")) {
    const auto expect = [&](const std::string& column, double result) {
      table::Expect(row, {"series"}, column, 1e-9, [&] { return result; });
    };
    ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
    FitState state = fit_data::Activated(s, "Log(x)");
    const Regression whole = ProbabilityRegression(s, state);
    expect("a", whole.a);
    expect("b", whole.b);
    expect("W", whole.test.W);
    expect("A(W)", 100 * whole.test.PW);
    expect("GMu", s.GMu);
    s.DetecOn = true;
    ControleOndergrens(s, row.Number("LOQ_in"));
    ControleBovengrens(s, row.Number("URR_in"));
    const Regression part = ProbabilityRegression(s, state);
    expect("range a", part.a);
    expect("range b", part.b);
    expect("range W", part.test.W);
    expect("range A(W)", 100 * part.test.PW);
    expect("range GM", s.GM);
    expect("range GSD", s.GSD);
    expect("range GMu", s.GMu);
    expect("range SDu (unrooted)", s.SDu);
    EXPECT_EQ(part.test.fault, row.Number("range fault")) << row.Where();
  }
}

TEST(Variability, IsFoundMissingOrTooMuchAsTheReferenceTableSays) {
  for (const Row& row : support::ReadTable("variability.csv")) {
    SCOPED_TRACE(row.Where());
    ExposureSession s;
    s.M = row.Number("M");
    s.DetecOn = row.Text("DetecOn") == "1";
    s.C.assign(static_cast<std::size_t>(s.M) + 1, row.Number("C(First)"));
    s.C.back() = row.Number("C(Last)");
    s.FirstInRange = 1;
    s.LastInRange = s.NInRange = static_cast<std::int16_t>(s.M);
    s.MsgText = "old text";
    s.LOQ = s.URR = -1;
    EXPECT_EQ(CheckVariability(s), row.Text("fired") == "1");
    EXPECT_EQ(s.MsgText, row.Text("MsgText"));
    EXPECT_EQ(s.LOQ, row.Number("LOQ"));
    EXPECT_EQ(s.URR, row.Number("URR"));
    EXPECT_EQ(s.FirstInRange, row.Number("First"));
    EXPECT_EQ(s.LastInRange, row.Number("Last"));
    EXPECT_EQ(s.NInRange, row.Number("NInRange"));
  }
}

TEST(Variability, MissingWithinANarrowedRangeBringsBackAllOutcomes) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 2, 2, 4});
  s.FirstInRange = 2;
  s.LastInRange = 4;
  EXPECT_TRUE(CheckVariability(s));
  EXPECT_EQ(s.FirstInRange, 1);
  EXPECT_EQ(s.LastInRange, 5);
  EXPECT_EQ(s.NInRange, 5);
  EXPECT_EQ(s.LOQ, 0.95);
  EXPECT_EQ(s.URR, 4.2);
}

TEST(Variability, OfARangeOutsideTheSeriesIsASubscriptFault) {
  ExposureSession s = fit_data::Opened({2, 1, 2, 4});
  s.LastInRange = 4;
  EXPECT_THROW(CheckVariability(s), RunTimeError);
}

}  // namespace
