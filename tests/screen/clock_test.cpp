#include <gtest/gtest.h>

#include "screen/clock.h"

namespace {

TEST(Clock, ADateIsShownAsDayShortMonthAndYear) {
  EXPECT_EQ(screen::DateText({2024, 3, 7, 9, 5, 30}), "7 Mar 2024");
  EXPECT_EQ(screen::DateText({1999, 12, 31, 0, 0, 0}), "31 Dec 1999");
  EXPECT_EQ(screen::DateText({2031, 1, 10, 0, 0, 0}), "10 Jan 2031");
}

TEST(Clock, ATimeHasTwoDigitsForEachPart) {
  EXPECT_EQ(screen::TimeText({2024, 3, 7, 9, 5, 30}), "09:05:30");
  EXPECT_EQ(screen::TimeText({2024, 3, 7, 23, 59, 0}), "23:59:00");
  EXPECT_EQ(screen::TimeText({2024, 3, 7, 0, 0, 9}), "00:00:09");
}

}  // namespace
