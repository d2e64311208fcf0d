#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/compliance/compliance_screen.h"
#include "tests/support/letters.h"

// The compliance screen around its tests.
namespace {

using support::ProgramSession;
using Keys = std::vector<std::string>;

class LayoutOfTheComplianceScreen : public ComplianceScreen {
 protected:
  // The layout of a test, or of the introduction.
  void ExpectLayout(Extrapolation test) {
    for (const screen::Control* control :
         {&form.PercExLbl0, &form.PercExLbl1, &form.PercExTxB0, &form.PercExTxB1, &form.DimLbl2,
          &form.DimLbl3, &form.CommentLbl, &form.MenuVerd, &form.MenuPrint})
      EXPECT_EQ(control->visible, test != Extrapolation::None) << control->name;
    for (const screen::Control* control : {&form.PercExLbl2, &form.PercExTxB2, &form.DimLbl4})
      EXPECT_EQ(control->visible, test == Extrapolation::En689) << control->name;
    EXPECT_EQ(form.SampSizeCkb.visible, test == Extrapolation::Wilks);
    EXPECT_EQ(form.IntroFrm.visible, test == Extrapolation::None);
  }
};

class ComplianceScreenOfASeries : public testing::Test {
 protected:
  ProgramSession p;
};

}  // namespace

TEST_F(ComplianceScreen, LoadsAtItsFirstShowing) {
  EXPECT_EQ(form.caption, "");
  Open();
  EXPECT_EQ(form.caption, "Comparing the exposure distribution with the OELV");
}

