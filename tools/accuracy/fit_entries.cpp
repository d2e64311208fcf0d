#include <cmath>
#include <map>

#include "analysis/rankits.h"
#include "analysis/regression_on_record.h"
#include "analysis/shapiro.h"
#include "analysis/transformations.h"
#include "tools/accuracy/entries.h"
#include "tools/accuracy/fit_searches.h"
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
          {"rankits.csv", "R", {"M", "i"}, Rankit("M", "i"), of("M")},
          LookAtRankits(from, to)};
}

bool IsThree(const Row& row) { return row.Number("n") == 3; }

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
  s.Mode = DataMode::Raw;
  s.CR = "\r";
  s.df = s.M - 1;
  s.SigDigits = 4;
  // A series without a spread gets no GSD of its own, and a record without one ends by a fault.
  s.GSD = 1.1;
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

// The outcomes of this series differ in their seventh digit only.
bool Alike(const Row& row) { return row.Text("series") == "NearEqual10"; }

Source FitTruth(const std::string& column, bool alike, Result result) {
  return {"fit_truth.csv",
          column,
          {"series", "Transformation", "first", "last"},
          [result](const Row& row) { return result(Fit(row, "first", "last")); },
          [alike](const Row& row) { return Alike(row) == alike; }};
}

Source FitSteps(const std::string& column, Result result) {
  const bool test = column == "W" || column == "PW";
  return {"regression.csv",
          column,
          {"series", "menu", "First", "Last"},
          [result](const Row& row) { return result(Fit(row, "First", "Last")); },
          [test](const Row& row) {
            return row.Text("fault_kind").empty() && (!test || row.Number("fault") < 3);
          }};
}

struct Fitted {
  const char* routine;
  const char* method;
  const char* column;
  Measure measure;
  Result result;
};

constexpr const char* kLine = "least squares by one-pass sums";
constexpr const char* kRoyston = "Royston (1995), AS R94; (1993) for censored samples";

constexpr Fitted kFitted[] = {
    {"ProbabilityRegression: a", kLine, "a", Measure::Relative,
     [](const analysis::Regression& fit) { return fit.a; }},
    {"ProbabilityRegression: b", kLine, "b", Measure::Relative,
     [](const analysis::Regression& fit) { return fit.b; }},
    {"ShapiroWilk: W", kRoyston, "W", Measure::Absolute,
     [](const analysis::Regression& fit) { return fit.test.W; }},
    {"ShapiroWilk: probability", kRoyston, "PW", Measure::Absolute,
     [](const analysis::Regression& fit) { return fit.test.PW; }},
};

Entry FitEntry(const Fitted& fitted, bool alike) {
  return {fitted.routine,
          alike ? "the one series whose outcomes differ in their seventh digit only"
                : "the reference series, whole and in a range",
          fitted.method,
          fitted.measure,
          FitTruth(fitted.column, alike, fitted.result),
          alike ? Source{} : FitSteps(fitted.column, fitted.result),
          Listed()};
}

bool IsDouble(const Row& row) { return row.Text("name") == "Lg(Lg(x))"; }

Entry ScaleEntry(const std::string& routine, const std::string& way, const std::string& domain,
                 bool doubled, TransformOf scale) {
  return {routine,
          (doubled ? "the double logarithm, " : "all scales but the double logarithm, ") + domain,
          "closed form",
          Measure::Relative,
          {"transform_truth.csv",
           "true",
           {"name", "argument"},
           [scale](const Row& row) { return scale(row.Text("name"), row.Number("argument")); },
           [=](const Row& row) { return row.Text("way") == way && IsDouble(row) == doubled; }},
          {"transform_values.csv",
           routine,
           {"name", "x"},
           [scale](const Row& row) { return scale(row.Text("name"), row.Number("x")); },
           [doubled](const Row& row) { return IsDouble(row) == doubled; }},
          LookAtScale(way == "there", doubled, scale)};
}

}  // namespace

std::vector<Entry> FitEntries() {
  std::vector<Entry> all = {
      {"RankitsForSampleSize",
       "M 3",
       "five decimals",
       Measure::Absolute,
       {"rankit_truth.csv", "true", {"n", "r"}, Rankit("n", "r"), IsThree},
       {},
       LookAtRankits(3, 3)},
      RankitEntry("M 4 to 20", 4, 20,
                  "the values of Harter's table (1961), recomputed to 15 decimals; he prints five"),
      RankitEntry("M 21 to 39", 21, 39, "Royston (1982), AS 177.3"),
      RankitEntry("M 40 to 2000", 40, 2000, "Royston (1982), AS 177.3"),
      ScaleEntry("TransformValue", "there", "x 1E-10 to 1E+10, exponential to 700", false,
                 analysis::TransformValue),
      ScaleEntry("TransformValue", "there", "x 1.0001 to 1E+10, 0.01 and more from e", true,
                 analysis::TransformValue),
      ScaleEntry("InverseTransform", "back", "y 1E-10 to 700", false, analysis::InverseTransform),
      ScaleEntry("InverseTransform", "back", "y 1E-10 to 6", true, analysis::InverseTransform),
      {"FillShapiroWeights",
       "M 3 to 2000",
       "Royston (1995), AS R94",
       Measure::Relative,
       {"shapiro_weight_truth.csv", "true", {"M", "i"}, Weight},
       {"shapiro_weights.csv", "a", {"M", "i"}, Weight},
       LookAtWeights()},
  };
  for (const Fitted& fitted : kFitted)
    for (const bool alike : {false, true}) all.push_back(FitEntry(fitted, alike));
  return all;
}

std::vector<Entry> FitPeculiarities() {
  return {
      {"RankitsForSampleSize",
       "order 4 from M 40 on",
       "without the correction that the approximation has for it at smaller samples",
       Measure::Absolute,
       {"rankit_truth.csv",
        "true",
        {"n", "r"},
        Rankit("n", "r"),
        [](const Row& row) { return row.Number("n") >= 40 && row.Number("r") == 4; }},
       {},
       LookAtOrderFour()},
      {"ProbabilityRegression: b",
       "1/x with a range, a lognormal sample of 20 with a GSD of 2.718",
       "the scale turns the order of the outcomes round and the range stays, so that it takes "
       "those "
       "at the other end",
       Measure::Relative,
       {},
       {},
       LookAtMirroredRange()},
      {"ShapiroWilk",
       "M 3",
       "the arc tangent of sqrt W where the publication has the arc sine",
       Measure::Absolute,
       {"fit_truth.csv",
        "PW",
        {"series", "Transformation"},
        [](const Row& row) { return Fit(row, "first", "last").test.PW; },
        [](const Row& row) { return Series().at(row.Text("series")).M == 3; },
        [](const Row& row) { return PublishedForThree(row.Number("W")); }},
       {},
       LookAtThree()},
  };
}

}  // namespace accuracy
