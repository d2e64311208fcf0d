#include "ucl/ucl_form.h"

#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <vector>

#include "session/global_bas.h"
#include "tests/support/program_session.h"

// The screen of the mean around its two methods.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr screen::Colour kGreen{0, 128, 0};

class MeanScreen : public testing::Test {
 protected:
  MeanScreen() { Take("10", "1", "2.7", 5, 95); }
  void Take(const std::string& M, const std::string& GM, const std::string& GSD, double OELV,
            double D) {
    p.EnterStatistics("Welders", M, GM, GSD);
    p.Record().OELV = OELV;
    p.Record().D = D;
    p.Record().Unit = "ppm";
    p.Record().RefPeriod = "1 year";
    p.Record().Duration = "15 minutes";
    GlobalBAS::StatusFlags(p.Record());
  }
  void Open() { p.program.Open(ScreenId::UCL); }
  std::string Number(double value) { return GlobalBAS::Shown(p.Record(), value); }
  screen::Control& At(const char* name) { return *form.Find(name); }

  void ExpectResultLayout(bool result) {
    for (const char* name : {"MenuVerd", "MenuPrint", "DimLbl(2)", "UCLLbl", "UCLTxB", "Methodlbl",
                             "PercExLbl(0)", "PercExLbl(1)", "PercExTxB", "ConclFrm"})
      EXPECT_EQ(At(name).visible, result) << name;
    EXPECT_EQ(form.IntroFrm.visible, !result);
  }
  // No pointer, window or tag of a calculation is left behind.
  void ExpectAtRest() {
    EXPECT_FALSE(form.busyPointer);
    EXPECT_FALSE(form.landHulp.shown);
  }
  void ExpectOffer(bool land) {
    EXPECT_EQ(form.LandCmb.visible, land);
    EXPECT_EQ(form.JahrCmb.colour.has_value(), !land);
    if (land) {
      EXPECT_EQ(form.LandCmb.colour, kGreen);
    } else {
      EXPECT_EQ(form.JahrCmb.colour, kGreen);
    }
    const auto last = EndsWith("\rPress <Land> to perform an exact, unbiased estimation");
    if (land) {
      EXPECT_THAT(form.IntroLbl.text, last);
    } else {
      EXPECT_THAT(form.IntroLbl.text, Not(last));
    }
  }

  ProgramSession p;
  ucl::UCLForm& form = dynamic_cast<ucl::UCLForm&>(*p.program.FormByName("UCLForm"));
};

}  // namespace

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
  EXPECT_EQ(p.Record().TestTag, "");
  EXPECT_EQ(p.Record().CurrentTab, "Mean UCL");
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
  EXPECT_THAT(p.TabKeys(),
              ElementsAre("basis", "grenzen", "descript", "extrapolation", "mean", "Compare"));
  EXPECT_FALSE(form.MenuPlot.visible);
  p.Tab("basis");
  p.Click("Menuclose");
  p.OpenSeries({0.4, 0.9, 1.3});
  p.Tab("basis");
  ASSERT_TRUE(p.Tab("mean"));
  EXPECT_THAT(p.TabKeys(), ElementsAre("basis", "raw", "grenzen", "descript", "plot",
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

TEST_F(MeanScreen, JahrShowsItsLimitAndProbability) {
  Open();
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().TestTag, "Ap");
  EXPECT_EQ(form.WindnrLbl.text, "24b");
  EXPECT_EQ(form.Methodlbl.text,
            "The approximate method of Jahr (1987) used in VALKORIN V 2.2 and earlier");
  ExpectResultLayout(true);
  EXPECT_FALSE(form.MenuPrint.enabled);
  EXPECT_EQ(form.UCLTxB.text, Number(std::exp(p.Record().UCL)));
  EXPECT_EQ(form.PercExTxB.text, Number(p.Record().PercEx));
  ExpectAtRest();
}

TEST_F(MeanScreen, LandShowsItsOwnProbabilityAndKeepsJahrsInTheRecord) {
  Open();
  p.Click("LandCmb");
  EXPECT_EQ(p.Record().TestTag, "Ex");
  EXPECT_EQ(form.WindnrLbl.text, "24a");
  EXPECT_EQ(form.Methodlbl.text,
            "The exact, unbiased estimation of Land (1975)  only if 3<M<1001 en 95<=D<=99.75");
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, Number(std::exp(p.Record().UCL)));
  EXPECT_EQ(form.PercExTxB.text, Number(100 - p.Record().LandConfidence));
  EXPECT_NEAR(p.Record().PercEx, 0.30125010791235973, 1e-12);
  EXPECT_NEAR(100 - p.Record().LandConfidence, 4.0978, 0.0001);
  ExpectAtRest();
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(MeanScreen, AConfidenceOf50LeavesJahrsLimitAtTheMean) {
  p.Record().D = 50;
  Open();
  p.Click("JahrCmb");
  EXPECT_EQ(form.UCLTxB.text, form.AMuTxb.text);
}

TEST_F(MeanScreen, ALimitValueAtTheMeanIsExceededWithEvenOdds) {
  Open();
  p.Record().OELV = p.Record().AMu;
  Open();
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().PercEx, 50);
  EXPECT_EQ(form.PercExTxB.text, Number(50));
}

