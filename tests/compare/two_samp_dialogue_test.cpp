#include <vector>

#include "catalog/catalog.h"
#include "tests/compare/comparison_screen.h"

// The comparison screen from its first showing to the choice of a reference.
namespace {

using screen::Answer;
using screen::Buttons;
using Keys = std::vector<std::string>;

TEST_F(ComparisonScreen, LoadsAtItsFirstShowing) {
  EXPECT_EQ(form.caption, "");
  Start();
  EXPECT_EQ(form.caption,
            "Comparison with the descriptive statistics of a second log-Normal distribution");
}

TEST_F(ComparisonScreen, TheFirstVisitAsksForReferenceDataOverTheIntroduction) {
  p.Tab("Compare");
  const screen::Message question = TakeBox();
  EXPECT_EQ(question.title, "Compare the disperion and the location of 2 distributions");
  EXPECT_EQ(question.text, "Are reference data available ?");
  EXPECT_EQ(question.icon, screen::Icon::Question);
  EXPECT_EQ(question.buttons, Buttons::YesNo);
  EXPECT_EQ(question.defaultAnswer, Answer::Yes);
  EXPECT_EQ(form.IntroLbl.text,
            "Valid reference data are the true Lognormal descriptive statistics EXP(mu) and   \r"
            "EXP(sigma), or the sample estimators GM and GSD. To compare more than two data sets,\r"
            "apply ANalysis Of VAriance on log-transformed exposure data (Snedecor 1980).    ");
}

// Nothing is left to do but to leave; the question comes again at the next visit.
TEST_F(ComparisonScreen, ANoOnTheFirstQuestionLeavesTheIntroductionAlone) {
  Reply(Answer::No);
  p.Tab("Compare");
  EXPECT_EQ(p.Record().CompareMode, ReferenceKind::None);
  EXPECT_EQ(p.Record().M2, 0);
  EXPECT_TRUE(form.IntroFrame.visible);
  EXPECT_TRUE(form.HuidigFrame.visible);
  for (const screen::Control* control :
       {&form.PopSampFrame, &form.DescrSecond, &form.GSDEqualFrm, &form.CalcCmb, &form.DescrInfFrm,
        &form.PooledFrm, &form.BoodschFrame, &form.MenuPrint})
    EXPECT_FALSE(control->visible) << control->name;
  EXPECT_TRUE(p.Tab("descript")) << "another tab can be picked";
  EXPECT_EQ(p.Shown().name, "DescriptForm");
  p.box.shown.clear();
  p.Tab("Compare");
  EXPECT_EQ(TakeBox().text, "Are reference data available ?");
}

TEST_F(ComparisonScreen, TheQuestionStandsOverTheIntroductionAndTheCurrentData) {
  bool introduction = false;
  p.box.watch = [&] { introduction = form.IntroFrame.visible && !form.DescrSecond.visible; };
  Start();
  EXPECT_TRUE(introduction);
  p.Record().CompareMode = ReferenceKind::None;
  introduction = false;
  Start();
  EXPECT_TRUE(introduction) << "whatever stood there before";
}

TEST_F(ComparisonScreen, AYesStartsWithTheDataAgainstThemselves) {
  Start();
  EXPECT_EQ(p.Record().CompareMode, ReferenceKind::Sample);
  EXPECT_EQ(p.Record().M2, 10);
  EXPECT_EQ(p.Record().df2, 9);
  EXPECT_EQ(p.Record().GM2, 0.3);
  EXPECT_EQ(p.Record().GSD2, 2);
  EXPECT_EQ(form.SampSizTxB2.text, "10");
  EXPECT_EQ(form.GMTxB2.text, "0.3");
  EXPECT_EQ(form.GSDTxB2.text, "2");
  EXPECT_EQ(form.GSDInfTxb.text, kBlanks);
  EXPECT_EQ(form.GMInfTxb.text, kBlanks);
  EXPECT_TRUE(form.SampOpt.ticked);
  EXPECT_FALSE(form.PopOpt.ticked);
  EXPECT_FALSE(form.IntroFrame.visible);
  for (const screen::Control* control :
       {&form.PopSampFrame, &form.DescrSecond, &form.SampSizLbl2, &form.SampSizTxB2,
        &form.SampSiz2_UpD, &form.GSDEqualFrm, &form.CalcCmb, &form.DescrInfFrm, &form.PooledFrm})
    EXPECT_TRUE(control->visible) << control->name;
  EXPECT_EQ(form.WindnrLbl.text, "29");
}

TEST_F(ComparisonScreen, ACalculationOfTheDataAgainstThemselvesGivesProbabilitiesOf100) {
  Start();
  Calculate();
  EXPECT_EQ(form.GSDInfTxb.text, Number(100));
  EXPECT_EQ(form.GMInfTxb.text, Number(100));
}

TEST_F(ComparisonScreen, OnlyAReferenceValueThatWasNeverEnteredTakesThatOfTheData) {
  p.Record().GM2 = 0.7;
  p.Record().M2 = 25;
  Start();
  EXPECT_EQ(form.GMTxB2.text, "0.7");
  EXPECT_EQ(form.SampSizTxB2.text, "25");
  EXPECT_EQ(form.GSDTxB2.text, "2");
}

void ExpectWords(compare::TwoSampCompForm& form, const std::vector<int>& rows) {
  const std::vector<screen::Control*> controls = {&form.DescrSecond, &form.GMLbl2,
                                                  &form.GSDLbl2,     &form.DescrInfFrm,
                                                  &form.GSDinferLbl, &form.GMinferLbl};
  for (std::size_t i = 0; i < controls.size(); ++i)
    EXPECT_EQ(controls[i]->text, LoadResString(rows[i])) << controls[i]->name;
}

TEST_F(ComparisonScreen, APopulationHasNoSampleSizeAndNothingOnVariances) {
  Start();
  p.Click("PopOpt");
  EXPECT_EQ(p.Record().CompareMode, ReferenceKind::Population);
  EXPECT_EQ(form.WindnrLbl.text, "30a");
  EXPECT_TRUE(form.PopOpt.ticked);
  EXPECT_FALSE(form.SampOpt.ticked);
  for (const screen::Control* control : {&form.GSDEqualFrm, &form.SampSizLbl2, &form.SampSizTxB2,
                                         &form.SampSiz2_UpD, &form.PooledFrm, &form.DescrInfFrm})
    EXPECT_FALSE(control->visible) << control->name;
  EXPECT_TRUE(form.CalcCmb.visible);
  ExpectWords(form, {3010, 3030, 3020, 3070, 3080, 3090});
}

TEST_F(ComparisonScreen, ASampleChosenAgainHasThemBack) {
  Start();
  ExpectWords(form, {2910, 2930, 2920, 2970, 2980, 2990});
  p.Click("PopOpt");
  p.Click("SampOpt");
  EXPECT_EQ(p.Record().CompareMode, ReferenceKind::Sample);
  EXPECT_EQ(form.WindnrLbl.text, "29a");
  for (const screen::Control* control :
       {&form.GSDEqualFrm, &form.SampSizLbl2, &form.SampSizTxB2, &form.SampSiz2_UpD, &form.CalcCmb})
    EXPECT_TRUE(control->visible) << control->name;
  ExpectWords(form, {2910, 2930, 2920, 2970, 2980, 2990});
}

TEST_F(ComparisonScreen, SwitchingBetweenSampleAndPopulationHidesTheOldResultsAtOnce) {
  Start();
  Calculate();
  ASSERT_TRUE(Results());
  p.Click("PopOpt");
  ExpectNoResults("a choice of the population");
  Calculate();
  ASSERT_TRUE(Results());
  p.Click("SampOpt");
  ExpectNoResults("a choice of the sample");
}

TEST_F(ComparisonScreen, AReturnResumesTheComparisonWithoutAQuestion) {
  Start();
  p.Type("GMTxB2", "0.5");
  p.Type("GSDTxB2", "3");
  p.Type("SampSizTxB2", "40");
  p.Tab("descript");
  p.box.shown.clear();
  p.Tab("Compare");
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(p.Record().CompareMode, ReferenceKind::Sample);
  EXPECT_EQ(form.SampSizTxB2.text, "40");
  EXPECT_EQ(form.GMTxB2.text, "0.5");
  EXPECT_EQ(form.GSDTxB2.text, "3");
  EXPECT_TRUE(form.SampOpt.ticked);
  EXPECT_EQ(form.WindnrLbl.text, "29");
}

TEST_F(ComparisonScreen, AReturnToAPopulationShowsAPopulation) {
  Start();
  p.Click("PopOpt");
  Calculate();
  p.Tab("grenzen");
  p.Tab("Compare");
  EXPECT_TRUE(form.PopOpt.ticked);
  EXPECT_FALSE(form.SampSizTxB2.visible);
  EXPECT_FALSE(form.GSDEqualFrm.visible);
  ExpectNoResults("a return");
  ExpectWords(form, {3010, 3030, 3020, 3070, 3080, 3090});
}

// The data may be others by then.
TEST_F(ComparisonScreen, NoResultOutlastsALeave) {
  Start();
  Calculate();
  p.Tab("descript");
  p.Tab("Compare");
  EXPECT_EQ(form.GSDInfTxb.text, kBlanks);
  EXPECT_EQ(form.GMInfTxb.text, kBlanks);
  for (const screen::Control* box : {&form.SampSizTxb3, &form.GMTxb3, &form.GSDTxb3})
    EXPECT_EQ(box->text, "") << box->name;
  EXPECT_FALSE(form.MenuPrint.visible);
  EXPECT_TRUE(form.CalcCmb.visible);
}

TEST_F(ComparisonScreen, ShowsTheCurrentDataForReadingOnly) {
  p.Record().Unit = "ppm";
  p.Record().Duration = "15 minutes";
  Start();
  EXPECT_EQ(form.NameTxB.text, "Welders");
  EXPECT_EQ(form.SampSizTxB.text, Number(10));
  EXPECT_EQ(form.GMTxB.text, Number(0.3));
  EXPECT_EQ(form.GSDTxB.text, Number(2));
  EXPECT_EQ(form.RefDurLbl.text, "Sampling duration  15 minutes");
  for (const screen::Control* unit : {&form.DimLbl, &form.DimLbl2, &form.DimLbl3})
    EXPECT_EQ(unit->text, "ppm") << unit->name;
  for (const screen::Control* box :
       {&form.NameTxB, &form.SampSizTxB, &form.GMTxB, &form.GSDTxB, &form.GSDInfTxb, &form.GMInfTxb,
        &form.SampSizTxb3, &form.GMTxb3, &form.GSDTxb3})
    EXPECT_TRUE(box->locked) << box->name;
  for (const screen::Control* box : {&form.SampSizTxB2, &form.GMTxB2, &form.GSDTxB2})
    EXPECT_FALSE(box->locked) << box->name;
}

TEST_F(ComparisonScreen, TheWordsOfTheStatisticsFollowTheRegression) {
  Start();
  EXPECT_EQ(form.HuidigFrame.text, "Descriptive statistics of the current data");
  EXPECT_EQ(form.GMLbl.text, "Geometric Mean GM=");
  EXPECT_EQ(form.GSDLbl.text, "Geometric Standard Deviation GSD=");
  p.Record().RegressionOn = true;
  p.Record().RegressionLabel = "Double censored";
  Start();
  EXPECT_EQ(form.HuidigFrame.text, "Regression descriptive statistics of the current data");
  EXPECT_EQ(form.GMLbl.text, "Double censored Rankit estimate GMg=");
  EXPECT_EQ(form.GSDLbl.text, "Double censored Rankit estimate GSDg=");
}

TEST_F(ComparisonScreen, NeedsNoLimitValueAndOffersTestsAndMeanOnlyWithOne) {
  p.Record().LimitsOk = false;
  Start();
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "grenzen", "descript", "Compare"}));
  EXPECT_FALSE(form.menuExtrPol.visible);
  p.Record().LimitsOk = true;
  Start();
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_TRUE(form.menuExtrPol.visible);
  EXPECT_TRUE(form.menuExtrPol.enabled);
  EXPECT_EQ(form.Tabs.selected, "Compare");
}

TEST_F(ComparisonScreen, LeavingForTheTestsForgetsTheChosenTest) {
  Start();
  p.Record().TestTag = Extrapolation::Leidel;
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
}

TEST(ComparisonMenu, LeadsHereFromEveryScreen) {
  support::ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");  // the start screen's flags take the default limit as set
  Keys from;
  for (const screen::Tab& tab : user.Shown().strip->tabs)
    if (tab.key != "Compare") from.push_back(tab.key);
  EXPECT_GE(from.size(), 5u);
  for (const std::string& key : from) {
    user.Tab(key);
    EXPECT_TRUE(user.At("MenuComp").enabled) << key;
    if (key == "extrapolation") user.Record().TestTag = Extrapolation::Leidel;
    user.Click("MenuComp");
    EXPECT_EQ(user.Shown().name, "TwoSampCompForm") << key;
    EXPECT_EQ(user.Record().TestTag, Extrapolation::None) << key;
  }
}

}  // namespace
