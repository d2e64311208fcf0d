#include <gtest/gtest.h>

#include <map>

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
  s.Mode = DataMode::Statistics;
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

std::map<std::string, ExposureSession> SessionsOfOutcomes() {
  std::map<std::string, ExposureSession> sessions;
  for (const support::Row& row : support::ReadTable("series_sorted.csv")) {
    ExposureSession& s = sessions[row.Text("series")];
    s.Mode = DataMode::Raw;
    s.C.push_back(row.Number("C"));
    s.M = static_cast<double>(s.C.size()) - 1;
  }
  return sessions;
}

// Where the outcomes have many digits in common, the subtraction of the sums of squares loses them.
TEST(EstimatorAccuracy, OfTheLinearMomentsOfTheOutcomesIsAsStated) {
  auto sessions = SessionsOfOutcomes();
  table::Worst mean, deviation;
  for (const support::Row& row : support::ReadTable("linear_moments_truth.csv")) {
    ExposureSession& s = sessions.at(row.Text("series"));
    StatFWinBAS::LinearMoments(s);
    const std::string where = row.Where() + " " + row.Text("series");
    mean.Take(s.XM, row.Number("XM"), where);
    if (row.Text("series") != "NearEqual10") deviation.Take(s.SDlin, row.Number("SDlin"), where);
  }
  mean.Hold("XM", 4.5e-16);
  deviation.Hold("SDlin", 2.9e-15);
}

}  // namespace