TEST_F(MeanScreen, AProbabilityBeyondADoubleIsShownAsLessThanTheSmallest) {
  Take("2000", "1", "1.1", 1e10, 95);
  Open();
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().PercEx, 0);
  EXPECT_EQ(form.PercExTxB.text, "    <1E-16");
}

TEST_F(MeanScreen, JahrsLimitIsANumberBelow701AndABoxFromThereOn) {
  Open();
  p.Record().D = 50;  // the limit is the mean itself
  p.Record().AMu = std::exp(700.9);
  p.Click("JahrCmb");
  EXPECT_NEAR(p.Record().UCL, 700.9, 1e-9);
  EXPECT_TRUE(p.box.shown.empty());
  const std::string number = form.UCLTxB.text;
  EXPECT_EQ(number, Number(std::exp(p.Record().UCL)));

  p.Record().AMu = std::exp(701);
  p.Click("JahrCmb");
  ASSERT_EQ(p.Record().UCL, 701);
  EXPECT_EQ(p.LastBox().title, "UCL");
  EXPECT_EQ(p.LastBox().text,
            "One-sided upper confidence limit of the Lognormal mean is Exp(" + Number(701) + ").");
  EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
  EXPECT_EQ(form.UCLTxB.text, number);  // the box keeps what it had
  EXPECT_TRUE(form.MenuPrint.visible);
}

TEST_F(MeanScreen, LandsLimitBeyondNumbersIsToldInABoxAndLeavesTheFieldEmpty) {
  Take("3", "10000", "1000", 1e10, 99.75);
  Open();
  p.Click("LandCmb");
  EXPECT_NEAR(p.Record().UCL, 9540.682119506559, 1e-8);
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_EQ(p.LastBox().title, "UCL");
  EXPECT_EQ(p.LastBox().text, "One-sided upper confidence limit of the Lognormal mean is Exp(" +
                                  Number(p.Record().UCL) + ").");
  EXPECT_EQ(form.UCLTxB.text, "");
  EXPECT_EQ(form.PercExTxB.text, Number(100 - p.Record().LandConfidence));
  EXPECT_EQ(p.Record().TestTag, "Ex");
  ExpectAtRest();
}

