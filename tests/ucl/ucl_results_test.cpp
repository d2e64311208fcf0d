#include <gmock/gmock.h>

#include <cmath>
#include <string>
#include <utility>

#include "tests/ucl/mean_screen.h"
#include "ucl/mean_limit.h"
#include "ucl/ucl_form.h"

// The two methods on the screen of the mean.
TEST_F(MeanScreen, JahrShowsItsLimitAndProbability) {
  Open();
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Jahr);
  EXPECT_EQ(form.WindnrLbl.text, "24b");
  EXPECT_EQ(form.Methodlbl.text,
            "The approximate method of Jahr (1987) used in VALKORIN V 2.2 and earlier");
  ExpectResultLayout(true);
  EXPECT_EQ(form.UCLTxB.text, Number(std::exp(p.Record().UCL)));
  EXPECT_EQ(form.PercExTxB.text, Number(p.Record().PercEx));
  ExpectAtRest();
}

TEST_F(MeanScreen, LandShowsItsOwnProbabilityAndKeepsJahrsInTheRecord) {
  Open();
  p.Click("LandCmb");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Land);
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

namespace {

// Two neighbouring deviations: with the first the logarithm of Jahr's limit lies below `UCL`, with
// the second it does not.
std::pair<double, double> DeviationsAround(TestBasis basis, double UCL) {
  const auto reaches = [&](double GSD) {
    basis.GSD = GSD;
    return ucl::JahrLimits(basis, ucl::MeanStatisticsOf(basis).AMu).UCL >= UCL;
  };
  double below = 1.05;
  double from = 1000;
  EXPECT_FALSE(reaches(below));
  EXPECT_TRUE(reaches(from));
  for (double middle = 0; middle = below + (from - below) / 2, below < middle && middle < from;)
    (reaches(middle) ? from : below) = middle;
  return {below, from};
}

}  // namespace

TEST_F(MeanScreen, JahrsLimitIsANumberBelow701AndABoxFromThereOn) {
  Take("2", "1", "2.7", 5, 99.99);
  Open();
  const auto [below, from] = DeviationsAround(BasisOf(p.Record()), 701);
  p.Record().GSD = below;
  p.Click("JahrCmb");
  EXPECT_LT(p.Record().UCL, 701);
  EXPECT_NEAR(p.Record().UCL, 701, 1e-9);
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_EQ(form.UCLTxB.text, Number(std::exp(p.Record().UCL)));

  p.Record().GSD = from;
  p.Click("JahrCmb");
  EXPECT_GE(p.Record().UCL, 701);
  EXPECT_NEAR(p.Record().UCL, 701, 1e-9);
  EXPECT_EQ(p.LastBox().title, "UCL");
  EXPECT_EQ(p.LastBox().text, "One-sided upper confidence limit of the Lognormal mean is Exp(" +
                                  Number(p.Record().UCL) + ").");
  EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
  EXPECT_EQ(form.UCLTxB.text, "");
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
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Land);
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
    EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
    ExpectResultLayout(true);  // as the update of the results has left it
    EXPECT_EQ(form.UCLTxB.text, "");
    EXPECT_EQ(form.PercExTxB.text, "");
    ExpectAtRest();
    p.Tab("basis");
  }
  EXPECT_EQ(p.box.shown.size(), 5u);
}

TEST_F(MeanScreen, ARefusalLeavesNoNumberOfJahrUnderTheNameOfLand) {
  Take("2", "1", "2.7", 5, 95);
  Open();
  p.Click("JahrCmb");
  ASSERT_NE(form.UCLTxB.text, "");
  p.Click("MenuLand");
  EXPECT_THAT(form.Methodlbl.text, testing::HasSubstr("Land (1975)"));
  EXPECT_EQ(form.UCLTxB.text, "");
  EXPECT_EQ(form.PercExTxB.text, "");
  ExpectResultLayout(true);
}

TEST_F(MeanScreen, AFaultInTheSearchLeavesTheIntroductionAndNoResult) {
  Open();
  p.Click("JahrCmb");
  const double UCL = p.Record().UCL;
  const double PercEx = p.Record().PercEx;
  p.Record().UCL = 1.25;
  p.Record().PercEx = 12.5;
  p.Record().GSD = 1;  // no deviation: Land's first interval divides by it
  p.Click("LandCmb");
  ASSERT_EQ(p.box.shown.size(), 1u);
  EXPECT_THAT(p.LastBox().text, testing::HasSubstr("This step could not be finished"));
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  EXPECT_EQ(p.Record().UCL, 1.25);
  EXPECT_EQ(p.Record().PercEx, 12.5);
  EXPECT_EQ(p.program.SessionRecord().Mean(), nullptr);
  ExpectAtRest();
  ExpectResultLayout(false);
  EXPECT_EQ(form.WindnrLbl.text, "24");
  EXPECT_EQ(form.Methodlbl.text, "");
  EXPECT_EQ(form.UCLTxB.text, "");
  EXPECT_EQ(form.PercExTxB.text, "");

  p.Record().GSD = 2.7;
  p.Click("JahrCmb");
  EXPECT_EQ(p.Record().UCL, UCL);
  EXPECT_EQ(p.Record().PercEx, PercEx);
  ExpectResultLayout(true);
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
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Land);
  EXPECT_EQ(p.Record().CurrentTab, ScreenId::UCL);
  EXPECT_NEAR(p.Record().UCL, first + std::log(2), 1e-9);
}
