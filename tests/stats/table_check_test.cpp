#include "tests/stats/table_check.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <limits>

// The yardstick of the accuracy tests must itself fail when it should.
namespace {

TEST(LargestError, IsThatOfTheWorstRow) {
  table::WorstAbsolute worst;
  worst.Take(1, 1, "first");
  worst.Take(5, 5.5, "second");
  worst.Take(5, 4.75, "third");
  EXPECT_EQ(worst.error, 0.5);
  EXPECT_EQ(worst.where, "second");
  EXPECT_EQ(worst.rows, 3);
  table::Worst relative;
  relative.Take(5, 4, "row");
  EXPECT_EQ(relative.error, 0.25);
}

TEST(LargestError, StaysThatOfAResultThatIsNoNumber) {
  table::Worst worst;
  worst.Take(std::numeric_limits<double>::quiet_NaN(), 1, "no number");
  worst.Take(1, 1, "good");
  EXPECT_EQ(worst.where, "no number");
  EXPECT_NONFATAL_FAILURE(worst.Hold("x", 1), "no number");
}

TEST(LargestError, OfNoRowAtAllFails) {
  const table::Worst worst;
  EXPECT_NONFATAL_FAILURE(worst.Hold("x", 1), "no row");
}

}  // namespace
