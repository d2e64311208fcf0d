#include "ucl/ucl_form.h"

#include <gmock/gmock.h>

#include <cmath>

#include "tests/ucl/mean_screen.h"

// The screen of the mean around its two methods: what it shows before and after them.
TEST_F(MeanScreen, IsLoadedAtTheStart) {
  EXPECT_EQ(form.caption,
            "The Arithmetic mean of a lognormal distribution and its confidence upper limit");
  EXPECT_EQ(form.JahrCmb.text, "Jahr's\rapproximation");
  EXPECT_EQ(form.LandCmb.text, "Land\rexact");
  EXPECT_EQ(form.SampSizCmb.text, "Sample\rsize");
  EXPECT_EQ(form.ConclFrm.text,
            "Non-compliance for A>95%, effective control if A<5%, Uncertain in between");
}

// No calculation stands behind the third button.
TEST_F(MeanScreen, OffersNoSampleSize) {
  Open();
  EXPECT_FALSE(form.SampSizCmb.visible);
  p.Click("JahrCmb");
  EXPECT_FALSE(form.SampSizCmb.visible);
}

TEST_F(MeanScreen, ItsTabOpensTheIntroduction) {
  p.Tab("grenzen");
  ASSERT_TRUE(p.Tab("mean"));
  EXPECT_EQ(p.Shown().name, "UCLForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  EXPECT_EQ(p.Record().CurrentTab, ScreenId::UCL);
  EXPECT_EQ(p.Shown().strip->selected, "mean");
  EXPECT_EQ(form.WindnrLbl.text, "24");
  EXPECT_EQ(form.Methodlbl.text, "");
  ExpectResultLayout(false);
  ExpectAtRest();
  EXPECT_EQ(form.IntroLbl.text,
            "2 Extrapolation techniques to compare series exposure data with a limit defined for a "
            "reference period which is much longer than the sum of the sampling durations. \r"
            "I.e. grab samples with a STEL or TWA  (Leidel 1977 p38 & 60) or  \r"
            "TWA 8 hours with a long term average (Hewett 1997).\r"
            " Estimation of:\r"
            " -    the upper confidence limit of the arithmetic mean\r"
            " -    the compliance probability\r"
            "Press <Jahr> to apply the approximate method of VALKORIN V 2.2 and earlier\r"
            "Press <Land> to perform an exact, unbiased estimation");
}

TEST_F(MeanScreen, ShowsTheUnbiasedStatisticsOfTheRecord) {
  Open();
  const ExposureSession& s = p.Record();
  EXPECT_EQ(form.NameLbl.text, "Welders");
  EXPECT_EQ(form.SampSizLbl.text, Number(10) + " samples of 15 minutes");
  EXPECT_EQ(form.DegreesLbl.text, Number(9));
  EXPECT_DOUBLE_EQ(s.LnGM, 0);
  EXPECT_DOUBLE_EQ(s.LnGSD, std::log(2.7));
  EXPECT_EQ(form.GMuLbl1.text, Number(s.GMu));
  EXPECT_EQ(form.GSDLbl1.text, Number(2.7));
  EXPECT_EQ(form.AMuTxb.text, Number(s.AMu));
  EXPECT_EQ(form.VkrValLbl.text, Number(5) + " ppm \\1 year");
  EXPECT_EQ(form.PercExLbl0.text,
            "The probability that the arithmetic mean exceeds the limit A(AM>OELV)=");
  EXPECT_EQ(form.UCLLbl.text, "The 95 %-tile upper limit of AM=");
  for (const char* unit : {"DimLbl(0)", "DimLbl(1)", "DimLbl(2)"}) EXPECT_EQ(At(unit).text, "ppm");
  EXPECT_EQ(form.PercExLbl1.text, "%");
}

TEST_F(MeanScreen, NamesDurationAndPeriodOnlyWhereTheyAreKnown) {
  p.Record().Duration.clear();
  p.Record().RefPeriod.clear();
  Open();
  EXPECT_EQ(form.SampSizLbl.text, Number(10));
  EXPECT_EQ(form.VkrValLbl.text, Number(5) + " ppm");
}

TEST_F(MeanScreen, TheWordsOfTheStatisticsFollowTheRegression) {
  Open();
  EXPECT_EQ(form.Frame2.text, "Descriptive statistics of the current data");
  EXPECT_EQ(form.Frame2.tip, form.Frame2.text);
  EXPECT_EQ(form.GMuLbl0.text, "GM unbiased=");
  EXPECT_EQ(form.GSDLbl0.text, "Geometric Standard Deviation GSD=");
  p.Record().RegressionOn = true;
  p.Record().RegressionLabel = "Double censored";
  Open();
  EXPECT_EQ(form.Frame2.text, "Regression descriptive statistics of the current data");
  EXPECT_EQ(form.Frame2.tip, form.Frame2.text);
  EXPECT_EQ(form.GMuLbl0.text, "Double censored Rankit estimate GMg=");
  EXPECT_EQ(form.GSDLbl0.text, "Double censored Rankit estimate GSDg=");
}

TEST_F(MeanScreen, StatisticsHaveNoTabForOutcomesASeriesHas) {
  Open();
  EXPECT_THAT(p.TabKeys(), testing::ElementsAre("basis", "grenzen", "descript", "extrapolation",
                                                "mean", "Compare"));
  EXPECT_FALSE(form.MenuPlot.visible);
  p.Tab("basis");
  p.box.answers = {screen::Answer::Yes};
  p.Click("Menuclose");
  p.OpenSeries({0.4, 0.9, 1.3});
  p.Tab("basis");
  ASSERT_TRUE(p.Tab("mean"));
  EXPECT_THAT(p.TabKeys(), testing::ElementsAre("basis", "raw", "grenzen", "descript", "plot",
                                                "extrapolation", "mean", "Compare"));
  EXPECT_TRUE(form.MenuPlot.visible);
}

TEST_F(MeanScreen, RecommendsLandFromThreeToAThousandSamples) {
  const std::pair<const char*, bool> borders[] = {
      {"2", false}, {"3", true}, {"1000", true}, {"1001", false}};
  for (const auto& [M, offered] : borders) {
    SCOPED_TRACE(M);
    Take(M, "1", "2.7", 5, 95);
    Open();
    ExpectOffer(offered);
    p.Tab("basis");
  }
}

TEST_F(MeanScreen, RecommendsLandForConfidencesFrom0_95To99_75) {
  const std::pair<double, bool> borders[] = {
      {0.94, false}, {0.95, true}, {50, true}, {99.75, true}, {99.76, false}};
  for (const auto& [D, offered] : borders) {
    SCOPED_TRACE(D);
    p.Record().D = D;
    Open();
    ExpectOffer(offered);
  }
}

// The frequency picture comes back to the result from which it was opened.
TEST_F(MeanScreen, ReturningToLandsResultRebuildsNothing) {
  Open();
  p.Click("LandCmb");
  const std::string limit = form.UCLTxB.text;
  const std::string probability = form.PercExTxB.text;
  p.Record().AMu = 77;
  Open();
  EXPECT_EQ(p.Record().AMu, 77);
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Land);
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, limit);
  EXPECT_EQ(form.PercExTxB.text, probability);
  EXPECT_EQ(form.WindnrLbl.text, "24a");
}

