#include "session/exposure_session.h"
#include "session/global_bas.h"
#include "stats/estimators.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/series.h"

namespace accuracy {
namespace {

using support::Row;
using Estimator = double (*)(double df, double GM, double GSD);

const std::vector<std::string> kInputs = {"df", "GM", "GSD"};

double Unbiased(double df, double GM, double GSD) {
  ExposureSession s;
  s.df = df;
  return StatFWinBAS::GMUnbiased(s, GM, GSD);
}

ExposureSession Linear(double df, double GM, double GSD) {
  ExposureSession s;
  s.Mode = "D";
  s.M = df + 1;
  s.GM = GM;
  s.GSD = GSD;
  StatFWinBAS::LinearMoments(s);
  return s;
}

// The session of a row of linear_moments.csv; a sample without outcomes is named "M=n".
ExposureSession Whole(const Row& row) {
  const std::string& name = row.Text("series");
  const auto found = Series().find(name);
  ExposureSession s = found == Series().end() ? ExposureSession{} : found->second;
  if (found == Series().end()) s.M = GlobalBAS::Val(name.substr(2));
  s.Mode = row.Text("Mode");
  s.DetecOn = row.Text("DetecOn") == "1";
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  StatFWinBAS::LinearMoments(s);
  return s;
}

ExposureSession OfOutcomes(const Row& row) {
  ExposureSession s = Series().at(row.Text("series"));
  s.Mode = "R";
  StatFWinBAS::LinearMoments(s);
  return s;
}

using Result = double ExposureSession::*;

// From the outcomes themselves, or from GM and GSD.
Source LinearSteps(const std::string& column, bool outcomes, Result result) {
  return {"linear_moments.csv",
          column,
          {"series", "Mode", "DetecOn", "GM", "GSD"},
          [result](const Row& row) { return Whole(row).*result; },
          [outcomes](const Row& row) {
            return outcomes == (row.Text("Mode") == "R" && row.Text("DetecOn") == "0") &&
                   row.Text("InputState_after") != "4";
          }};
}

// Without the series whose outcomes are equal to the seventh digit, or all alike.
bool Differs(const Row& row) { return row.Text("series") != "NearEqual10"; }

Source LinearTruth(const std::string& column, bool alike, Result result) {
  return {"linear_moments_truth.csv",
          column,
          {"series"},
          [result](const Row& row) { return OfOutcomes(row).*result; },
          [alike](const Row& row) { return Differs(row) != alike; }};
}

std::function<double(const Row&)> Called(Estimator estimator) {
  return [estimator](const Row& row) {
    return estimator(row.Number("df"), row.Number("GM"), row.Number("GSD"));
  };
}

// Rows of estimator_truth.csv of one function with a GSD of `from` up to `to`.
Source Truth(const std::string& function, double from, double to, Estimator estimator) {
  return {"estimator_truth.csv", "true", kInputs, Called(estimator),
          [function, from, to](const Row& row) {
            return row.Text("function") == function && row.Number("GSD") >= from &&
                   row.Number("GSD") <= to;
          }};
}

Source Steps(const std::string& table, double from, double to, Estimator estimator) {
  return {table, "result", kInputs, Called(estimator), [from, to](const Row& row) {
            return row.Number("GSD") >= from && row.Number("GSD") <= to;
          }};
}

double Moment(const Row& row, double df, bool wantGM) {
  ExposureSession s = Series().at(row.Text("series"));
  s.df = df;
  double gm = 0;
  double gsd = 0;
  LogMoments(s, gm, gsd);
  return wantGM ? gm : gsd;
}

Entry Moments(bool wantGM) {
  const std::string column = wantGM ? "GM" : "GSD";
  return {"LogMoments: " + column,
          "the reference series, M to 2000",
          wantGM ? "exp of the mean of the logarithms" : "exp of the root of the mean square",
          Measure::Relative,
          {"log_moments_true.csv",
           column,
           {"series"},
           [wantGM](const Row& row) {
             return Moment(row, Series().at(row.Text("series")).M - 1, wantGM);
           }},
          {"log_moments.csv",
           column + "_after",
           {"series", "df"},
           [wantGM](const Row& row) { return Moment(row, row.Number("df"), wantGM); },
           [wantGM](const Row& row) {
             return row.Text("fault").empty() && (wantGM || row.Text("InputState_after") != "4");
           }}};
}

}  // namespace

std::vector<Entry> EstimatorEntries() {
  const Estimator mvu = [](double df, double GM, double GSD) {
    return StatFWinBAS::FinneyMeanMVU(df, GM, GSD);
  };
  const Estimator mmse = [](double df, double GM, double GSD) {
    return StatFWinBAS::FinneyMeanMMSE(df, GM, GSD);
  };
  const Estimator variance = [](double df, double GM, double GSD) {
    return StatFWinBAS::FinneyVarianceMVU(df, GM, GSD);
  };
  const Estimator xm = [](double df, double GM, double GSD) { return Linear(df, GM, GSD).XM; };
  const Estimator sd = [](double df, double GM, double GSD) { return Linear(df, GM, GSD).SDlin; };
  return {
      {"FinneyMeanMVU", "df 1 to 1999, GSD 1.001 to 1000", "series, Finney (1941)",
       Measure::Relative, Truth("FinneyMeanMVU", 1, 1e4, mvu),
       Steps("finney_mean_mvu.csv", 1, 1e4, mvu)},
      {"FinneyMeanMMSE", "df above 3, GSD 1.001 to 1000", "series, Finney (1941), Zhou (1998)",
       Measure::Relative, Truth("FinneyMeanMMSE", 1, 1e4, mmse),
       Steps("finney_mean_mmse.csv", 1, 1e4, mmse)},
      {"FinneyVarianceMVU", "GSD 1.05 to 8", "two series summed together, Finney (1941)",
       Measure::Relative, Truth("FinneyVarianceMVU", 1.05, 8, variance),
       Steps("finney_variance_mvu.csv", 1.05, 8, variance)},
      {"FinneyVarianceMVU", "every GSD", "two series summed together, Finney (1941)",
       Measure::Relative, Truth("FinneyVarianceMVU", 1, 1e4, variance),
       Steps("finney_variance_mvu.csv", 1, 1e4, variance)},
      {"GMUnbiased", "GSD / (df + 1) squared at most 6", "series, Finney (1941)", Measure::Relative,
       Truth("GMUnbiased", 1, 1e4, Unbiased), Steps("gm_unbiased.csv", 1, 1e4, Unbiased)},
      {"LinearMoments: XM", "from GM and GSD", "GM exp(L squared / 2)", Measure::Relative,
       Truth("LinearMoments XM", 1, 1e4, xm), LinearSteps("XM", false, &ExposureSession::XM)},
      {"LinearMoments: SDlin", "from GM and GSD, GSD 1.05 and more",
       "sqrt(GM squared e (e - 1) M / (M - 1))", Measure::Relative,
       Truth("LinearMoments SDlin", 1.05, 1e4, sd),
       LinearSteps("SDlin", false, &ExposureSession::SDlin)},
      {"LinearMoments: SDlin", "from GM and GSD, GSD to 1.05", "the same; e - 1 loses digits",
       Measure::Relative, Truth("LinearMoments SDlin", 1, 1.05, sd)},
      {"LinearMoments: XM", "from the outcomes, the reference series", "mean", Measure::Relative,
       LinearTruth("XM", false, &ExposureSession::XM),
       LinearSteps("XM", true, &ExposureSession::XM)},
      {"LinearMoments: SDlin", "from the outcomes, the reference series", "sums of squares",
       Measure::Relative, LinearTruth("SDlin", false, &ExposureSession::SDlin),
       LinearSteps("SDlin", true, &ExposureSession::SDlin)},
      Moments(true),
      Moments(false),
  };
}

std::vector<Entry> EstimatorPeculiarities() {
  return {
      {"LinearMoments", "SDlin from GM and GSD, GSD to 4",
       "e is exp(L squared / 2), where the standard deviation of a lognormal population has exp(L "
       "squared)",
       Measure::Relative,
       Truth("population deviation", 1, 4,
             [](double df, double GM, double GSD) { return Linear(df, GM, GSD).SDlin; })},
  };
}

}  // namespace accuracy
