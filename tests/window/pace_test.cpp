#include <gtest/gtest.h>

#include "ui/pace.h"

// Which steps of a search are painted, on a clock that the test sets.
namespace {

class Paces : public testing::Test {
 protected:
  Paces() {
    pace.now = [this] { return milliseconds; };
  }
  int DueOf(int steps) {
    int due = 0;
    for (int i = 0; i < steps; ++i) due += pace.IsDue();
    return due;
  }
  std::int64_t milliseconds = 5;
  ui::Pace pace;
};

}  // namespace

TEST_F(Paces, TheFirstSixtyStepsArePaintedAtOnce) {
  EXPECT_EQ(DueOf(60), 60);
  EXPECT_EQ(DueOf(1000), 0);
}

TEST_F(Paces, ThenOneStepOfEachPictureThatADisplayShows) {
  DueOf(60);
  milliseconds += 16;
  EXPECT_EQ(DueOf(10), 0);
  milliseconds += 1;
  EXPECT_EQ(DueOf(10), 1);
  milliseconds += 1000;
  EXPECT_EQ(DueOf(10), 1);
}

TEST_F(Paces, ASearchThatTakesItsTimeHasEachStepPainted) {
  int due = 0;
  for (int i = 0; i < 200; ++i, milliseconds += 17) due += pace.IsDue();
  EXPECT_EQ(due, 200);
}

TEST_F(Paces, TheNextSearchBeginsAnew) {
  DueOf(100);
  pace.Restart();
  EXPECT_EQ(DueOf(100), 60);
}
