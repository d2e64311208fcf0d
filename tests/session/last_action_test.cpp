#include "session/last_action.h"

#include <gtest/gtest.h>

#include "session/record.h"

// What the live line may still tell of the last action.
namespace {

class TheLastAction : public testing::Test {
 protected:
  TheLastAction() {
    record.Change([](Given& given) {
      given.Mode = DataMode::Raw;
      given.Name = "series.vkr";
      given.M = 9;
      given.C = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    });
  }
  bool Told() const { return record.Reported(ScreenId::DataCtrl) != nullptr; }
  void Report(Did did) { record.Report(ScreenId::DataCtrl, {.did = did, .count = 9}); }

  Record record;
};

TEST_F(TheLastAction, NothingIsToldBeforeTheFirst) { EXPECT_FALSE(Told()); }

TEST_F(TheLastAction, IsToldOnItsOwnScreen) {
  Report(Did::Read);
  ASSERT_TRUE(Told());
  EXPECT_EQ(record.Reported(ScreenId::DataCtrl)->count, 9);
  EXPECT_EQ(record.Reported(ScreenId::PercEx), nullptr);
}

TEST_F(TheLastAction, IsGoneWithTheNext) {
  Report(Did::Read);
  Report(Did::Saved);
  EXPECT_EQ(record.Reported(ScreenId::DataCtrl)->did, Did::Saved);
}

// "9 outcomes read." must not stand beside a sample size of 8.
TEST_F(TheLastAction, IsGoneWithAnotherSampleSize) {
  Report(Did::Read);
  record.Change([](Given& given) { given.M = 8; });
  EXPECT_FALSE(Told());
}

TEST_F(TheLastAction, IsGoneWithTheNextEdit) {
  Report(Did::Pasted);
  record.Change([](Given& given) { given.C[4] = 3.5; });
  EXPECT_FALSE(Told());
}

TEST_F(TheLastAction, IsGoneWithAnotherNameOrUnit) {
  Report(Did::Saved);
  record.Change([](Given& given) { given.Unit = "ppm"; });
  EXPECT_FALSE(Told());
  Report(Did::Saved);
  record.Change([](Given& given) { given.Name = "other.vkr"; });
  EXPECT_FALSE(Told());
}

TEST_F(TheLastAction, IsGoneWithTheDetectionRange) {
  Report(Did::Undone);
  record.Change([](Given& given) { given.DetecOn = true; });
  EXPECT_FALSE(Told());
}

// The first activation states a unit and default limits; "9 outcomes read." is as true as before.
TEST_F(TheLastAction, OutlivesTheDefaultsOfUnitAndLimits) {
  Report(Did::Read);
  record.Change([](Given& given) { given.Unit = "mg/m3"; });
  record.StatusFlags();
  EXPECT_TRUE(Told());
}

TEST_F(TheLastAction, ARefusedLimitIsToldUntilTheLimitChanges) {
  record.Change([](Given& given) { given.OELV = 1; });
  record.Report(ScreenId::Grenzen, {.did = Did::LimitRefused, .what = "0"});
  record.Change([](Given& given) { given.D = 95; });
  EXPECT_NE(record.Reported(ScreenId::Grenzen), nullptr);
  record.Change([](Given& given) { given.OELV = 5; });
  EXPECT_EQ(record.Reported(ScreenId::Grenzen), nullptr);
}

TEST_F(TheLastAction, ARefusalIsForgottenOnTheWayToAnotherScreen) {
  Report(Did::TabClosed);
  record.ForgetRefusals();
  EXPECT_FALSE(Told());
  Report(Did::Saved);
  record.ForgetRefusals();
  EXPECT_TRUE(Told());
}

TEST_F(TheLastAction, EndsWithTheSession) {
  Report(Did::Saved);
  record.Close();
  EXPECT_FALSE(Told());
}

}  // namespace
