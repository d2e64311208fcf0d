#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <utility>

#include "compliance/wilks.h"
#include "tests/compliance/compliance_screen.h"

// The Wilks test as the user sees it.
namespace {

class WilksOnTheScreen : public ComplianceScreen {
 protected:
  void Press() { p.Click("WilksCmb"); }

  // Neighbouring limit values of which the lower is exceeded by at least 5 percent.
  std::pair<double, double> LimitsAbout5Percent() {
    double low = 0.3;
    double high = 100;
    while (std::nextafter(low, high) < high) {
      const double middle = low + (high - low) / 2;
      const double distance = std::log(middle / 0.3) / std::log(2.0);
      (compliance::WilksExceedance(9, distance) >= 5 ? low : high) = middle;
    }
    return {low, high};
  }
};

}  // namespace

TEST_F(WilksOnTheScreen, HasItsNumberTitleCaptionsTipsAndComment) {
  Open();
  Press();
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Wilks);
  EXPECT_EQ(form.WindnrLbl.text, "26");
  EXPECT_EQ(form.UTLFrm.text, "Statistical test:  Wilks (1941)");
  EXPECT_EQ(form.PercExLbl0.text, "Percent exceedance A(C>OELV) =");
  EXPECT_EQ(form.PercExLbl1.text, "The 95 % upper tolerance limit");
  const std::string hallmark =
      "The 'unbiased' estimate of the non-compliance probability A is the hallmark of this quality "
      "control method. ";
  EXPECT_EQ(form.PercExLbl0.tip, hallmark);
  EXPECT_EQ(form.PercExTxB0.tip, hallmark);
  const std::string covers = "The upper limit that covers ## percent of the distribution";
  EXPECT_EQ(form.PercExLbl1.tip, covers);
  EXPECT_EQ(form.PercExTxB1.tip, covers);
  EXPECT_EQ(form.CommentLbl.text,
            hallmark +
                "Algorithms from Wilks (1947) and Proschan (1953). A Lognormal goodness-of-fit "
                "should be at least probable. Engineering controls should be installed if A>5%.");
  EXPECT_FALSE(form.IntroFrm.visible);
  for (const screen::Control* control :
       {&form.ComplianceLbl, &form.CommentLbl, &form.MenuVerd, &form.MenuPrint, &form.SampSizeCkb})
    EXPECT_TRUE(control->visible) << control->name;
}

TEST_F(WilksOnTheScreen, HidesTheRowOfTheEN689Test) {
  Open();
  p.Click("TuggleCmb");
  EXPECT_TRUE(form.PercExTxB2.visible);
  Press();
  for (const screen::Control* control : {&form.PercExLbl2, &form.PercExTxB2, &form.DimLbl4})
    EXPECT_FALSE(control->visible) << control->name;
}

