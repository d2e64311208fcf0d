#include <gtest/gtest.h>

#include <string>

#include "tests/compliance/compliance_screen.h"

// The frame of the smallest sample as the user sees it.
namespace {

class SampleSizeOnTheScreen : public ComplianceScreen {
 protected:
  // Behind a Wilks test of this sample.
  void Optimise(double M, double GM, double GSD, double OELV, double U = 95) {
    Open(M, GM, GSD, OELV, U);
    p.Click("WilksCmb");
    p.box.shown.clear();
    Tick();
  }
  void ExpectEnd(const std::string& end) {
    EXPECT_TRUE(form.ComMinLbl.text.ends_with("\r" + end)) << form.ComMinLbl.text;
  }
};

const std::string kGiven =
    "Given GM, GSD and OELV, the minimum sample size Mmin is calculated for which the "
    "non-compliance probability will be below A% on average, using the method of Wilks (Proschan  "
    "Am. Stat. Assoc. J. 48 (1953) 550-564).";

}  // namespace

TEST_F(SampleSizeOnTheScreen, TheCurrentSampleIsTooSmallByChapter72) {
  Optimise(10, 0.3, 2, 1);
  EXPECT_TRUE(form.SampsizeFrm.visible);
  EXPECT_EQ(form.SampsizeFrm.text, "Optimize sample size for long term compliance control");
  EXPECT_EQ(form.ComMinLbl.text, kGiven +
                                     "\r\rCompliance on average, if sample size increases to Mopt. "
                                     "See manual chapter 7.2.");
  EXPECT_EQ(form.DegrMinLbl.text, "Non-compliance on average, for df=");
  EXPECT_EQ(form.DegrMinTxb.text, "    27");
  EXPECT_EQ(form.PercExLbl3.text, "Corresponding 'unbiased' compliance probability A(C>OELV)>=");
  EXPECT_EQ(form.PercExTxB3.text, "    5.0");
  EXPECT_EQ(form.SampMinLbl.text, "Corresponding minimum sample size Mopt=");
  EXPECT_EQ(form.SampMinTxB.text, "    28");
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(SampleSizeOnTheScreen, ALargerOrTheSameSampleIsToldSo) {
  Optimise(29, 0.3, 2, 1);
  ExpectEnd(
      "Compliance on average, even if the sample size decreases to Mopt. See manual chapter 7.2.");
  Optimise(28, 0.3, 2, 1);
  ExpectEnd("Compliance on average, for the current sample size. See manual chapter 7.2.");
}

TEST_F(SampleSizeOnTheScreen, GMFarBelowTheLimitNeedsNoSearchByChapter71) {
  Optimise(10, 0.0001, 1.5, 1);
  EXPECT_EQ(form.DegrMinLbl.text, "Compliance on average even for df=");
  EXPECT_EQ(form.DegrMinTxb.text, "     1");
  EXPECT_EQ(form.PercExLbl3.text, "Compliance probability for df=1          A(C>OELV)=");
  EXPECT_EQ(form.PercExTxB3.text, Number(p.Record().PercEx));
  EXPECT_EQ(form.SampMinLbl.text, "Corresponding minimum sample size Mopt=");
  EXPECT_EQ(form.SampMinTxB.text, "     2");
  ExpectEnd("Consider if sampling is necessary. See manual chapter 7.1.");
}

TEST_F(SampleSizeOnTheScreen, TheSearchStopsAt99DegreesOfFreedomByChapter73) {
  Optimise(10, 0.317, 2, 1);
  EXPECT_EQ(form.DegrMinTxb.text, "    99");
  EXPECT_EQ(form.SampMinTxB.text, "   100");
  ExpectEnd(
      "Compliance on average, only for a large sample size over one hundred. See manual chapter "
      "7.3.");
}

TEST_F(SampleSizeOnTheScreen, NoSampleSizeCompliesWithGMAboveTheLimitByChapter74) {
  Optimise(10, 3, 2, 1);
  EXPECT_EQ(form.DegrMinLbl.text, "Non-compliance on average, even for df=");
  EXPECT_EQ(form.DegrMinTxb.text, "infinite");
  EXPECT_EQ(form.PercExLbl3.text, "Compliance probability for df=Infinite   A(C>OELV)=");
  EXPECT_EQ(form.PercExTxB3.text, "   94.35");
  EXPECT_EQ(form.SampMinTxB.text, "infinite");
  const std::string never =
      "Non-compliance on average, for any sample size. See manual chapter 7.4.";
  EXPECT_EQ(form.ComMinLbl.text, kGiven + "\r" + never);
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_EQ(p.LastBox().text, never);
  EXPECT_EQ(p.LastBox().title, "Optimize sample size");
  EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
}

TEST_F(SampleSizeOnTheScreen, LeavesTheSampleAndItsHeaderAsTheyWere) {
  for (const double GM : {0.0001, 0.3, 0.317, 3.0}) {
    Optimise(10, GM, 2, 1);
    EXPECT_EQ(p.Record().M, 10);
    EXPECT_EQ(p.Record().df, 9);
    Open();
    EXPECT_EQ(form.SampSizLbl.text, "    10");
    EXPECT_EQ(form.DegreesLbl.text, "     9");
  }
}

TEST_F(SampleSizeOnTheScreen, UntickingHidesTheFrameAndLeavesItsBoxes) {
  Optimise(10, 0.3, 2, 1);
  Tick();
  EXPECT_FALSE(form.SampsizeFrm.visible);
  EXPECT_EQ(form.SampMinTxB.text, "    28");
  EXPECT_EQ(form.DegrMinTxb.text, "    27");
  EXPECT_EQ(form.PercExTxB3.text, "    5.0");
}

TEST_F(SampleSizeOnTheScreen, WithoutAWilksTestTheFrameStaysAsItIs) {
  Optimise(10, 0.3, 2, 1);
  Tick();
  p.Record().TestTag = Extrapolation::Leidel;
  p.Record().GM = 3;
  Tick();
  EXPECT_TRUE(form.SampsizeFrm.visible);
  EXPECT_EQ(form.SampMinTxB.text, "    28");
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(SampleSizeOnTheScreen, HalfThePopulationIsNoCoverageSoTheBoxIsUnticked) {
  for (const double U : {50.0, 40.0}) {
    Optimise(10, 0.3, 2, 1, U);
    ASSERT_EQ(p.box.shown.size(), 1u);
    EXPECT_EQ(p.LastBox().text,
              "Desired population Coverage U% in Tab Limits must be more than 50%");
    EXPECT_EQ(p.LastBox().title, "Exceedance percentage");
    EXPECT_FALSE(form.SampSizeCkb.ticked);
    EXPECT_TRUE(form.SampSizeCkb.visible);
    EXPECT_FALSE(form.SampsizeFrm.visible);
  }
}

TEST_F(SampleSizeOnTheScreen, ReturningToTheScreenHidesTheFrame) {
  Optimise(10, 0.3, 2, 1);
  EXPECT_TRUE(p.Tab("descript"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_FALSE(form.SampsizeFrm.visible);
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  EXPECT_TRUE(form.SampSizeCkb.visible);
  EXPECT_EQ(form.SampSizeCkb.text, "Optimize sample size");
}

// A regression over ties may leave no outcome in its range, which the size of the sample is
// reckoned by.
TEST_F(SampleSizeOnTheScreen, AFaultIsToldOnceAndLeavesTheSample) {
  Open(10, 0.0001, 2, 1);
  p.Record().RegressionOn = true;
  p.Record().df = 7;
  p.Record().NInRange = 0;
  Open();
  p.Click("WilksCmb");
  p.box.shown.clear();
  Tick();
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_NE(p.LastBox().text.find("division by zero"), std::string::npos) << p.LastBox().text;
  EXPECT_EQ(p.Record().M, 10);
  EXPECT_EQ(p.Record().df, 7);
  EXPECT_EQ(form.SampMinTxB.text, "");
}
