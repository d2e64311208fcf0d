#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "analysis/regression.h"
#include "analysis/shapiro.h"
#include "tests/analysis/fit_data.h"
#include "tests/stats/table_check.h"
#include "tests/support/csv.h"

namespace {

using analysis::FillShapiroWeights;
using analysis::FitState;
using analysis::ShapiroResult;
using analysis::ShapiroWeights;
using analysis::ShapiroWilk;
using support::Row;

class ShapirosTables : public table::Delivered {};

// A test with two or fewer in range tells nothing; the plain steps show their start values for it.
bool TooFewInRange(const Row& row) {
  return row.Number("last") - row.Number("first") + 1 < 3 || row.Number("M") < 3;
}

// In the range of the table's row, on the scale of its menu.
ShapiroResult Tested(const Row& row, std::string& text) {
  ExposureSession s = fit_data::Opened(fit_data::SortedSeries().at(row.Text("series")));
  FitState state = fit_data::Activated(s, fit_data::NameOfMenu(row.Text("menu")));
  s.SigDigits = static_cast<std::int16_t>(row.Number("SigDigits"));
  const ShapiroResult result =
      ShapiroWilk(s.LnC, static_cast<int>(row.Number("M")), static_cast<int>(row.Number("first")),
                  static_cast<int>(row.Number("last")), state.weights);
  text = ShapiroText(s, result);
  return result;
}

// The part of the text in front of the digits of the probability, whose last ones are rounding.
std::string UpToTheProbability(const std::string& text) {
  return text.substr(0, std::min(text.size(), text.find("A(W)=") + 5));
}

TEST_F(ShapirosTables, GivesTheValuesAndTheTextOfTheReferenceTable) {
  int shown = 0;
  for (const Row& row : support::ReadTable("shapiro.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series") + " " + row.Text("menu"));
    std::string text;
    const ShapiroResult result = Tested(row, text);
    EXPECT_EQ(result.fault, row.Number("fault"));
    table::Expect(row, {"first", "last"}, "W", 1e-13, [&] { return result.W; });
    table::Expect(row, {"first", "last"}, "PW", 1e-9, [&] { return result.PW; });
    const std::string wanted = fit_data::Unescaped(row.Text("text"));
    if (TooFewInRange(row)) {
      EXPECT_TRUE(text.ends_with("\rnot possible\r")) << text;
    } else if (row.Text("text").size() < 75) {
      EXPECT_EQ(text, wanted);
      ++shown;
    } else {
      EXPECT_EQ(UpToTheProbability(text), UpToTheProbability(wanted));
    }
  }
  EXPECT_GT(shown, 200);
}

TEST_F(ShapirosTables, HasTheWeightsOfTheReferenceTable) {
  for (const Row& row : support::ReadTable("shapiro_weights.csv")) {
    ShapiroWeights weights;
    FillShapiroWeights(static_cast<int>(row.Number("M")), weights);
    table::Expect(row, {"M", "i"}, "a", 1e-13, [&] {
      return weights.ShapiroCoeffs.at(static_cast<std::size_t>(row.Number("i")));
    });
  }
}

// An outcome on the scale of the published series, and how many of them are cut off.
ShapiroResult OfPublished(const std::vector<double>& values, int below, int above) {
  ShapiroWeights weights;
  const int M = static_cast<int>(values.size()) - 1;
  return ShapiroWilk(values, M, below + 1, M - above, weights);
}

std::map<std::string, std::vector<double>> PublishedSeries() {
  std::map<std::string, std::vector<double>> all;
  for (const Row& row : support::ReadTable("published_series.csv")) {
    auto& series = all[row.Text("series")];
    if (series.empty()) series.push_back(-1);
    series.push_back(row.Number("value"));
  }
  for (auto& [name, series] : all) std::sort(series.begin() + 1, series.end());
  return all;
}

std::vector<double> OnScale(std::vector<double> values, double (*scale)(double)) {
  for (std::size_t i = 1; i < values.size(); ++i) values[i] = scale(values[i]);
  return values;
}

// Samples of three follow another probability here, which the edge cases below show.
TEST_F(ShapirosTables, AgreesWithAnIndependentProgramOnPublishedSeries) {
  const auto series = PublishedSeries();
  const std::map<std::string, double (*)(double)> scales = {
      {"ln", [](double x) { return std::log(x); }},
      {"sqrt", [](double x) { return std::sqrt(x); }},
      {"identity", [](double x) { return x; }},
      {"square", [](double x) { return x * x; }}};
  for (const Row& row : support::ReadTable("shapiro_results_derived.csv")) {
    const std::string& quantity = row.Text("quantity");
    const auto& scale = scales.at(quantity.substr(std::string("Shapiro_W_").size()));
    const auto result = OfPublished(OnScale(series.at(row.Text("series")), scale), 0, 0);
    const bool statistic = quantity[8] == 'W';
    table::Expect(row, {"series", "quantity"}, "value", statistic ? 1e-9 : 1e-6,
                  [&] { return statistic ? result.W : result.PW; });
  }
}

// The program compared with is in single precision, good for 5 to 6 digits.
TEST_F(ShapirosTables, AgreesWithAnIndependentProgramOnCensoredSeries) {
  const auto series = PublishedSeries();
  for (const Row& row : support::ReadTable("shapiro_censored.csv")) {
    SCOPED_TRACE(row.Where() + " " + row.Text("series"));
    const auto values =
        OnScale(series.at(row.Text("series")), [](double x) { return std::log(x); });
    const auto result = OfPublished(values, static_cast<int>(row.Number("below")),
                                    static_cast<int>(row.Number("above")));
    EXPECT_EQ(result.fault, row.Number("fault"));
    if (!result.tested) continue;
    EXPECT_NEAR(result.W, row.Number("W"), 3e-6);
    EXPECT_NEAR(result.PW, row.Number("p"), 1e-6 + 6e-5 * row.Number("p"));
  }
}

}  // namespace
