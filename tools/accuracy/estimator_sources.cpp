#include "tools/accuracy/estimator_sources.h"

#include "stats/estimators.h"

namespace accuracy {

using support::Row;

const std::vector<Column>& EstimatorInputs() {
  static const std::vector<Column> inputs = {"df", "GM", "GSD"};
  return inputs;
}

std::function<double(const Row&)> CalledWith(Estimator estimator) {
  return [estimator](const Row& row) {
    return estimator(row.Number("df"), row.Number("GM"), row.Number("GSD"));
  };
}

// Rows of estimator_truth.csv of one function with a GSD of `from` up to `to`.
Source EstimatorTruth(const std::string& function, double from, double to, Estimator estimator) {
  return {"estimator_truth.csv", "true", EstimatorInputs(), CalledWith(estimator),
          [function, from, to](const Row& row) {
            return row.Text("function") == function && row.Number("GSD") >= from &&
                   row.Number("GSD") <= to;
          }};
}

Search LookAtEstimator(double dfFrom, double from, double to, Estimator estimator,
                       Definition truth) {
  Search search;
  search.axes = {{"df", dfFrom, 1999, 1},
                 {"GM", 0.0001, 10000, 0, {1}},
                 {"GSD", from, to, 0, {1.05, 2, 8, 46.14, 200}}};
  search.call = [estimator](const Point& at) { return estimator(at[0], at[1], at[2]); };
  search.truth = [truth](const Point& at) { return truth(at[0], at[1], at[2]); };
  search.tries = 30000;
  return search;
}

double GMUnbiasedOf(double df, double GM, double GSD) {
  ExposureSession s;
  s.df = df;
  return StatFWinBAS::GMUnbiased(s, GM, GSD);
}

ExposureSession LinearMomentsOf(double df, double GM, double GSD) {
  ExposureSession s;
  s.Mode = DataMode::Statistics;
  s.M = df + 1;
  s.GM = GM;
  s.GSD = GSD;
  StatFWinBAS::LinearMoments(s);
  return s;
}

}  // namespace accuracy
