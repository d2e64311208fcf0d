#include <gtest/gtest.h>

#include "stats/estimators.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

// What the summation in doubles and the stop of the series cost; the figures are those of the head
// comments in estimators.h.
namespace {

double Estimate(const support::Row& row) {
  const std::string& name = row.Text("function");
  const double df = row.Number("df"), GM = row.Number("GM"), GSD = row.Number("GSD");
  if (name == "FinneyMeanMVU") return StatFWinBAS::FinneyMeanMVU(df, GM, GSD);
  if (name == "FinneyMeanMMSE") return StatFWinBAS::FinneyMeanMMSE(df, GM, GSD);
  if (name == "FinneyVarianceMVU") return StatFWinBAS::FinneyVarianceMVU(df, GM, GSD);
  ExposureSession s;
  s.df = df;
  if (name == "GMUnbiased") return StatFWinBAS::GMUnbiased(s, GM, GSD);
  s.Mode = "D";
  s.M = df + 1;
  s.GM = GM;
  s.GSD = GSD;
  StatFWinBAS::LinearMoments(s);
  return name == "LinearMoments XM" ? s.XM : s.SDlin;
}

// Among rows with a GSD of `from` up to `to`.
void Hold(const std::string& function, double from, double to, double ratchet) {
  table::Worst worst;
  for (const support::Row& row : support::ReadTable("estimator_truth.csv")) {
    if (row.Text("function") != function) continue;
    if (row.Number("GSD") < from || row.Number("GSD") > to) continue;
    worst.Take(Estimate(row), row.Number("true"),
               row.Where() + " df " + row.Text("df") + " GSD " + row.Text("GSD"));
  }
  worst.Hold(function, ratchet);
}

TEST(EstimatorAccuracy, OfTheMeansIsAsStated) {
  Hold("FinneyMeanMVU", 1, 1000, 5e-15);
  Hold("FinneyMeanMMSE", 1, 1000, 5e-15);
}

TEST(EstimatorAccuracy, OfTheVarianceIsAsStated) {
  Hold("FinneyVarianceMVU", 1.05, 8, 3e-15);
  Hold("FinneyVarianceMVU", 1, 1000, 2e-14);
}

TEST(EstimatorAccuracy, OfTheUnbiasedGMIsAsStated) {
  Hold("GMUnbiased", 1, 8, 1e-15);
  Hold("GMUnbiased", 1, 1000, 6e-15);
}

TEST(EstimatorAccuracy, OfTheLinearMomentsFromGMAndGSDIsAsStated) {
  Hold("LinearMoments XM", 1, 1000, 4e-15);
  Hold("LinearMoments SDlin", 1.05, 1000, 6e-14);
  Hold("LinearMoments SDlin", 1, 1.01, 1e-11);
}

}  // namespace
