// How far rankits, weights, line and test lie from their true values: each figure is the one last
// seen, rounded up, and must not grow.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/transformations.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using support::Row;
using table::Worst;
using table::WorstAbsolute;  // for values that pass through 0

class FitAccuracy : public table::Delivered {};

void HoldRankits(const std::string& tableName, const std::string& column, double tabledError) {
  WorstAbsolute three, tabled, small, middle, large;
  for (const Row& row : support::ReadTable(tableName)) {
    const int n = static_cast<int>(row.Number("n"));
    if (n < 3) continue;
    const int r = static_cast<int>(row.Number("r"));
    const double R = analysis::Score(analysis::RankitsForSampleSize(n), n, n + 1 - r);
    WorstAbsolute& region = n == 3     ? three
                            : n <= 20  ? tabled
                            : n < 40   ? small
                            : n <= 500 ? middle
                                       : large;
    region.Take(R, row.Number(column), row.Where() + " " + row.Text("n") + "," + row.Text("r"));
  }
  if (three.rows > 0) three.Hold("three", 4.4e-6);
  tabled.Hold("table", tabledError);
  small.Hold("up to 39", 7.5e-5);
  middle.Hold("up to 500", 6.4e-5);
  large.Hold("beyond", 8.4e-5);
}

TEST_F(FitAccuracy, OfRankitsAgainstExpectedOrderStatistics) {
  HoldRankits("rankit_truth.csv", "true", 6e-16);
}

TEST_F(FitAccuracy, OfRankitsAgainstPublishedOrderStatistics) {
  // That table has 12 decimals.
  HoldRankits("normal_order_statistics_derived.csv", "expected", 5.1e-13);
}

TEST_F(FitAccuracy, OfShapirosWeights) {
  Worst weight;
  for (const Row& row : support::ReadTable("shapiro_weight_truth.csv")) {
    analysis::ShapiroWeights weights;
    analysis::FillShapiroWeights(static_cast<int>(row.Number("M")), weights);
    weight.Take(weights.ShapiroCoeffs.at(static_cast<std::size_t>(row.Number("i"))),
                row.Number("true"), row.Where() + " " + row.Text("M") + "," + row.Text("i"));
  }
  weight.Hold("weights", 3.8e-14);
}

struct FitErrors {
  Worst slope, statistic, probability, far;
  Worst intercept;  // as a part of intercept and slope together, since it passes through 0
  WorstAbsolute misfit;

  void Take(const analysis::Regression& fit, const Row& row, const std::string& where) {
    const double size = std::abs(row.Number("a")) + std::abs(row.Number("b"));
    slope.Take(fit.b, row.Number("b"), where);
    intercept.Take(1 + (fit.a - row.Number("a")) / size, 1, where);
    if (row.Text("W").empty()) return;
    const double PW = row.Number("PW");
    statistic.Take(fit.test.W, row.Number("W"), where);
    misfit.Take(fit.test.PW, PW, where);
    (std::abs(PW) > 1e-6 ? probability : far).Take(fit.test.PW, PW, where);
  }
};

analysis::Regression FitOf(const Row& row) {
  ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
  // A series without a spread has no GSD of its own; that is not measured here.
  s.GSD = std::max(s.GSD, 1.1);
  auto state = fit_data::Activated(s, row.Text("Transformation"));
  fit_data::Restrict(s, static_cast<int>(row.Number("first")),
                     static_cast<int>(row.Number("last")));
  return ProbabilityRegression(s, state);
}

TEST_F(FitAccuracy, OfTheLineAndOfShapirosTest) {
  FitErrors ordinary;
  FitErrors alike;  // outcomes that have many digits in common
  for (const Row& row : support::ReadTable("fit_truth.csv")) {
    const bool common = row.Text("series") == "NearEqual10";
    (common ? alike : ordinary)
        .Take(FitOf(row), row,
              row.Where() + " " + row.Text("series") + " " + row.Text("Transformation") + " " +
                  row.Text("first") + "-" + row.Text("last"));
  }
  ordinary.slope.Hold("b", 6.9e-13);
  ordinary.intercept.Hold("a", 4e-14);
  ordinary.statistic.Hold("W", 1.9e-14);
  ordinary.misfit.Hold("PW absolute", 4.8e-12);
  ordinary.probability.Hold("PW", 4.5e-11);
  ordinary.far.Hold("PW below 1E-6", 4.6e-11);
  alike.slope.Hold("b of outcomes nearly alike", 1.1e-9);
  alike.intercept.Hold("a of outcomes nearly alike", 3e-16);
  alike.statistic.Hold("W of outcomes nearly alike", 2.4e-11);
  alike.probability.Hold("PW of outcomes nearly alike", 2.5e-10);
}

TEST_F(FitAccuracy, OfTransformations) {
  Worst there, loglog, back, expexp;
  for (const Row& row : support::ReadTable("transform_truth.csv")) {
    const std::string& name = row.Text("name");
    const double x = row.Number("argument");
    const bool doubled = name == "Lg(Lg(x))";
    if (row.Text("way") == "there")
      (doubled ? loglog : there)
          .Take(analysis::TransformValue(name, x), row.Number("true"), row.Where());
    else
      (doubled ? expexp : back)
          .Take(analysis::InverseTransform(name, x), row.Number("true"), row.Where());
  }
  there.Hold("there", 2.3e-16);
  loglog.Hold("double logarithm", 2.1e-15);
  back.Hold("back", 2.3e-16);
  expexp.Hold("double exponential", 2.2e-14);
}

}  // namespace
