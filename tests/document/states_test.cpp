// What the document tells in the states of a session.
#include <gmock/gmock.h>

#include <cstring>

#include "stats/coefficients.h"
#include "tests/document/document_session.h"

namespace {

using testing::HasSubstr;
using testing::Not;

using DocumentStates = DocumentSession;

TEST_F(DocumentStates, ASeriesBeingTypedHasItsRowsAndNoEstimates) {
  OpenTwelve();
  p.program.Session().C[2] = 0;
  p.program.Session().RawIncomplete = true;
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("the series is not complete"));
  EXPECT_THAT(text, HasSubstr("2: empty"));
  EXPECT_THAT(text, HasSubstr("Row 2 is empty."));
  EXPECT_THAT(text, Not(HasSubstr("Geometric Mean")));
}

TEST_F(DocumentStates, WithoutLimitsItSaysThatTheTestsWaitForOne) {
  OpenTwelve();
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("There is no valid limit value yet: state it on Limits."));
  EXPECT_THAT(text, Not(HasSubstr("Compliance\r\n")));
  EXPECT_THAT(text, HasSubstr("Geometric Mean GM"));
}

TEST_F(DocumentStates, EqualOutcomesGiveTheReasonAndNoNumbers) {
  OpenTwelve();
  p.Record().noEstimates = true;
  p.Record().spread = Spread::None;
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("All outcomes are equal: there is no spread to evaluate."));
  EXPECT_THAT(text, Not(HasSubstr("Geometric Mean")));
}

TEST_F(DocumentStates, TwoOutcomesHaveNoPaper) {
  p.OpenSeries({1, 2});
  EXPECT_TRUE(Tells("Probability paper and test of fit: A line needs three outcomes."));
}

TEST_F(DocumentStates, ARefusedSearchOfLandIsToldWithItsReason) {
  p.EnterStatistics("Welders", "2", "2", "2.5");
  StateLimit("5");
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("Land: Sample Size out of range. Use Jahr's approximate method"));
  EXPECT_THAT(text, Not(HasSubstr("Land (1975)")));
  EXPECT_THAT(text, HasSubstr("Jahr (1987)"));
}

TEST_F(DocumentStates, ACoverageOfHalfLeavesTheVerdictOpen) {
  p.EnterStatistics("Welders", "10", "2", "2.5");
  StateLimit("5");
  p.Type("AlphaTxb", "40");
  const std::string text = Text();
  EXPECT_THAT(text, HasSubstr("nothing is decided"));
  EXPECT_THAT(text, HasSubstr("must be more than 50%"));
}

TEST_F(DocumentStates, AComparisonThatIsOutOfDateIsLeftOut) {
  p.EnterStatistics("Welders", "10", "2", "2.5");
  p.box.answers = {screen::Answer::Yes};
  p.Tab("Compare");
  p.Click("PopOpt");
  p.Click("CalcCmb");
  EXPECT_TRUE(Tells("EXP(sigma)"));
  p.Type("GMTxB2", "3");
  p.Record().M2 = 77;
  EXPECT_TRUE(Tells("Compare: none was made with these data."));
}

TEST_F(DocumentStates, WeakApproximationsAreNamed) {
  p.EnterStatistics("Welders", "202", "2", "2.5");
  StateLimit("5");
  EXPECT_TRUE(Tells("EN 689 with more than 200 degrees of freedom"));
  EXPECT_TRUE(Tells("Jahr's limit of the mean is an approximation"));
}

TEST_F(DocumentStates, NoApproximationIsNamedOfATestThatGivesNothing) {
  p.EnterStatistics("Welders", "300", "0.3", "2");
  StateLimit("1");
  ASSERT_TRUE(Tells("EN 689 with more than 200 degrees of freedom"));
  p.Type("AlphaTxb", "40");
  EXPECT_FALSE(Tells("EN 689 with more than 200 degrees of freedom"));
}

TEST_F(DocumentStates, ValuesThatAreTriedAreCalledSo) {
  OpenTwelve();
  p.Tab("basis");
  p.Click("OriModiCmd");
  p.Type("GMTxB", "5");
  EXPECT_EQ(ValueOf("Geometric Mean GM", "as tried on top of the series"), "5");
  EXPECT_FALSE(ValueOf("Geometric Standard Deviation GSD", "as tried on top").empty());
}

TEST_F(DocumentStates, NothingWeakIsSaidWhereNothingWeakWasUsed) {
  OpenTwelve();
  EXPECT_TRUE(Tells("No weak approximation was used."));
}

TEST_F(DocumentStates, CensoredOutcomesWeakenTheTestOfFit) {
  OpenTwelve();
  p.Click("DetecChB");
  p.Type("DetecLTxb", "0.8");
  EXPECT_TRUE(Tells("outside the detection range at one end"));
  p.Type("DetecUTxb", "4");
  EXPECT_TRUE(Tells("outside the detection range at both ends"));
}

TEST_F(DocumentStates, OtherCoefficientsAreNamed) {
  OpenTwelve();
  EXPECT_TRUE(Tells("as delivered with the program"));
  StatFWinBAS::LoadCoefficients({"/nowhere"});
  const std::string text = Text();
  StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"});
  EXPECT_THAT(text, Not(HasSubstr("as delivered with the program")));
  EXPECT_THAT(text, HasSubstr("is missing"));
}

TEST_F(DocumentStates, MakingItLeavesTheRecordAsItIs) {
  OpenTwelve();
  StateLimit("5");
  p.Tab("extrapolation");
  p.Click("WilksCmb");
  const ExposureSession before = p.Record();
  Made();
  const ExposureSession& now = p.Record();
  EXPECT_TRUE(static_cast<const Given&>(now) == before);
  EXPECT_EQ(std::memcmp(static_cast<const Computed*>(&now), static_cast<const Computed*>(&before),
                        sizeof(Computed)),
            0);
  EXPECT_EQ(now.LnC, before.LnC);
  EXPECT_EQ(now.GM, before.GM);
  EXPECT_EQ(now.GSD, before.GSD);
  EXPECT_EQ(now.df, before.df);
  EXPECT_EQ(now.TestTag, before.TestTag);
  EXPECT_EQ(now.MsgText, before.MsgText);
  EXPECT_EQ(now.RegressionLabel, before.RegressionLabel);
  EXPECT_EQ(now.CurrentTab, before.CurrentTab);
}

// What a screen has left in the record is no source of the document.
TEST_F(DocumentStates, ResultsLeftInTheRecordAreNotRead) {
  OpenTwelve();
  StateLimit("5");
  p.Tab("descript");
  const std::string before = Text();
  ExposureSession& s = p.Record();
  s.GMu = s.AMml = s.AMu = s.AMmv = s.XM = s.SDu = s.SDlin = 77.7;
  s.PercEx = s.UCL = s.UTL = s.LandConfidence = s.LnGM = s.LnGSD = 77.7;
  EXPECT_EQ(Text(), before);
}

}  // namespace
