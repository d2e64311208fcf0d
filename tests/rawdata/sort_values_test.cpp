#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <algorithm>

#include "rawdata/raw_file.h"

namespace {

using rawdata::SortValues;
using testing::ElementsAre;

TEST(SortValues, AnUnsortedSeriesIsSortedAndKnownAsSorted) {
  std::vector<double> c = {99, 3, 1, 2};
  std::string order = "Onbekend";
  SortValues(3, c, order);
  EXPECT_THAT(c, ElementsAre(99, 1, 2, 3)) << "the median in front stays";
  EXPECT_EQ(order, "Ascending");
}

TEST(SortValues, TwoOutcomesAreSwappedAndTheOrderStaysUnknown) {
  std::vector<double> c = {0, 2, 1};
  std::string order = "Onbekend";
  SortValues(2, c, order);
  EXPECT_THAT(c, ElementsAre(0, 1, 2));
  EXPECT_EQ(order, "Onbekend");
}

TEST(SortValues, TwoOutcomesAreSwappedEvenWhenTheyAreKnownAsSorted) {
  std::vector<double> c = {0, 2, 1};
  std::string order = "Ascending";
  SortValues(2, c, order);
  EXPECT_THAT(c, ElementsAre(0, 1, 2));
  EXPECT_EQ(order, "Ascending");
}

TEST(SortValues, ASeriesKnownAsSortedIsNotTouched) {
  std::vector<double> c = {0, 3, 1, 2};
  std::string order = "Ascending";
  SortValues(3, c, order);
  EXPECT_THAT(c, ElementsAre(0, 3, 1, 2));
}

TEST(SortValues, OnlyTheCountedOutcomesAreSorted) {
  std::vector<double> c = {0, 3, 2, 1, 0.5, 0.1};
  std::string order = "Onbekend";
  SortValues(3, c, order);
  EXPECT_THAT(c, ElementsAre(0, 1, 2, 3, 0.5, 0.1));
}

TEST(SortValues, NothingOrOneOutcomeIsSorted) {
  for (const int count : {0, 1}) {
    std::vector<double> c(static_cast<std::size_t>(count) + 1, 5);
    std::string order = "Onbekend";
    SortValues(count, c, order);
    EXPECT_EQ(order, "Ascending");
  }
}

TEST(SortValues, EverySeriesEndsAscendingWithTheSameOutcomes) {
  const bool holds = rc::check("sorted", [](std::vector<double> values) {
    RC_PRE(values.size() != 2U);
    std::vector<double> c = {0};
    c.insert(c.end(), values.begin(), values.end());
    std::string order = "Onbekend";
    SortValues(static_cast<int>(values.size()), c, order);
    std::sort(values.begin(), values.end());
    RC_ASSERT(std::vector<double>(c.begin() + 1, c.end()) == values);
  });
  EXPECT_TRUE(holds);
}

}  // namespace