// The result is kept with what it rests on; the record's number of that name is only a copy.
TEST_F(MeanScreen, ReturningToJahrsResultShowsItAsItIsKept) {
  Open();
  p.Click("JahrCmb");
  const std::string limit = form.UCLTxB.text;
  const std::string probability = form.PercExTxB.text;
  p.Record().UCL = 0;
  p.Record().PercEx = 77;
  form.UCLTxB.text.clear();
  form.PercExTxB.text.clear();
  Open();
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Jahr);
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, limit);
  EXPECT_EQ(form.PercExTxB.text, probability);
}

TEST_F(MeanScreen, ReturningToJahrsResultOfOtherDataShowsNoNumber) {
  Open();
  p.Click("JahrCmb");
  p.Record().GSD = 3;
  Open();
  EXPECT_EQ(form.UCLTxB.text, "");
  EXPECT_EQ(form.PercExTxB.text, "");
  EXPECT_EQ(p.program.SessionRecord().Mean(), nullptr);
}

TEST_F(MeanScreen, LeavingByAnyWayEmptiesTheTestTag) {
  for (const char* key : {"basis", "grenzen", "descript", "extrapolation"}) {
    SCOPED_TRACE(key);
    Open();
    p.Click("LandCmb");
    ASSERT_EQ(p.Record().TestTag, Extrapolation::Land);
    EXPECT_TRUE(p.Tab(key));
    EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  }
  Open();
  p.Click("JahrCmb");
  p.Click("MenuExit");  // answered by No
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  p.Tab("mean");
  p.Click("JahrCmb");
  p.box.answers = {screen::Answer::Yes};
  p.Click("Menuclose");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
}

TEST_F(MeanScreen, ShowsTheIntroductionAgainAndNoNumberOfOtherData) {
  Open();
  p.Click("LandCmb");
  p.Tab("basis");
  p.Type("GMTxB", "2");
  ASSERT_TRUE(p.Tab("mean"));
  ExpectResultLayout(false);
  EXPECT_EQ(form.UCLTxB.text, "");
  EXPECT_EQ(form.PercExTxB.text, "");
  EXPECT_EQ(form.Methodlbl.text, "");
  EXPECT_EQ(form.AMuTxb.text, Number(p.Record().AMu));
}

TEST_F(MeanScreen, ItsBoxesAreForReadingOnly) {
  for (const char* box : {"AMuTxb", "UCLTxB", "PercExTxB"}) EXPECT_TRUE(At(box).locked) << box;
}
