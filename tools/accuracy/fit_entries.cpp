#include <cmath>
#include <map>

#include "analysis/rankits.h"
#include "analysis/regression.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/series.h"

namespace accuracy {
namespace {

using support::Row;

std::int16_t Index(const Row& row, const std::string& column) {
  return static_cast<std::int16_t>(row.Number(column));
}

// One rankit of the row's sample size and rank; the tables name these columns differently.
std::function<double(const Row&)> Rankit(const std::string& M, const std::string& i) {
  return [M, i](const Row& row) {
    return analysis::RankitsForSampleSize(Index(row, M)).at(Index(row, i));
  };
}

Entry RankitEntry(const std::string& domain, double from, double to, const std::string& method) {
  const auto of = [from, to](const std::string& M) {
    return [M, from, to](const Row& row) { return row.Number(M) >= from && row.Number(M) <= to; };
  };
  return {"RankitsForSampleSize",
          domain,
          method,
          Measure::Absolute,
          {"rankit_truth.csv", "true", {"n", "r"}, Rankit("n", "r"), of("n")},
          {"rankits.csv", "R", {"M", "i"}, Rankit("M", "i"), of("M")}};
}

double Weight(const Row& row) {
  analysis::ShapiroWeights weights;
  analysis::FillShapiroWeights(Index(row, "M"), weights);
  return weights.ShapiroCoeffs.at(Index(row, "i"));
}

std::string NameOfMenu(const std::string& menu) {
  static const std::map<std::string, std::string> names = {
      {"MenuDubLog", "Lg(Lg(x))"}, {"MenuLog", "Log(x)"}, {"MenuSqrt", "Sqr(x)"},
      {"MenuUntransf", "Unt"},     {"MenuSqrd", "x^2"},   {"MenuExp", "Exp(x)"},
      {"MenuRecip", "1/x"}};
  return names.at(menu);
}

// The fit of a row's series on its scale and range.
analysis::Regression Fit(const Row& row, const std::string& first, const std::string& last) {
  ExposureSession s = Series().at(row.Text("series"));
  s.Mode = "R";
  s.CR = "\r";
  s.df = s.M - 1;
  s.SigDigits = 4;
  s.FirstInRange = Index(row, first);
  s.LastInRange = Index(row, last);
  analysis::FitState state;
  state.Transformation =
      row.Has("menu") ? NameOfMenu(row.Text("menu")) : row.Text("Transformation");
  state.RankitTable = analysis::RankitsForSampleSize(SampleCount(s));
  analysis::FillCTransf(s, state.Transformation);
  return analysis::ProbabilityRegression(s, state);
}

using Result = double (*)(const analysis::Regression&);

// Equal outcomes have a GSD of 1, at which the update of the record ends by a fault.
bool Differs(const Row& row) { return row.Text("series") != "NearEqual10"; }

Entry FitEntry(const std::string& routine, const std::string& method, const std::string& column,
               Measure measure, Result result) {
  const bool test = column == "W" || column == "PW";
  return {routine,
          "the reference series, whole and in a range",
          method,
          measure,
          {"fit_truth.csv",
           column,
           {"series", "Transformation", "first", "last"},
           [result](const Row& row) { return result(Fit(row, "first", "last")); },
           Differs},
          {"regression.csv",
           column,
           {"series", "menu", "First", "Last"},
           [result](const Row& row) { return result(Fit(row, "First", "Last")); },
           [test](const Row& row) {
             return row.Text("fault_kind").empty() && (!test || row.Number("fault") < 3);
           }}};
}

Entry ScaleEntry(const std::string& column, double (*routine)(std::string_view, double)) {
  return {column,
          "seven scales",
          "closed form",
          Measure::Relative,
          {},
          {"transform_values.csv", column, {"name", "x"}, [routine](const Row& row) {
             return routine(row.Text("name"), row.Number("x"));
           }}};
}

double PublishedForThree(double W) {
  return 6 / std::acos(-1.0) * (std::asin(std::sqrt(W)) - std::asin(std::sqrt(0.75)));
}

}  // namespace

std::vector<Entry> FitEntries() {
  return {
      RankitEntry("M 3 to 20", 3, 20, "published tables, Harter (1961)"),
      RankitEntry("M 21 to 2000", 21, 2000, "Royston (1982), AS 177.3"),
      ScaleEntry("TransformValue", analysis::TransformValue),
      ScaleEntry("InverseTransform", analysis::InverseTransform),
      {"FillShapiroWeights",
       "M 3 to 2000",
       "Royston (1995), AS R94",
       Measure::Relative,
       {"shapiro_weight_truth.csv", "true", {"M", "i"}, Weight},
       {"shapiro_weights.csv", "a", {"M", "i"}, Weight}},
      FitEntry("ProbabilityRegression: a", "least squares by one-pass sums", "a", Measure::Relative,
               [](const analysis::Regression& fit) { return fit.a; }),
      FitEntry("ProbabilityRegression: b", "least squares by one-pass sums", "b", Measure::Relative,
               [](const analysis::Regression& fit) { return fit.b; }),
      FitEntry("ShapiroWilk: W", "Royston (1995), AS R94", "W", Measure::Absolute,
               [](const analysis::Regression& fit) { return fit.test.W; }),
      FitEntry("ShapiroWilk: probability", "Royston (1995), AS R94; (1993) for censored samples",
               "PW", Measure::Absolute,
               [](const analysis::Regression& fit) { return fit.test.PW; }),
  };
}

std::vector<Entry> FitPeculiarities() {
  return {
      {"ShapiroWilk",
       "M 3",
       "the arc tangent of sqrt W where the publication has the arc sine",
       Measure::Absolute,
       {"fit_truth.csv",
        "PW",
        {"series", "Transformation"},
        [](const Row& row) { return Fit(row, "first", "last").test.PW; },
        [](const Row& row) { return Series().at(row.Text("series")).M == 3; },
        [](const Row& row) { return PublishedForThree(row.Number("W")); }}},
  };
}

}  // namespace accuracy