// The menu leads to the calculation also where the screen does not offer it.
TEST_F(MeanScreen, LandRefusesBySampleSizeAndByConfidenceWhichOutweighsIt) {
  struct Case {
    const char* M;
    double D;
    const char* text;
  };
  const Case cases[] = {{"2", 95, "Sample Size out of range. "},
                        {"1001", 95, "Sample Size out of range. "},
                        {"10", 99.76, "Desired Confidence U out of range. "},
                        {"10", 0.94, "Desired Confidence U out of range. "},
                        {"1001", 99.8, "Desired Confidence U out of range. "}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.M) + " " + c.text);
    Take(c.M, "1", "2.7", 5, c.D);
    Open();
    p.Click("MenuLand");
    EXPECT_EQ(p.LastBox().text, std::string(c.text) + "Use Jahr's approximate method");
    EXPECT_EQ(p.LastBox().title, "");
    EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
    EXPECT_EQ(p.Record().TestTag, "");
    ExpectResultLayout(true);  // as the update of the results has left it
    EXPECT_EQ(form.UCLTxB.text, "");
    EXPECT_EQ(form.PercExTxB.text, "");
    ExpectAtRest();
    p.Tab("basis");
  }
  EXPECT_EQ(p.box.shown.size(), 5u);
}

TEST_F(MeanScreen, AFaultInTheSearchLeavesEverythingAsItWas) {
  Open();
  p.Click("JahrCmb");
  const double UCL = p.Record().UCL;
  const double PercEx = p.Record().PercEx;
  p.Record().UCL = 1.25;
  p.Record().PercEx = 12.5;
  p.Record().LnGSD = 0;  // no deviation: Land's first interval divides by it
  p.Click("LandCmb");
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_THAT(p.LastBox().text, HasSubstr("This step could not be finished"));
  EXPECT_EQ(p.Record().TestTag, "");
  EXPECT_EQ(p.Record().UCL, 1.25);
  EXPECT_EQ(p.Record().PercEx, 12.5);
  ExpectAtRest();
  ExpectResultLayout(false);
  EXPECT_EQ(form.WindnrLbl.text, "24");

  p.Record().LnGSD = std::log(2.7);
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().UCL, UCL);
  EXPECT_EQ(p.Record().PercEx, PercEx);
  ExpectResultLayout(true);
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
  EXPECT_EQ(p.Record().TestTag, "Ex");
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, limit);
  EXPECT_EQ(form.PercExTxB.text, probability);
  EXPECT_EQ(form.WindnrLbl.text, "24a");
}

TEST_F(MeanScreen, ReturningToJahrsResultRecomputesIt) {
  Open();
  p.Click("JahrCmb");
  const double UCL = p.Record().UCL;
  p.Record().UCL = 0;
  Open();
  EXPECT_EQ(p.Record().TestTag, "Ap");
  EXPECT_EQ(p.Record().UCL, UCL);
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, Number(std::exp(UCL)));
}

TEST_F(MeanScreen, LeavingByAnyWayEmptiesTheTestTag) {
  for (const char* key : {"basis", "grenzen", "descript", "extrapolation"}) {
    SCOPED_TRACE(key);
    Open();
    p.Click("LandCmb");
    ASSERT_EQ(p.Record().TestTag, "Ex");
    EXPECT_TRUE(p.Tab(key));
    EXPECT_EQ(p.Record().TestTag, "");
  }
  Open();
  p.Click("JahrCmb");
  p.Click("MenuExit");  // answered by No
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().TestTag, "");
  p.Tab("mean");
  p.Click("JahrCmb");
  p.Click("Menuclose");
  EXPECT_EQ(p.Record().TestTag, "");
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

// Land's search works on what the activation has put into the record.
TEST_F(MeanScreen, TheMenuOfLandCalculatesWithThePresentStatistics) {
  Open();
  p.Click("LandCmb");
  const double first = p.Record().UCL;
  p.Tab("basis");
  p.Type("GMTxB", "2");
  p.Click("MenuLand");
  EXPECT_EQ(p.Shown().name, "UCLForm");
  EXPECT_EQ(p.Record().TestTag, "Ex");
  EXPECT_EQ(p.Record().CurrentTab, "Mean UCL");
  EXPECT_NEAR(p.Record().UCL, first + std::log(2), 1e-9);
}

TEST_F(MeanScreen, ItsBoxesAreForReadingOnly) {
  for (const char* box : {"AMuTxb", "UCLTxB", "PercExTxB"}) EXPECT_TRUE(At(box).locked) << box;
}
