#include <gtest/gtest.h>

#include <string>

#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The up-down pairs of the limits screen, clicked.
namespace {

using support::ProgramSession;

class LimitsScreenSteps : public testing::Test {
 protected:
  LimitsScreenSteps() {
    p.EnterStatistics("Welders", "10", "0.3", "2");
    EXPECT_TRUE(p.Tab("grenzen"));
    p.box.shown.clear();
    p.Record().MsgText.clear();
  }

  void ExpectLimit(double value, const std::string& msgText) {
    EXPECT_EQ(p.Record().OELV, value);
    EXPECT_EQ(p.Text("VkrValTxB"), GlobalBAS::ShownTrimmed(p.Record(), value));
    EXPECT_EQ(p.Record().MsgText, msgText);
    EXPECT_TRUE(p.box.shown.empty());
    p.Record().MsgText.clear();
  }

  ProgramSession p;
  const std::string smallest = "1E-10 is the smallest value possible";
};

}  // namespace

TEST_F(LimitsScreenSteps, TheFirstClickOnAnEmptyLimitGives1InBothDirections) {
  p.Record().OELV.reset();
  p.Up("VkrVal_UpD");
  ExpectLimit(1, "");
  p.Record().OELV.reset();
  p.Down("VkrVal_UpD");
  ExpectLimit(1, "");
}

TEST_F(LimitsScreenSteps, AHundredThousandthStepsDownTo0AndThenToTheSmallestValue) {
  p.Record().OELV = 0.00001;
  p.Down("VkrVal_UpD");
  ExpectLimit(0, "");
  EXPECT_TRUE(p.Record().LimitsOk) << "the flags wait for the next look at the screen";
  p.Down("VkrVal_UpD");
  ExpectLimit(1E-10, smallest);
}

TEST_F(LimitsScreenSteps, TheTopOfTheRangeIsReachedByTheRowOfThousandsAndAboveItByTheBound) {
  p.Record().OELV = 9999999000;
  p.Up("VkrVal_UpD");
  ExpectLimit(1E+10, "");
  p.Record().OELV = 9999999000.5;
  p.Up("VkrVal_UpD");
  ExpectLimit(1E+10, smallest);
}

TEST_F(LimitsScreenSteps, AValueBetweenTwoLinesOfTheGridFallsToTheLowerOneFirst) {
  p.Record().OELV = 2.57;
  p.Up("VkrVal_UpD");
  ExpectLimit(3.5, "");
  p.Record().OELV = 257;
  p.Down("VkrVal_UpD");
  ExpectLimit(150, "");
}

TEST_F(LimitsScreenSteps, TheSmallestLimitsStepDownButNotUp) {
  p.Record().OELV = 0.00009;
  p.Up("VkrVal_UpD");
  ExpectLimit(0.00009, "");
  p.Down("VkrVal_UpD");
  EXPECT_NEAR(p.Record().OELV.value(), 0.00008, 1e-18);
}

TEST_F(LimitsScreenSteps, AQuarterDoesNotStepDown) {
  p.Record().U = 0.25;
  p.Down("Alpha_UpD");
  EXPECT_EQ(p.Record().U, 0.25);
}

TEST_F(LimitsScreenSteps, NinetyNineAndAHalfDoesNotStepUp) {
  p.Record().D = 99.5;
  p.Up("Delta_UpD");
  EXPECT_EQ(p.Record().D, 99.5);
}

TEST_F(LimitsScreenSteps, ThreeTenthsStepDownToAboutOneTwentiethAndNoFurther) {
  p.Record().U = 0.3;
  p.Down("Alpha_UpD");
  const double once = p.Record().U;
  EXPECT_NEAR(once, 0.05, 1e-15);
  p.Down("Alpha_UpD");
  EXPECT_EQ(p.Record().U, once);
}

TEST_F(LimitsScreenSteps, NoPercentageStepsBelowAHundredth) {
  p.Record().D = 0.255;
  p.Down("Delta_UpD");
  EXPECT_EQ(p.Record().D, 0.01);
}

TEST_F(LimitsScreenSteps, EachPairMovesItsOwnPercentageByAQuarterAndShowsIt) {
  p.Up("Alpha_UpD");
  p.Down("Delta_UpD");
  EXPECT_EQ(p.Record().U, 95.25);
  EXPECT_EQ(p.Text("AlphaTxb"), GlobalBAS::ShownTrimmed(p.Record(), 95.25));
  EXPECT_EQ(p.Record().D, 69.75);
  EXPECT_EQ(p.Text("DeltaTxb"), GlobalBAS::ShownTrimmed(p.Record(), 69.75));
}

TEST_F(LimitsScreenSteps, AStepStartsFromTheTextThatIsBeingTyped) {
  screen::Control& limit = p.At("VkrValTxB");
  limit.text = "40";
  limit.touched = true;
  p.Up("VkrVal_UpD");
  ExpectLimit(50, "");
  screen::Control& cover = p.At("AlphaTxb");
  cover.text = "90";
  cover.touched = true;
  p.Down("Alpha_UpD");
  EXPECT_EQ(p.Record().U, 89.75);
}

TEST_F(LimitsScreenSteps, ASteppedLimitOf0FallsBackTo1AtTheNextLook) {
  p.Record().OELV = 0.00001;
  p.Down("VkrVal_UpD");
  p.program.Open(navigation::ScreenId::Grenzen);
  EXPECT_EQ(p.Record().OELV, 1);
  EXPECT_FALSE(p.Record().LimitsOk);
}