TEST_F(LayoutOfTheComplianceScreen, TheFirstShowingGivesTheIntroduction) {
  EXPECT_TRUE(p.Tab("grenzen"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  ExpectLayout(Extrapolation::None);
  EXPECT_FALSE(form.ComplianceLbl.visible);
  EXPECT_FALSE(form.SampsizeFrm.visible);
  EXPECT_FALSE(form.SampSizeCkb.visible);
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  EXPECT_EQ(form.SampSizeCkb.text, "Optimize sample size");
  EXPECT_EQ(form.UTLFrm.text, "Statistical test");
  EXPECT_EQ(form.WindnrLbl.text, "23");
  EXPECT_EQ(form.DimLbl4.text, "%");
  EXPECT_EQ(p.Record().CurrentTab, ScreenId::PercEx);
}

TEST_F(ComplianceScreen, ItsHeaderShowsTheRecord) {
  Open();
  EXPECT_EQ(form.NameLbl.text, "Welders");
  EXPECT_EQ(form.SampSizLbl.text, Number(10));
  EXPECT_EQ(form.DegreesLbl.text, Number(9));
  EXPECT_EQ(form.GMLbl.text, Number(0.3));
  EXPECT_EQ(form.GSDLbl.text, Number(2));
  EXPECT_EQ(form.VkrValLbl1.text, Number(1) + " ppm \\  8 hours");
  p.Record().RefPeriod.clear();
  Open();
  EXPECT_EQ(form.VkrValLbl1.text, Number(1) + " ppm");
}

TEST_F(ComplianceScreen, TheIntroductionTellsTheDistanceOfThisSeriesFromItsLimit) {
  Open();
  const std::string& intro = form.IntroLbl.text;
  EXPECT_EQ(intro.rfind("3 Extrapolation techniques to estimate the population exposure range.", 0),
            0u);
  EXPECT_NE(intro.find("The sampling duration of exposure data must be representative for the "
                       "reference period of the limit value. "),
            std::string::npos);
  for (const char* words : {"Press <Leidel>", "Press <Wilks>", "Press <EN689>"})
    EXPECT_NE(intro.find(words), std::string::npos) << words;
  const std::string start = "SEG compliance test for 10  exposure measurements and Ur= = ";
  ASSERT_NE(intro.find(start), std::string::npos) << intro;
  const std::string rest = intro.substr(intro.find(start) + start.size());
  EXPECT_EQ(rest, GlobalBAS::ShownTrimmed(p.Record(), 1.7369655941662063) +
                      " from formula Ur=[ln(OELV)-ln(GM)]/ln(GSD)  (F.3)");
}

TEST_F(ComplianceScreen, TheIntroductionIsComposedAnewAtEachShowing) {
  Open();
  p.Record().M = 25;
  p.Record().GM = 1;
  Open();
  EXPECT_NE(
      form.IntroLbl.text.find("SEG compliance test for 25  exposure measurements and Ur= = 0 "),
      std::string::npos)
      << form.IntroLbl.text;
}

TEST_F(ComplianceScreen, TheWordsOfTheStatisticsFollowTheRegression) {
  Open();
  EXPECT_EQ(form.Frame2.text, "Descriptive statistics of the current data");
  EXPECT_EQ(form.Frame2.tip, form.Frame2.text);
  EXPECT_EQ(form.GMLbl0.text, "Geometric Mean GM=");
  EXPECT_EQ(form.GSDLbl0.text, "Geometric Standard Deviation GSD=");
  p.Record().RegressionOn = true;
  p.Record().RegressionLabel = "Single censored";
  Open();
  EXPECT_EQ(form.Frame2.text, "Regression descriptive statistics of the current data");
  EXPECT_EQ(form.Frame2.tip, form.Frame2.text);
  EXPECT_EQ(form.GMLbl0.text, "Single censored Rankit estimate GMg=");
  EXPECT_EQ(form.GSDLbl0.text, "Single censored Rankit estimate GSDg=");
}

TEST_F(LayoutOfTheComplianceScreen, ReturningToATestShowsItsLayoutAndRecomputesNothing) {
  for (const char* const button : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) {
    Open();
    p.Click(button);
    const Extrapolation test = p.Record().TestTag;
    const std::string percent = form.PercExTxB0.text;
    p.Record().PercEx = 12.3;
    const std::string title = form.UTLFrm.text;
    EXPECT_TRUE(p.Tab("descript"));
    EXPECT_TRUE(p.Tab("extrapolation"));
    ExpectLayout(test);
    EXPECT_EQ(p.Record().TestTag, test);
    EXPECT_EQ(form.UTLFrm.text, title);
    EXPECT_EQ(form.PercExTxB0.text, percent) << button;
    EXPECT_EQ(p.Record().PercEx, 12.3) << button << " is not computed again";
    EXPECT_EQ(form.WindnrLbl.text, "23");
    EXPECT_EQ(form.DimLbl4.text, "%");
  }
}

TEST_F(LayoutOfTheComplianceScreen, ReturningToTheLeidelTestStillShowsItsResult) {
  Open();
  p.Click("LeidelCmb");
  const std::string percent = form.PercExTxB0.text;
  const std::string limit = form.PercExTxB1.text;
  EXPECT_TRUE(p.Tab("descript"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Leidel);
  ExpectLayout(Extrapolation::Leidel);
  EXPECT_EQ(form.PercExTxB0.text, percent);
  EXPECT_EQ(form.PercExTxB1.text, limit);
  EXPECT_TRUE(form.ComplianceLbl.visible);
}

// Whatever the results rest on: the statistics, the limit, the wished coverage and confidence.
TEST_F(ComplianceScreen, ResultsOfOtherStatisticsOrLimitsAreGoneOnReturn) {
  using Change = void (*)(ExposureSession&);
  const std::vector<std::pair<std::string, Change>> changes = {
      {"GM", [](ExposureSession& s) { s.GM = 0.4; }},
      {"GSD", [](ExposureSession& s) { s.GSD = 2.1; }},
      {"M", [](ExposureSession& s) { s.M = 11; }},
      {"df", [](ExposureSession& s) { s.df = 8; }},
      {"RegressionOn", [](ExposureSession& s) { s.RegressionOn = true; }},
      {"NInRange", [](ExposureSession& s) { s.NInRange = 7; }},
      {"OELV", [](ExposureSession& s) { s.OELV = 2; }},
      {"U", [](ExposureSession& s) { s.U = 90; }},
      {"D", [](ExposureSession& s) { s.D = 80; }}};
  for (const char* const button : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) {
    for (const auto& [name, change] : changes) {
      Open(10, 0.3, 2, 1);
      p.Record().RegressionOn = false;
      p.Click(button);
      EXPECT_NE(form.PercExTxB0.text, "") << name;
      change(p.Record());
      Open();
      for (const screen::Control* box : {&form.PercExTxB0, &form.PercExTxB1, &form.PercExTxB2})
        EXPECT_EQ(box->text, "") << name << " " << box->name;
      EXPECT_EQ(Line(),
                "Statistics or limits have changed since this test: press its button again.");
      EXPECT_FALSE(form.ComplianceLbl.visible) << name;
    }
  }
}

// The picture shows the limit of the record, which must be that of the test on the screen.
TEST_F(ComplianceScreen, OffersThePictureWithAResultOnly) {
  for (const char* const button : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) {
    SCOPED_TRACE(button);
    Open(10, 0.3, 2, 1);
    p.Click(button);
    EXPECT_TRUE(form.MenuVerd.enabled);
    p.Tab("descript");
    p.Tab("extrapolation");
    EXPECT_TRUE(form.MenuVerd.enabled);
    p.Record().GM = 0.4;
    Open();
    EXPECT_TRUE(form.MenuVerd.visible);
    EXPECT_FALSE(form.MenuVerd.enabled);
    p.Click(button);
    EXPECT_TRUE(form.MenuVerd.enabled);
  }
}

// Without a coverage above 50 % there is no limit but that of the test before.
TEST_F(ComplianceScreen, OffersNoPictureOfAnotherTestsLimit) {
  Open(10, 0.3, 2, 1, 45);
  p.Click("LeidelCmb");
  EXPECT_TRUE(form.MenuVerd.enabled);
  p.Click("TuggleCmb");
  EXPECT_EQ(form.PercExTxB1.text, "");
  EXPECT_FALSE(form.MenuVerd.enabled);
}

TEST_F(ComplianceScreen, TheSmallestSampleOfOtherStatisticsIsGoneOnReturn) {
  Open();
  p.Click("WilksCmb");
  Tick();
  EXPECT_NE(form.SampMinTxB.text, "");
  p.Record().GSD = 2.1;
  Open();
  for (const screen::Control* control :
       {&form.ComMinLbl, &form.DegrMinTxb, &form.PercExTxB3, &form.SampMinTxB})
    EXPECT_EQ(control->text, "") << control->name;
  EXPECT_FALSE(form.SampsizeFrm.visible);
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  EXPECT_TRUE(form.SampSizeCkb.visible);
}

// The numbers in the captions are wishes of the user, not results.
TEST_F(ComplianceScreen, CaptionsFollowAnotherCoverageEvenBeforeTheTestIsRepeated) {
  Open();
  p.Click("TuggleCmb");
  p.Record().U = 90;
  p.Record().D = 80;
  Open();
  EXPECT_EQ(form.PercExLbl0.text,
            "Confidence that less than 10% of the exposure distribution exceeds OELV");
  EXPECT_EQ(form.PercExLbl1.text, "The 90%-tile upper tolerance limit with 80% confidence =");
}

TEST_F(ComplianceScreen, WithoutALimitAboveZeroTheStartScreenComesBack) {
  p.Record().OELV = 0;
  Open();
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().CurrentTab, ScreenId::Basis);
  p.Record().OELV.reset();
  Open();
  EXPECT_EQ(p.Shown().name, "BasisForm");
}

TEST_F(ComplianceScreen, OffersAllThreeTestsByButtonAndByMenu) {
  Open();
  for (const char* name :
       {"LeidelCmb", "WilksCmb", "TuggleCmb", "MenuLeid", "MenuWilks", "MenuTugg"}) {
    EXPECT_TRUE(p.At(name).enabled) << name;
    EXPECT_TRUE(p.At(name).visible) << name;
  }
}

TEST_F(ComplianceScreen, OfStatisticsHasNoTabForOutcomesOrTheirPlot) {
  Open();
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_EQ(p.Shown().strip->selected, "extrapolation");
  const screen::Tab& compare = p.Shown().strip->tabs.back();
  EXPECT_EQ(compare.caption, "Compare");
  EXPECT_EQ(compare.tip,
            "Comparison with the descriptive statistics of a second log-Normal distribution");
  EXPECT_FALSE(form.MenuPlot.visible);
}

TEST_F(ComplianceScreenOfASeries, HasATabForItsOutcomesAndFromThreeOnForTheirPlot) {
  p.OpenSeries({0.4, 0.9, 1.3});
  p.Tab("basis");  // the start screen's flags take the default limit as set
  ASSERT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "extrapolation",
                               "mean", "Compare"}));
  EXPECT_TRUE(p.At("MenuPlot").visible);
  p.Tab("basis");
  p.OpenSeries({0.4, 0.9});
  p.Tab("basis");
  ASSERT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "raw", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_FALSE(p.At("MenuPlot").visible);
}

TEST_F(LayoutOfTheComplianceScreen, VisitingTheLimitsForgetsTheChosenTest) {
  Open();
  p.Click("LeidelCmb");
  EXPECT_TRUE(p.Tab("grenzen"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  ExpectLayout(Extrapolation::None);
  EXPECT_FALSE(form.ComplianceLbl.visible);
}

TEST_F(ComplianceScreen, ItsBoxesAreForReadingOnly) {
  for (const screen::Control* box : {&form.PercExTxB0, &form.PercExTxB1, &form.PercExTxB2,
                                     &form.DegrMinTxb, &form.PercExTxB3, &form.SampMinTxB})
    EXPECT_TRUE(box->locked) << box->name;
}
