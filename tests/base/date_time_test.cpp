#include <gtest/gtest.h>

#include "base/date_time.h"

namespace {

TEST(DateTime, ADateIsShownAsDayShortMonthAndYear) {
  EXPECT_EQ(base::DateText({2024, 3, 7, 9, 5, 30}), "7 Mar 2024");
  EXPECT_EQ(base::DateText({1999, 12, 31, 0, 0, 0}), "31 Dec 1999");
  EXPECT_EQ(base::DateText({2031, 1, 10, 0, 0, 0}), "10 Jan 2031");
}

TEST(DateTime, ATimeHasTwoDigitsForEachPart) {
  EXPECT_EQ(base::TimeText({2024, 3, 7, 9, 5, 30}), "09:05:30");
  EXPECT_EQ(base::TimeText({2024, 3, 7, 23, 59, 0}), "23:59:00");
  EXPECT_EQ(base::TimeText({2024, 3, 7, 0, 0, 9}), "00:00:09");
}

}  // namespace
