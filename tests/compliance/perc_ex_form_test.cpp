#include "compliance/perc_ex_form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/fault.h"
#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The compliance screen around its tests.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using Keys = std::vector<std::string>;

class ComplianceScreen : public testing::Test {
 protected:
  ComplianceScreen() {
    p.EnterStatistics("Welders", "10", "0.3", "2");
    p.Record().OELV = 1;
    p.Record().Unit = "ppm";
    p.Record().RefPeriod = "8 hours";
  }
  void Open() { p.program.Open(ScreenId::PercEx); }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }

  // Shown with a test's layout: every result control, and no introduction.
  void ExpectTestLayout(bool test) {
    for (const screen::Control* control :
         {&form.PercExLbl0, &form.PercExLbl1, &form.PercExLbl2, &form.PercExTxB0, &form.PercExTxB1,
          &form.PercExTxB2, &form.DimLbl2, &form.DimLbl3, &form.DimLbl4, &form.CommentLbl,
          &form.MenuVerd, &form.MenuPrint})
      EXPECT_EQ(control->visible, test) << control->name;
    EXPECT_EQ(form.IntroFrm.visible, !test);
  }

  ProgramSession p;
  compliance::PercExForm& form =
      dynamic_cast<compliance::PercExForm&>(*p.program.FormByName("PercExForm"));
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

TEST_F(ComplianceScreen, TheFirstShowingGivesTheIntroduction) {
  EXPECT_TRUE(p.Tab("grenzen"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, "");
  ExpectTestLayout(false);
  EXPECT_FALSE(form.ComplianceLbl.visible);
  EXPECT_FALSE(form.SampsizeFrm.visible);
  EXPECT_FALSE(form.SampSizeCkb.visible);
  EXPECT_FALSE(form.SampSizeCkb.ticked);
  EXPECT_EQ(form.SampSizeCkb.text, "Optimize sample size");
  EXPECT_EQ(form.UTLFrm.text, "Statistical test");
  EXPECT_EQ(form.WindnrLbl.text, "23");
  EXPECT_EQ(form.DimLbl4.text, "%");
  EXPECT_EQ(p.Record().CurrentTab, "Statistical tests (Comparison with OELV)");
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

TEST_F(ComplianceScreen, ReturningToATestShowsItsLayoutAndRecomputesNothing) {
  Open();
  p.Record().TestTag = "Wi";
  form.PercExTxB0.text = "  12.3";
  p.Record().PercEx = 12.3;
  Open();
  ExpectTestLayout(true);
  EXPECT_EQ(p.Record().PercEx, 12.3);
  EXPECT_EQ(p.Record().TestTag, "Wi");
}

TEST_F(ComplianceScreen, ReturningToTheLeidelTestStillShowsItsResult) {
  Open();
  p.Click("LeidelCmb");
  const std::string percent = form.PercExTxB0.text;
  const std::string limit = form.PercExTxB1.text;
  EXPECT_TRUE(p.Tab("descript"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, "Le");
  ExpectTestLayout(true);
  EXPECT_EQ(form.PercExTxB0.text, percent);
  EXPECT_EQ(form.PercExTxB1.text, limit);
  EXPECT_TRUE(form.ComplianceLbl.visible);
}

TEST_F(ComplianceScreen, ResultsOfOtherStatisticsOrLimitsAreGoneOnReturn) {
  using Change = void (*)(ExposureSession&);
  const std::vector<std::pair<std::string, Change>> changes = {{"GM", [](ExposureSession& s) { s.GM = 0.4; }},
                                                               {"GSD", [](ExposureSession& s) { s.GSD = 2.1; }},
                                                               {"df", [](ExposureSession& s) { s.df = 8; }},
                                                               {"OELV", [](ExposureSession& s) { s.OELV = 2; }},
                                                               {"U", [](ExposureSession& s) { s.U = 90; }},
                                                               {"D", [](ExposureSession& s) { s.D = 80; }}};
  Open();
  for (const auto& [name, change] : changes) {
    p.Click("LeidelCmb");
    EXPECT_NE(form.PercExTxB0.text, "") << name;
    change(p.Record());
    Open();
    EXPECT_EQ(form.PercExTxB0.text, "") << name;
    EXPECT_EQ(form.PercExTxB1.text, "") << name;
    EXPECT_FALSE(form.ComplianceLbl.visible) << name;
  }
}

TEST_F(ComplianceScreen, WithoutALimitAboveZeroTheStartScreenComesBack) {
  p.Record().OELV = 0;
  Open();
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().CurrentTab, "Start");
  p.Record().OELV.reset();
  Open();
  EXPECT_EQ(p.Shown().name, "BasisForm");
}

TEST_F(ComplianceScreen, OffersTheTestsThatThereAre) {
  Open();
  EXPECT_TRUE(form.LeidelCmb.enabled);
  EXPECT_FALSE(form.WilksCmb.enabled);
  EXPECT_FALSE(form.TuggleCmb.enabled);
  EXPECT_TRUE(form.MenuLeid.enabled);
  EXPECT_FALSE(form.MenuWilks.enabled);
  EXPECT_FALSE(form.MenuTugg.enabled);
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

TEST_F(ComplianceScreen, VisitingTheLimitsForgetsTheChosenTest) {
  Open();
  p.Click("LeidelCmb");
  EXPECT_TRUE(p.Tab("grenzen"));
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Record().TestTag, "");
  ExpectTestLayout(false);
  EXPECT_FALSE(form.ComplianceLbl.visible);
}

TEST_F(ComplianceScreen, ItsBoxesAreForReadingOnly) {
  for (const screen::Control* box : {&form.PercExTxB0, &form.PercExTxB1, &form.PercExTxB2})
    EXPECT_TRUE(box->locked) << box->name;
}
