#include "plots/annex_e.h"

#include <gtest/gtest.h>

#include <cmath>

#include "stats/coefficients.h"
#include "stats/normal.h"
#include "tests/plots/annex_plot.h"

namespace {

using annex_plot::Annex;
using annex_plot::kHeight;
using annex_plot::kWidth;
using PlotWBas::AnnexPaper;
using PlotWBas::DecadesOf;
using PlotWBas::Label;

const std::vector<double> kSeven = {0.05, 0.2, 0.4, 0.9, 1.5, 3, 5};

// The probability axis needs the constants of the deviates.
class LoadedConstants final : public testing::Environment {
  void SetUp() override { StatFWinBAS::LoadCoefficients({VALKORIN_SOURCE_DIR "/data"}); }
};
testing::Environment* const loaded = testing::AddGlobalTestEnvironment(new LoadedConstants);

double Deviate(double p) { return StatFWinBAS::NormalUpperInverse(p); }

// Height of a cumulative probability: 0.35 + 0.35 z / zEdge of the surface below the top margin.
double Height(double p) {
  return 0.2 * kHeight + (0.35 + 0.35 * Deviate(p) / Deviate(0.01)) * kHeight;
}

// Place of an outcome between the decades, logarithmic.
double Across(double value, double lower, double upper) {
  return 0.2 * kWidth +
         0.6 * kWidth * (std::log(value) - std::log(lower)) / (std::log(upper) - std::log(lower));
}

TEST(AnnexEDecades, OutcomesFromFiveHundredthsToFiveTakeAnAxisFromOneHundredthToTen) {
  const auto decades = DecadesOf(0.05, 5);
  EXPECT_EQ(decades.lower, 0.01);
  EXPECT_EQ(decades.upper, 10);
}

TEST(AnnexEDecades, AnOutcomeOnABoundBelongsBelowToTheDecadeThatStartsAboveToTheOneThatEnds) {
  for (const double bound : {0.0001, 0.001, 0.01, 0.1, 1.0, 10.0, 100.0, 1000.0}) {
    EXPECT_EQ(DecadesOf(bound, 1e6).lower, bound);
    EXPECT_EQ(DecadesOf(std::nextafter(bound, 0), 1e6).lower, bound / 10) << bound;
    EXPECT_EQ(DecadesOf(std::nextafter(bound, 1e9), 1e6).lower, bound) << bound;
  }
  for (const double bound : {0.1, 1.0, 10.0, 100.0, 1000.0, 10000.0, 100000.0}) {
    EXPECT_EQ(DecadesOf(1e-6, bound).upper, bound);
    EXPECT_EQ(DecadesOf(1e-6, std::nextafter(bound, 1e9)).upper, bound * 10) << bound;
    EXPECT_EQ(DecadesOf(1e-6, std::nextafter(bound, 0)).upper, bound) << bound;
  }
}

TEST(AnnexEDecades, GoOnInTheSameWayBeyondTheirEnds) {
  EXPECT_EQ(DecadesOf(2e-10, 3e-9).lower, 1e-10);
  EXPECT_EQ(DecadesOf(2e-10, 3e-9).upper, 1e-8);
  EXPECT_EQ(DecadesOf(2e6, 9e9).lower, 1e6);
  EXPECT_EQ(DecadesOf(2e6, 9e9).upper, 1e10);
}

TEST(AnnexEDecades, HaveATickAtEachDigitOfEachDecade) {
  const auto ticks = PlotWBas::TicksOf({0.01, 1});
  ASSERT_EQ(ticks.size(), 19U);
  EXPECT_EQ(ticks[0].value, 0.01);
  EXPECT_EQ(ticks[2].value, 0.03);
  EXPECT_EQ(ticks[9].value, 0.1);
  EXPECT_EQ(ticks[17].value, 0.9);
  EXPECT_EQ(ticks[18].value, 1);
}

TEST(AnnexEProbabilities, RunFromOneToNinetyNinePercentForEverySampleSize) {
  for (const int M : {3, 20, 2000}) {
    const double Pk = 100 * (1 - 3.0 / 8) / (M + 1.0 / 4);
    EXPECT_EQ(PlotWBas::ProbabilityAxisOf(Pk).edge, 0.01) << M;
  }
  EXPECT_EQ(PlotWBas::ProbabilityAxisOf(99).edge, 0.01);
  EXPECT_EQ(PlotWBas::ProbabilityAxisOf(99.1).edge, 0.001);
  EXPECT_DOUBLE_EQ(PlotWBas::ProbabilityAxisOf(99.1).zEdge, Deviate(0.001));
}

TEST(AnnexE, HasALabelledLineAtEachProbabilityTheLowestAtTheFoot) {
  Annex annex(kSeven);
  annex.Draw();
  for (const int percent : {1, 5, 10, 15, 20, 30, 40, 50, 60, 70, 80, 85, 90, 95, 99}) {
    const std::string text = std::to_string(percent);
    const Label& label = annex.At("LblYas_" + text + "_procent");
    EXPECT_EQ(label.text, text + "%");
    EXPECT_NEAR(label.at.y, Height(percent / 100.0), 1e-6) << percent;
    EXPECT_TRUE(annex.HasLine({0.2 * kWidth, label.at.y}, {0.8 * kWidth, label.at.y})) << percent;
  }
  EXPECT_NEAR(annex.At("LblYas_1_procent").at.y, 0.9 * kHeight, 1e-6);
  EXPECT_NEAR(annex.At("LblYas_50_procent").at.y, 0.55 * kHeight, 1e-6);
  EXPECT_NEAR(annex.At("LblYas_99_procent").at.y, 0.2 * kHeight, 1e-6);
}

TEST(AnnexE, HasALineAtEachExposureAndALabelAtTheDecades) {
  Annex annex(kSeven);
  annex.Draw();
  for (const double value : {0.01, 0.02, 0.07, 0.1, 0.5, 1.0, 3.0, 9.0, 10.0}) {
    const double x = Across(value, 0.01, 10);
    EXPECT_TRUE(annex.HasLine({x, 0.2 * kHeight}, {x, 0.9 * kHeight})) << value;
  }
  for (const char* text : {"0.01", "0.1", "1", "10"})
    EXPECT_EQ(annex.At(std::string("LblC_") + text).text, text);
  EXPECT_NEAR(annex.At("LblC_0.1").at.x, 0.4 * kWidth, 1e-6);
}

TEST(AnnexE, EachOutcomeStandsAtTheHeightThatTheAxisLabelsForItsProbability) {
  Annex annex(kSeven);
  annex.Draw();
  for (int i = 1; i <= 7; ++i) {
    const double p = (i - 0.375) / 7.25;
    EXPECT_TRUE(
        annex.HasCross({Across(kSeven[static_cast<std::size_t>(i - 1)], 0.01, 10), Height(p)}))
        << i;
  }
}

TEST(AnnexE, OfTwoThousandOutcomesTheOutermostLieBeyondTheEndLines) {
  std::vector<double> outcomes;
  for (int i = 1; i <= 2000; ++i) outcomes.push_back(std::exp(2 * Deviate(1 - (i - 0.5) / 2000)));
  Annex annex(outcomes);
  annex.Draw();
  const AnnexPaper paper = annex.Paper();
  EXPECT_EQ(paper.Axis().edge, 0.01);
  const double lowest = paper.Y(paper.Position(1));
  const double highest = paper.Y(paper.Position(2000));
  EXPECT_GT(lowest, 0.9 * kHeight);
  EXPECT_LT(highest, 0.2 * kHeight);
  EXPECT_TRUE(annex.HasCross({paper.X(annex.s.LnC[1]), lowest}));
  EXPECT_TRUE(annex.HasCross({paper.X(annex.s.LnC[2000]), highest}));
}

TEST(AnnexE, TheLineRunsFromScoreToScoreWithinTheBounds) {
  Annex annex(kSeven);
  annex.Draw();
  const double R1 = annex.state.RankitTable[1];
  const double zEdge = Deviate(0.01);
  EXPECT_TRUE(annex.HasLine({Across(std::exp(annex.fit.a - annex.fit.b * R1), 0.01, 10),
                             0.2 * kHeight + (0.35 + 0.35 * R1 / zEdge) * kHeight},
                            {Across(std::exp(annex.fit.a + annex.fit.b * R1), 0.01, 10),
                             0.2 * kHeight + (0.35 - 0.35 * R1 / zEdge) * kHeight}));
}

TEST(AnnexE, AnEndBeyondABoundStandsAtTheBoundAtTheOutermostPosition) {
  // The outcomes fill their decade to the edges, so that the line would leave it at both ends.
  Annex annex({1, 1.01, 1.02, 3, 9.8, 9.9, 10});
  annex.Draw();
  ASSERT_LT(annex.fit.yLow, std::log(1));
  ASSERT_GT(annex.fit.yHigh, std::log(10));
  const double p = 0.625 / 7.25;
  EXPECT_TRUE(annex.HasLine({0.2 * kWidth, Height(p)}, {0.8 * kWidth, Height(1 - p)}));
}

TEST(AnnexE, IsReadOffAtFiftyAndEightyFivePercent) {
  Annex annex(kSeven);
  annex.Draw();
  const double at50 = Across(std::exp(annex.fit.a), 0.01, 10);
  const double at85 = Across(std::exp(annex.fit.a + annex.fit.b * Deviate(0.15)), 0.01, 10);
  EXPECT_TRUE(annex.HasLine({at50, Height(0.5)}, {at50, 0.9 * kHeight}));
  EXPECT_TRUE(annex.HasLine({at85, Height(0.85)}, {at85, 0.9 * kHeight}));
  EXPECT_EQ(annex.At("LblC50").text, "GM~Median=C50%");
  EXPECT_EQ(annex.At("LblC85").text, "GM*GSD~C85%");
}

TEST(AnnexE, TheWordsOfTheMarksFollowTheScale) {
  Annex linear(kSeven, "Unt");
  linear.Draw();
  EXPECT_EQ(linear.At("LblC50").text, "Xgem~Median=C50%");
  EXPECT_EQ(linear.At("LblC85").text, "Xgem+S~C85%");
  Annex root(kSeven, "Sqr(x)");
  root.Draw();
  EXPECT_FALSE(root.Has("LblC50"));
  EXPECT_FALSE(root.Has("LblC85"));
}

TEST(AnnexE, ItsTitlesNameProbabilityAndExposure) {
  Annex annex(kSeven);
  annex.Draw();
  EXPECT_EQ(annex.At("LblYasTop").text, "Probability\rPk x 100");
  EXPECT_EQ(annex.At("LblXasEinde").text, "Exposure Xk\rin mg/m3\ron a\rLog(x) scale");
  EXPECT_EQ(
      annex.At("LblKoptekst").text,
      "A cumulative frequency distribution\rof Wood dust\ron Log(x) Normal probability paper");
  EXPECT_TRUE(annex.Has("LblRightTxt"));
  EXPECT_TRUE(annex.Has("LblShapiro"));
  EXPECT_TRUE(annex.Has("LblRegres"));
  Annex linear(kSeven, "Unt");
  linear.s.Unit.clear();
  linear.Draw();
  EXPECT_EQ(linear.At("LblXasEinde").text, "Exposure Xk\rwith no units\ron a\rLinear scale");
}

TEST(AnnexE, WhereTheScaleHasNoValueForABoundTheOutermostOutcomeTakesItsPlace) {
  Annex doubleLog({1.2, 2, 3, 5, 8}, "Lg(Lg(x))");  // ln ln 1 is no number
  EXPECT_EQ(doubleLog.Paper().LowerBound(), doubleLog.s.LnC[1]);
  EXPECT_NEAR(doubleLog.Paper().UpperBound(), std::log(std::log(10)), 1e-14);
  Annex exponential({1.2, 2, 3, 5, 8}, "Exp(x)");
  EXPECT_NEAR(exponential.Paper().UpperBound(), std::exp(10), 1e-9);
  for (Annex* annex : {&doubleLog, &exponential}) {
    annex->Draw();
    EXPECT_TRUE(annex->fit.line);
  }
}

// The reciprocal turns the order round; the lowest outcome is still the least probable.
TEST(AnnexE, OnTheReciprocalScaleTheLowestOutcomeStandsAtTheFootOnTheLeft) {
  Annex annex(kSeven, "1/x");
  annex.Draw();
  const double x = 0.2 * kWidth + 0.6 * kWidth * (1 / 0.05 - 1 / 0.01) / (1 / 10.0 - 1 / 0.01);
  EXPECT_TRUE(annex.HasCross({x, Height(0.625 / 7.25)}));
  const auto line = PlotWBas::AnnexLineOf(annex.Paper(), annex.Data(), annex.fit);
  EXPECT_LT(line.lower.x, line.upper.x);
  EXPECT_GT(line.lower.y, line.upper.y);
}

TEST(AnnexE, WithoutALineItHasNoMarks) {
  Annex annex(kSeven);
  annex.s.DetecOn = true;
  annex.s.FirstInRange = 4;
  annex.s.LastInRange = 4;
  annex.Draw();
  EXPECT_FALSE(annex.fit.line);
  EXPECT_FALSE(annex.Has("LblC50"));
  EXPECT_TRUE(annex.Has("LblShapiro"));
}

TEST(AnnexE, TheNamesOfItsLabelsAreThoseThatItDraws) {
  Annex annex(kSeven);
  annex.Draw();
  for (const std::string& name : PlotWBas::AnnexLabelNames()) EXPECT_TRUE(annex.Has(name)) << name;
}

}  // namespace
