#include "plots/regression_line.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/transformations.h"
#include "tests/analysis/fit_data.h"
#include "tests/plots/plot_data.h"

namespace {

using plot_data::Plot;
using PlotWBas::Axes;
using PlotWBas::LineEnds;
using PlotWBas::OutcomeAtEnd;
using PlotWBas::RegressionEnds;

constexpr double W = plot_data::kWidth;
constexpr double H = plot_data::kHeight;

// A series on the untransformed scale and a line of one's own through it.
struct Line {
  Plot plot{plot_data::Series(20), "Unt"};
  double low = plot.s.LnC[1];
  double span = plot.s.LnC[20] - plot.s.LnC[1];
  double R1 = plot.state.RankitTable[1];

  // Through the lower and the upper end, as parts of the span above the lowest outcome.
  Line(double lower, double upper) {
    analysis::Regression& fit = plot.fit;
    fit.yLow = low + lower * span;
    fit.yHigh = low + upper * span;
    fit.a = (fit.yLow + fit.yHigh) / 2;
    fit.b = (fit.yHigh - fit.yLow) / (2 * R1);
  }
  LineEnds Ends(Axes axes) const { return RegressionEnds(plot.Paper(axes), plot.fit); }
};

void ExpectAt(drawing::Point at, double x, double y) {
  EXPECT_NEAR(at.x, x, 1e-6);
  EXPECT_NEAR(at.y, y, 1e-6);
}

TEST(RegressionLine, FlatterThanTheFrameRunsFromSideToSide) {
  const LineEnds up = Line(0.1, 0.8).Ends(Axes::OutcomesUp);
  ExpectAt(up.lower, 0.2 * W, 0.9 * H - 0.1 * 0.7 * H);
  ExpectAt(up.upper, 0.8 * W, 0.9 * H - 0.8 * 0.7 * H);
  const LineEnds across = Line(0.1, 0.8).Ends(Axes::OutcomesAcross);
  ExpectAt(across.lower, 0.2 * W + 0.1 * 0.6 * W, 0.9 * H);
  ExpectAt(across.upper, 0.2 * W + 0.8 * 0.6 * W, 0.2 * H);
}

// The left end then lands on the bottom side, where the line meets the lowest outcome.
TEST(RegressionLine, SteeperThanTheFrameRunsFromBottomToTop) {
  const LineEnds up = Line(-0.25, 1.25).Ends(Axes::OutcomesUp);
  ExpectAt(up.lower, W * (0.2 + 0.6 * 0.25 / 1.5), 0.9 * H);
  ExpectAt(up.upper, W * (0.2 + 0.6 * 1.25 / 1.5), 0.2 * H);
  const LineEnds across = Line(-0.25, 1.25).Ends(Axes::OutcomesAcross);
  ExpectAt(across.lower, 0.2 * W, H * (0.9 - 0.7 * 0.25 / 1.5));
  ExpectAt(across.upper, 0.8 * W, H * (0.9 - 0.7 * 1.25 / 1.5));
}

TEST(RegressionLine, MayLeaveTheFrameAtOneEndOnly) {
  const LineEnds ends = Line(0, 1).Ends(Axes::OutcomesUp);
  ExpectAt(ends.lower, 0.2 * W, 0.9 * H);
  ExpectAt(ends.upper, 0.8 * W, 0.2 * H);
  const LineEnds cut = Line(0.2, 1.2).Ends(Axes::OutcomesUp);
  ExpectAt(cut.lower, 0.2 * W, 0.9 * H - 0.2 * 0.7 * H);
  ExpectAt(cut.upper, W * (0.2 + 0.6 * 0.8), 0.2 * H);
}

// By the score at which the line meets an outcome, as the method states it.
TEST(RegressionLine, EndsWhereItsScoresPutIt) {
  for (const analysis::Transformation& scale : analysis::kTransformations)
    for (const int M : {3, 4, 20, 21, 2000}) {
      SCOPED_TRACE(std::string(scale.name) + " of " + std::to_string(M));
      const Plot plot(plot_data::Series(M), std::string(scale.name));
      const LineEnds ends = RegressionEnds(plot.Paper(Axes::OutcomesUp), plot.fit);
      const double R1 = plot.state.RankitTable[1];
      const double low = plot.s.LnC[1];
      const double high = plot.s.LnC[static_cast<std::size_t>(M)];
      const double z0 = (low - plot.fit.a) / plot.fit.b;
      const double zM = (high - plot.fit.a) / plot.fit.b;
      if (plot.fit.yLow > low)
        ExpectAt(ends.lower, 0.2 * W, 0.9 * H - (plot.fit.yLow - low) / (high - low) * 0.7 * H);
      else
        ExpectAt(ends.lower, W * (0.5 + 0.3 * z0 / R1), 0.9 * H);
      if (plot.fit.yHigh < high)
        ExpectAt(ends.upper, 0.8 * W, 0.9 * H - (plot.fit.yHigh - low) / (high - low) * 0.7 * H);
      else
        ExpectAt(ends.upper, W * (0.5 + 0.3 * zM / R1), 0.2 * H);
    }
}

TEST(RegressionLine, OfOutcomesThatDoNotDifferIsNotThere) {
  ExposureSession s = fit_data::Opened({2, 2, 2, 2, 2});
  Plot plot(s, "Log(x)");
  plot.Draw(Axes::OutcomesUp);
  EXPECT_EQ(PlotWBas::FindLabel(plot.labels, "LblRegres"), nullptr);
  EXPECT_EQ(PlotWBas::FindLabel(plot.labels, "LblCBegin"), nullptr);
  EXPECT_EQ(plot.Text("LblShapiro"),
            "Shapiro's test\rGoodness-of-fit\rprobability: \rnot possible\r");
}

TEST(RegressionLineEnds, ShowTheOutcomesThatStandThere) {
  EXPECT_NEAR(*OutcomeAtEnd("Log(x)", 2), std::exp(2), 1e-12);
  EXPECT_NEAR(*OutcomeAtEnd("Lg(Lg(x))", 1), std::exp(std::exp(1)), 1e-11);
  EXPECT_EQ(*OutcomeAtEnd("Sqr(x)", 3), 9);
  EXPECT_EQ(*OutcomeAtEnd("Unt", -3), -3);
  EXPECT_EQ(*OutcomeAtEnd("x^2", 9), 3);
}

TEST(RegressionLineEnds, ShowNothingWhereTheWayBackLeadsOutOfRange) {
  EXPECT_TRUE(OutcomeAtEnd("Log(x)", 699.9));
  EXPECT_FALSE(OutcomeAtEnd("Log(x)", 700));
  EXPECT_TRUE(OutcomeAtEnd("Lg(Lg(x))", 6.49));
  EXPECT_FALSE(OutcomeAtEnd("Lg(Lg(x))", 6.5));
  EXPECT_TRUE(OutcomeAtEnd("Sqr(x)", 9e149));
  EXPECT_FALSE(OutcomeAtEnd("Sqr(x)", 1e150));
  EXPECT_TRUE(OutcomeAtEnd("x^2", 1e-9));
  EXPECT_FALSE(OutcomeAtEnd("x^2", 0));
  EXPECT_FALSE(OutcomeAtEnd("Exp(x)", 2));
  EXPECT_FALSE(OutcomeAtEnd("1/x", 2));
}

TEST(RegressionTexts, TellWhatTheLineGoesThrough) {
  ExposureSession s = plot_data::Series(20);
  const std::string through = "Least squares, linear regression goodness-of-fit line through the ";
  EXPECT_EQ(PlotWBas::RegresText(s, "Log(x)", "series.vkr"),
            through + "Log(x) transformed exposure data series.vkr\r");
  EXPECT_EQ(PlotWBas::RegresText(s, "Unt", "series.vkr"),
            through + "exposure data of series.vkr\r");
  s.FirstInRange = 2;
  EXPECT_EQ(PlotWBas::RegresText(s, "Unt", "series.vkr"),
            through + "exposure data of series.vkr\rabove the limit of quantification (LOQ) ");
  s.LastInRange = 19;
  EXPECT_EQ(PlotWBas::RegresText(s, "Unt", "series.vkr"),
            through + "exposure data of series.vkr\rwithin the regression range");
  s.FirstInRange = 1;
  EXPECT_EQ(PlotWBas::RegresText(s, "Unt", "series.vkr"),
            through + "exposure data of series.vkr\rbelow the upper regression range ");
}

TEST(RegressionTexts, GiveTheEstimatesWithTheirCensoring) {
  ExposureSession s = plot_data::Series(20);
  EXPECT_EQ(PlotWBas::DescripText(s, Plot(s, "Log(x)").fit), "Sample size\rM= 20");
  const Plot linear(s, "Unt");
  EXPECT_EQ(
      PlotWBas::DescripText(linear.s, linear.fit),
      "Non\rcensored\rRankit\restimates:\r" + linear.fit.EstimatesText + "\rSample size\rM= 20");
  plot_data::Restrict(s);
  const Plot range(s, "Log(x)");
  EXPECT_EQ(PlotWBas::DescripText(range.s, range.fit),
            "Double\rcensored\rRankit\restimates:\r" + range.fit.EstimatesText +
                "\rLOQ     2.0538\rURR    29.4448\rRegression\rthrough 16\rout of 20 data points");
  const Plot root(s, "Sqr(x)");
  EXPECT_EQ(PlotWBas::DescripText(root.s, root.fit),
            "LOQ     2.0538\rURR    29.4448\rRegression\rthrough 16\rout of 20 data points");
}

TEST(RegressionTexts, LeaveOutALimitThatCutsNothingOff) {
  ExposureSession s = plot_data::Series(20);
  s.DetecOn = true;
  const Plot plot(s, "Log(x)");
  EXPECT_EQ(PlotWBas::DescripText(plot.s, plot.fit),
            "Non\rcensored\rRankit\restimates:\r" + plot.fit.EstimatesText +
                "\rRegression\rthrough 20\rout of 20 data points");
}

TEST(RegressionTexts, StandAHundredAndTwentyTwipsUnderTheFrameAndInItsMiddle) {
  Plot plot(plot_data::Series(20), "Log(x)");
  plot.Draw(Axes::OutcomesUp);
  const PlotWBas::Label& shapiro = *PlotWBas::FindLabel(plot.labels, "LblShapiro");
  EXPECT_EQ(shapiro.at.y, 0.9 * H + 120);
  EXPECT_EQ(shapiro.style.down, drawing::Down::Bottom);
  const PlotWBas::Label& regres = *PlotWBas::FindLabel(plot.labels, "LblRegres");
  EXPECT_EQ(regres.at.x, 0.5 * W);
  EXPECT_EQ(regres.style.across, drawing::Across::Centre);
  // One row of the scale's percentages stands between.
  EXPECT_NEAR(regres.at.y, 0.9 * H + 120 + 1.2 * PlotWBas::RowHeight(regres.style), 1e-9);
}

}  // namespace
