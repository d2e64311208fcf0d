#include <cmath>

#include "session/exposure_session.h"
#include "session/global_bas.h"
#include "session/moments.h"
#include "stats/estimators.h"
#include "tests/support/letters.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/estimator_sources.h"
#include "tools/accuracy/series.h"
#include "tools/accuracy/truth/lognormal.h"

namespace accuracy {
namespace {

using support::Row;
// The session of a row of linear_moments.csv; a sample without outcomes is named "M=n".
ExposureSession Whole(const Row& row) {
  const std::string& name = row.Text("series");
  const auto found = Series().find(name);
  ExposureSession s = found == Series().end() ? ExposureSession{} : found->second;
  if (found == Series().end()) s.M = GlobalBAS::Val(name.substr(2));
  s.Mode = support::ModeOf(row.Text("Mode"));
  s.DetecOn = row.Text("DetecOn") == "1";
  s.GM = row.Number("GM");
  s.GSD = row.Number("GSD");
  StatFWinBAS::LinearMoments(s);
  return s;
}

ExposureSession OfOutcomes(const Row& row) {
  ExposureSession s = Series().at(row.Text("series"));
  s.Mode = DataMode::Raw;
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

Source Only(Source source, bool (*takes)(const Row&)) {
  source.takes = [takes, before = source.takes](const Row& row) {
    return takes(row) && before(row);
  };
  return source;
}

Source Steps(const std::string& table, double from, double to, Estimator estimator) {
  return {table, "result", EstimatorInputs(), CalledWith(estimator), [from, to](const Row& row) {
            return row.Number("GSD") >= from && row.Number("GSD") <= to;
          }};
}

// As a part of GM where `ofGM`, otherwise of the estimate, which passes through 0.
Search LookAtUnbiased(bool ofGM) {
  Search search = LookAtEstimator(1, 1.001, 1000, GMUnbiasedOf, truth::GMByBessel);
  search.axes[1] = {"GM", 1, 1};
  search.takes = [](const Point& at) { return at[2] / ((at[0] + 1) * (at[0] + 1)) <= 6; };
  if (!ofGM) search.counts = [](Real truth) { return std::abs(truth) >= 0.01L; };
  return search;
}

Real LinearMean(Real, Real GM, Real GSD) { return GM * (1 + truth::ExcessOfMean(GSD)); }

Real LinearDeviation(Real df, Real GM, Real GSD) {
  const Real excess = truth::ExcessOfMean(GSD);
  return GM * std::sqrt((1 + excess) * excess * (df + 1) / df);
}

bool IsOne(const Row& row) { return row.Number("GM") == 1; }

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
           }},
          Listed()};
}

constexpr const char* kBessel = "series, Finney (1941), with df / 2 + 1 where his has df / 2";

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
  const Estimator xm = [](double df, double GM, double GSD) {
    return LinearMomentsOf(df, GM, GSD).XM;
  };
  const Estimator sd = [](double df, double GM, double GSD) {
    return LinearMomentsOf(df, GM, GSD).SDlin;
  };
  return {
      {"FinneyMeanMVU", "df 1 to 1999, GSD 1.001 to 1000", "series, Finney (1941)",
       Measure::Relative, EstimatorTruth("FinneyMeanMVU", 1, 1e4, mvu),
       Steps("finney_mean_mvu.csv", 1, 1e4, mvu),
       LookAtEstimator(1, 1.001, 1000, mvu, truth::MeanMVU)},
      {"FinneyMeanMMSE", "df 4 to 1999, GSD 1.001 to 1000", "series, Finney (1941), Zhou (1998)",
       Measure::Relative, EstimatorTruth("FinneyMeanMMSE", 1, 1e4, mmse),
       Steps("finney_mean_mmse.csv", 1, 1e4, mmse),
       LookAtEstimator(4, 1.001, 1000, mmse, truth::MeanMMSE)},
      {"FinneyVarianceMVU", "df 1 to 1999, GSD 1.05 to 8",
       "two series summed together, Finney (1941)", Measure::Relative,
       EstimatorTruth("FinneyVarianceMVU", 1.05, 8, variance),
       Steps("finney_variance_mvu.csv", 1.05, 8, variance),
       LookAtEstimator(1, 1.05, 8, variance, truth::VarianceMVU)},
      {"FinneyVarianceMVU", "df 1 to 1999, GSD 1.001 to 1000",
       "two series summed together, Finney (1941)", Measure::Relative,
       EstimatorTruth("FinneyVarianceMVU", 1, 1e4, variance),
       Steps("finney_variance_mvu.csv", 1, 1e4, variance),
       LookAtEstimator(1, 1.001, 1000, variance, truth::VarianceMVU)},
      {"GMUnbiased", "GSD / (df + 1) squared at most 6, as a part of GM", kBessel,
       Measure::Absolute, Only(EstimatorTruth("GMUnbiased", 1, 1e4, GMUnbiasedOf), IsOne),
       Steps("gm_unbiased.csv", 1, 1e4, GMUnbiasedOf), LookAtUnbiased(true)},
      {"GMUnbiased",
       "the same, from a hundredth of GM on",
       kBessel,
       Measure::Relative,
       Only(EstimatorTruth("GMUnbiased", 1, 1e4, GMUnbiasedOf), IsOne),
       {},
       LookAtUnbiased(false)},
      {"LinearMoments: XM", "from GM and GSD, GSD 1.001 to 1000", "GM exp(L squared / 2)",
       Measure::Relative, EstimatorTruth("LinearMoments XM", 1, 1e4, xm),
       LinearSteps("XM", false, &ExposureSession::XM),
       LookAtEstimator(1, 1.001, 1000, xm, LinearMean)},
      {"LinearMoments: SDlin", "from GM and GSD, GSD 1.05 to 1000",
       "sqrt(GM squared e (e - 1) M / (M - 1))", Measure::Relative,
       EstimatorTruth("LinearMoments SDlin", 1.05, 1e4, sd),
       LinearSteps("SDlin", false, &ExposureSession::SDlin),
       LookAtEstimator(1, 1.05, 1000, sd, LinearDeviation)},
      {"LinearMoments: SDlin",
       "from GM and GSD, GSD 1.001 to 1.05",
       "the same; e - 1 loses digits",
       Measure::Relative,
       EstimatorTruth("LinearMoments SDlin", 1, 1.05, sd),
       {},
       LookAtEstimator(1, 1.001, 1.05, sd, LinearDeviation)},
      {"LinearMoments: XM", "from the outcomes, the reference series", "mean", Measure::Relative,
       LinearTruth("XM", false, &ExposureSession::XM),
       LinearSteps("XM", true, &ExposureSession::XM), Listed()},
      {"LinearMoments: SDlin", "from the outcomes, the reference series", "sums of squares",
       Measure::Relative, LinearTruth("SDlin", false, &ExposureSession::SDlin),
       LinearSteps("SDlin", true, &ExposureSession::SDlin), Listed()},
      Moments(true),
      Moments(false),
  };
}

}  // namespace accuracy