TEST_F(WilksOnTheScreen, ShowsExceedanceLimitAndVerdict) {
  Open();
  Press();
  EXPECT_EQ(form.PercExTxB0.text, "    6.6");
  EXPECT_EQ(form.PercExTxB1.text, "    1.14");
  EXPECT_EQ(form.ComplianceLbl.text, "VALKORIN/ Wilks(1941) Non-Compliance");
  EXPECT_TRUE(Red(form.ComplianceLbl));
  Open(30, 0.3, 2, 2);
  Press();
  EXPECT_EQ(form.ComplianceLbl.text, "VALKORIN/ Wilks(1941) Compliance");
  EXPECT_TRUE(Green(form.ComplianceLbl));
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(WilksOnTheScreen, OneDegreeOfFreedomSpreadsByTheRootOfOneAndAHalf) {
  Open(2, 0.3, 2, 1);
  Press();
  const double t = std::log(1 / 0.3) / std::log(2.0) / std::sqrt(1.5);
  const double cauchy = 100 * (0.5 - std::atan(t) / std::acos(-1.0));
  EXPECT_NEAR(p.Record().PercEx, cauchy, 1e-12);
  EXPECT_EQ(form.PercExTxB0.text, Number(cauchy));
}

TEST_F(WilksOnTheScreen, ALimitValueAtTheGeometricMeanIsExceededByHalf) {
  Open(10, 0.3, 2, 0.3);
  Press();
  EXPECT_EQ(p.Record().PercEx, 50);
  EXPECT_EQ(form.PercExTxB0.text, "    50");
  EXPECT_TRUE(Red(form.ComplianceLbl));
}

TEST_F(WilksOnTheScreen, BelowFivePercentIsComplianceAndFromFiveOnItIsNot) {
  const auto [low, high] = LimitsAbout5Percent();
  Open(10, 0.3, 2, low);
  Press();
  EXPECT_GE(p.Record().PercEx, 5);
  EXPECT_NEAR(p.Record().PercEx, 5, 1e-12);
  EXPECT_EQ(form.ComplianceLbl.text, "VALKORIN/ Wilks(1941) Non-Compliance");
  EXPECT_TRUE(Red(form.ComplianceLbl));
  Open(10, 0.3, 2, high);
  Press();
  EXPECT_LT(p.Record().PercEx, 5);
  EXPECT_TRUE(Green(form.ComplianceLbl));
}

TEST_F(WilksOnTheScreen, HalfThePopulationLiesBelowTheGeometricMean) {
  Open(10, 0.3, 2, 1, 50);
  Press();
  EXPECT_EQ(p.Record().UTL, 0.3);
  EXPECT_EQ(form.PercExTxB1.text, "    0.3");
  EXPECT_EQ(form.PercExLbl1.text, "The 50 % upper tolerance limit");
}

TEST_F(WilksOnTheScreen, AnExceedanceBelowAllNumbersIsShownAsLessThan1E16) {
  Open(60, 0.001, 1.3, 100);
  Press();
  EXPECT_EQ(p.Record().PercEx, 0);
  EXPECT_EQ(form.PercExTxB0.text, "    <1E-16");
}

// The text of the bound would stand there for no longer than one repaint.
TEST_F(WilksOnTheScreen, ALimitBeyondTheBoundsLeavesTheLimitOfTheTestBefore) {
  struct Case {
    double GM, GSD;
    const char* message;
  };
  for (const Case& c :
       {Case{100, 1.1966870919052819, "Upper tolerance limit is larger than 1E+300"},
        Case{1, 1000, "Upper tolerance limit is smaller than 1E-300"}}) {
    Open(2, c.GM, c.GSD, 1000, 99.99);
    p.Click("LeidelCmb");
    const double before = p.Record().UTL;
    const std::string shown = form.PercExTxB1.text;
    Press();
    EXPECT_EQ(p.Record().UTL, before);
    EXPECT_EQ(form.PercExTxB1.text, shown) << c.message;
    EXPECT_EQ(p.Record().MsgText, c.message);
    EXPECT_EQ(Line(),
              std::string(c.message) + "; its box still shows the limit of the test before.");
    EXPECT_TRUE(p.box.shown.empty()) << "the message is only kept";
    Tick();
    EXPECT_THAT(Line(), testing::HasSubstr("its box still shows")) << "a warning stays";
  }
}

TEST_F(WilksOnTheScreen, TakesTheRegressionEstimatesAndReducedDegreesOfFreedom) {
  Open(20, 0.4, 2.4, 3);
  p.Record().RegressionOn = true;
  p.Record().df = 6;
  Open();
  Press();
  const double distance = std::log(3 / 0.4) / std::log(2.4);
  EXPECT_EQ(p.Record().PercEx, compliance::WilksExceedance(6, distance));
}

TEST_F(WilksOnTheScreen, OffersTheSampleSizeAnewAtEachPress) {
  Open();
  Press();
  EXPECT_TRUE(form.SampSizeCkb.visible);
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  Tick();
  EXPECT_TRUE(form.SampsizeFrm.visible);
  Press();
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  EXPECT_FALSE(form.SampsizeFrm.visible);
  for (const char* other : {"LeidelCmb", "TuggleCmb"}) {
    Press();
    Tick();
    p.Click(other);
    EXPECT_FALSE(form.SampSizeCkb.visible) << other;
    EXPECT_FALSE(form.SampSizeCkb.ticked) << other;
    EXPECT_FALSE(form.SampsizeFrm.visible) << other;
  }
}

// A fault ends the test: what the test before had found must not stand beside its captions.
TEST_F(WilksOnTheScreen, AFaultLeavesNoResultOfTheTestBefore) {
  Open();
  p.Click("TuggleCmb");
  p.Record().df = -1;
  Press();
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_NE(p.LastBox().text.find("division by zero"), std::string::npos) << p.LastBox().text;
  for (const screen::Control* control :
       {&form.PercExTxB0, &form.PercExTxB1, &form.PercExTxB2, &form.ComplianceLbl})
    EXPECT_EQ(control->text, "") << control->name;
  EXPECT_EQ(Line(), "");
}
