#include <gtest/gtest.h>

#include <cmath>

#include "base/fault.h"
#include "tools/accuracy/chance.h"
#include "tools/accuracy/search.h"

// The search and the chances on which the page rests.
namespace {

using accuracy::Figure;

TEST(AccuracySearch, FindsANarrowPeakThatNoTableNames) {
  accuracy::Search search;
  search.axes = {{"df", 1, 1999, 1}, {"x", 1e-6, 1e6}};
  search.truth = [](const accuracy::Point&) { return accuracy::Real(1); };
  search.call = [](const accuracy::Point& at) {
    const double far = std::abs(at[0] - 731) / 50 + std::abs(std::log(at[1] / 0.0123));
    return 1 + 1e-6 * std::exp(-far) + 1e-3 * std::exp(-1e4 * far * far);
  };
  const Figure found = accuracy::Searched(search, accuracy::Measure::Absolute, {1, 5});
  EXPECT_NEAR(found.error, 1.001e-3, 1e-6) << found.where;
}

TEST(AccuracySearch, CountsAFaultAsAnInfiniteError) {
  accuracy::Search search;
  search.axes = {{"x", 0, 1}};
  search.truth = [](const accuracy::Point& at) { return accuracy::Real(at[0]); };
  search.call = [](const accuracy::Point& at) { return Divide(at[0], at[0] < 0.5 ? 1 : 0); };
  EXPECT_TRUE(std::isinf(accuracy::Searched(search, accuracy::Measure::Absolute, {1, 5}).error));
}

TEST(AccuracySearch, ReadsAPlaceAsItWritesIt) {
  accuracy::Search search;
  search.axes = {{"mode", 0, 1, 1, {}, {"S", "P"}}, {"x", 0, 1}};
  const std::string text = accuracy::PlaceText(search, {1, 0.1});
  EXPECT_EQ(text, "mode P, x 0.1");
  EXPECT_EQ(accuracy::PlaceOf(search, text), (accuracy::Point{1, 0.1}));
  EXPECT_TRUE(accuracy::PlaceOf(search, "df 3, x 0.1").empty());
}

TEST(AccuracyChance, DrawsDeviatesOfTheRightMomentsOnEveryMachine) {
  accuracy::Chance chance(1);
  accuracy::Tally normal, chi;
  for (int i = 0; i < 100000; ++i) {
    const double z = chance.Normal();
    normal.Add(z * z);
    chi.Add(chance.ChiSquare(5));
  }
  EXPECT_NEAR(normal.Result().value, 1, 4 * normal.Result().error);
  EXPECT_NEAR(chi.Result().value, 5, 4 * chi.Result().error);
  EXPECT_NEAR(chi.Result().error, std::sqrt(10 / 1e5), 1e-3);
  EXPECT_EQ(accuracy::Chance(7).Uniform(), accuracy::Chance(7).Uniform());
}

}  // namespace
