// Places of points, ticks and labels, against the formulas of the method.
#include "plots/paper.h"

#include <gtest/gtest.h>

#include "analysis/transformations.h"
#include "base/fault.h"
#include "plots/paper_labels.h"
#include "tests/analysis/fit_data.h"
#include "tests/plots/plot_data.h"
#include "tests/support/csv.h"

namespace {

using drawing::DrawnLine;
using drawing::Point;
using plot_data::Plot;
using PlotWBas::Axes;
using support::Row;

// The marks of one point in the order in which they are drawn.
struct Marks {
  DrawnLine below;  // tick on the horizontal axis
  DrawnLine left;   // tick on the vertical axis
  DrawnLine falling;
  DrawnLine rising;
};

constexpr std::size_t kFrameLines = 4;

Marks MarksAt(const drawing::DrawingRecord& drawing, std::size_t point) {
  const auto line = [&](std::size_t k) {
    return std::get<DrawnLine>(drawing.Items().at(kFrameLines + 4 * point + k));
  };
  return {line(0), line(1), line(2), line(3)};
}

void ExpectLine(const DrawnLine& line, Point from, Point to) {
  EXPECT_NEAR(line.from.x, from.x, 1e-6);
  EXPECT_NEAR(line.from.y, from.y, 1e-6);
  EXPECT_NEAR(line.to.x, to.x, 1e-6);
  EXPECT_NEAR(line.to.y, to.y, 1e-6);
}

void ExpectMarks(const Marks& marks, Point at, double W, double H) {
  ExpectLine(marks.falling, {at.x - 60, at.y - 60}, {at.x + 60, at.y + 60});
  ExpectLine(marks.rising, {at.x - 60, at.y + 60}, {at.x + 60, at.y - 60});
  ExpectLine(marks.below, {at.x, 0.9 * H + 30}, {at.x, 0.9 * H + 150});
  ExpectLine(marks.left, {0.2 * W - 30, at.y}, {0.2 * W - 90, at.y});
}

// The score of the i-th lowest of M outcomes.
double Z(const std::vector<double>& R, int M, int i) {
  if (2 * i == M + 1) return 0;
  return i <= M / 2 ? -R[static_cast<std::size_t>(i)] : R[static_cast<std::size_t>(M + 1 - i)];
}

// Where the i-th lowest outcome belongs.
Point Expected(const Plot& plot, Axes axes, int i) {
  const int M = static_cast<int>(plot.s.M);
  const double W = plot.drawing.ScaleWidth();
  const double H = plot.drawing.ScaleHeight();
  const auto& y = plot.s.LnC;
  const double span = y[static_cast<std::size_t>(M)] - y[1];
  const double part = (y[static_cast<std::size_t>(i)] - y[1]) / span;
  const double score = Z(plot.state.RankitTable, M, i) / plot.state.RankitTable[1];
  if (axes == Axes::OutcomesUp) return {0.5 * W + 0.3 * W * score, 0.9 * H - part * 0.7 * H};
  return {0.2 * W + part * 0.6 * W, 0.55 * H - 0.35 * H * score};
}

void ExpectAllPoints(const Plot& plot, Axes axes) {
  const int M = static_cast<int>(plot.s.M);
  std::size_t point = 0;
  const auto expect = [&](int i) {
    SCOPED_TRACE(i);
    ExpectMarks(MarksAt(plot.drawing, point++), Expected(plot, axes, i), plot.drawing.ScaleWidth(),
                plot.drawing.ScaleHeight());
  };
  for (int i = 1; i <= M / 2; ++i) {
    expect(i);
    expect(M + 1 - i);
  }
  if (M % 2 == 1) expect(M / 2 + 1);
  EXPECT_FALSE(std::holds_alternative<DrawnLine>(
      plot.drawing.Items().at(kFrameLines + 4 * static_cast<std::size_t>(M))));
}

// Draws the paper alone.
Plot Drawn(const ExposureSession& s, const std::string& transformation, Axes axes,
           double width = plot_data::kWidth, double height = plot_data::kHeight) {
  Plot plot(s, transformation, width, height);
  if (axes == Axes::OutcomesUp)
    DrawProbabilityPaper(plot.drawing, plot.labels, plot.Data());
  else
    DrawInverseCumulative(plot.drawing, plot.labels, plot.Data());
  WriteLabels(plot.drawing, plot.labels);
  return plot;
}

class ProbabilityPaper : public testing::TestWithParam<Axes> {};

TEST_P(ProbabilityPaper, HasEachPointAndItsTicksWhereTheFormulasPutThem) {
  for (const int M : {3, 4, 5, 20, 21, 39, 40, 2000})
    for (const analysis::Transformation& scale : analysis::kTransformations) {
      SCOPED_TRACE(std::string(scale.name) + " of " + std::to_string(M));
      ExpectAllPoints(Drawn(plot_data::Series(M), std::string(scale.name), GetParam()), GetParam());
    }
}

TEST_P(ProbabilityPaper, KeepsItsPlacesWithinARange) {
  for (const int M : {4, 20, 21}) {
    ExposureSession s = plot_data::Series(M);
    plot_data::Restrict(s);
    ASSERT_GT(s.FirstInRange, 1);
    ExpectAllPoints(Drawn(s, "Log(x)", GetParam()), GetParam());
  }
}

// The line follows the points in range only; the others step back.
TEST_P(ProbabilityPaper, ShowsThePointsOutsideOfTheRangeInAnotherColour) {
  ExposureSession s = plot_data::Series(20);
  plot_data::Restrict(s);
  const Plot plot = Drawn(s, "Log(x)", GetParam());
  const drawing::Colour outside = MarksAt(plot.drawing, 0).falling.colour;  // of the lowest
  const drawing::Colour inside = MarksAt(plot.drawing, 19).falling.colour;  // of the middle
  EXPECT_NE(outside, inside);
  EXPECT_EQ(MarksAt(plot.drawing, 1).falling.colour, outside);  // of the highest
  EXPECT_EQ(MarksAt(plot.drawing, 4).falling.colour, inside);   // of the third: two lie below
}

TEST_P(ProbabilityPaper, FitsASurfaceOfAnySize) {
  ExpectAllPoints(Drawn(plot_data::Series(20), "Log(x)", GetParam(), 5000, 9000), GetParam());
  ExpectAllPoints(Drawn(plot_data::Series(21), "Unt", GetParam(), 28000, 15000), GetParam());
}

TEST_P(ProbabilityPaper, OfOutcomesThatDoNotDifferHasAllPointsInTheMiddle) {
  ExposureSession s = fit_data::Opened({2, 2, 2, 2, 2});
  s.SigDigits = 1;
  const Plot plot = Drawn(s, "Log(x)", GetParam());
  for (std::size_t point = 0; point < 4; ++point) {
    const DrawnLine cross = MarksAt(plot.drawing, point).falling;
    if (GetParam() == Axes::OutcomesUp)
      EXPECT_EQ(cross.from.y + 60, 0.55 * plot_data::kHeight);
    else
      EXPECT_EQ(cross.from.x + 60, 0.5 * plot_data::kWidth);
  }
}

TEST_P(ProbabilityPaper, OfTwoOutcomesIsASubscriptFault) {
  ExposureSession s = plot_data::Series(3);
  s.M = 2;
  const std::vector<double> R = {0, 0.5};
  drawing::DrawingRecord drawing(1000, 1000);
  PlotWBas::Labels labels;
  const PlotWBas::PlotData data{s, s.LnC, R, "Log(x)", {}};
  EXPECT_THROW(DrawProbabilityPaper(drawing, labels, data), RunTimeError);
  s.M = 4;  // more than there are outcomes
  EXPECT_THROW(DrawInverseCumulative(drawing, labels, data), RunTimeError);
}

INSTANTIATE_TEST_SUITE_P(EitherWay, ProbabilityPaper,
                         testing::Values(Axes::OutcomesUp, Axes::OutcomesAcross));

TEST(ProbabilityPaperOfThree, HasItsCrossesAtTwoFiveAndEightTenths) {
  const Plot plot = Drawn(plot_data::Series(3), "Log(x)", Axes::OutcomesUp);
  EXPECT_EQ(plot.state.RankitTable[1], 0.84628);
  const auto x = [&](std::size_t point) { return MarksAt(plot.drawing, point).below.from.x; };
  EXPECT_NEAR(x(0), 0.2 * plot_data::kWidth, 1e-9);
  EXPECT_NEAR(x(1), 0.8 * plot_data::kWidth, 1e-9);
  EXPECT_NEAR(x(2), 0.5 * plot_data::kWidth, 1e-9);
}

TEST(ProbabilityPaperLabels, NameTheEndsOfBothScales) {
  const Plot plot = Drawn(plot_data::Series(21), "Log(x)", Axes::OutcomesUp);
  EXPECT_EQ(plot.Text("LblC1"), "C(1)=    1.5");
  EXPECT_EQ(plot.Text("LblCm"), "C(21)=    36");
  EXPECT_EQ(plot.Text("LblMedian"), "Median 7.3485");
  EXPECT_EQ(plot.Text("LblR1"), "2.94%");
  EXPECT_EQ(plot.Text("LblRMedian"), "50.0 %");
  EXPECT_EQ(plot.Text("LblRM_2"), "97.06%");
}

TEST(ProbabilityPaperLabels, HaveNoMedianWhereTwoOutcomesShareTheMiddle) {
  EXPECT_NE(
      PlotWBas::FindLabel(Drawn(plot_data::Series(3), "Unt", Axes::OutcomesUp).labels, "LblMedian"),
      nullptr);
  EXPECT_EQ(
      PlotWBas::FindLabel(Drawn(plot_data::Series(4), "Unt", Axes::OutcomesUp).labels, "LblMedian"),
      nullptr);
}

TEST(ProbabilityPaperLabels, StandWhereTheirMarksAre) {
  const Plot plot = Drawn(plot_data::Series(21), "Log(x)", Axes::OutcomesUp);
  const auto at = [&](const char* name) { return PlotWBas::FindLabel(plot.labels, name)->at; };
  EXPECT_EQ(at("LblC1").y, 0.9 * plot_data::kHeight);
  EXPECT_EQ(at("LblCm").y, 0.2 * plot_data::kHeight);
  EXPECT_NEAR(at("LblMedian").y, Expected(plot, Axes::OutcomesUp, 11).y, 1e-9);
  EXPECT_NEAR(at("LblR1").x, 0.2 * plot_data::kWidth, 60.1);
  EXPECT_EQ(at("LblRMedian").x, 0.5 * plot_data::kWidth);
  EXPECT_NEAR(at("LblRM_2").x, 0.8 * plot_data::kWidth, 60.1);
}

// The reciprocal of the lowest outcome is the highest.
TEST(ProbabilityPaperLabels, OfTheReciprocalStandWithTheirOutcomes) {
  const Plot plot = Drawn(plot_data::Series(20), "1/x", Axes::OutcomesUp);
  EXPECT_EQ(plot.Text("LblC1"), "C(1)=    1.5");
  EXPECT_EQ(PlotWBas::FindLabel(plot.labels, "LblC1")->at.y, 0.2 * plot_data::kHeight);
  EXPECT_EQ(PlotWBas::FindLabel(plot.labels, "LblCm")->at.y, 0.9 * plot_data::kHeight);
}

TEST(ProbabilityPaperTexts, TellWhatIsDrawnOnWhichScale) {
  ExposureSession s = plot_data::Series(4);
  EXPECT_EQ(PlotWBas::HeadlineText(s, "Log(x)", "welders.vkr"),
            "A cumulative frequency distribution\rof welders.vkr\r"
            "on Log(x) Normal probability paper");
  EXPECT_EQ(PlotWBas::OutcomesTitle(s, "Sqr(x)"), "Results\rin mg/m3\ron a\rSqr(x) scale");
  s.Unit.clear();
  EXPECT_EQ(PlotWBas::OutcomesTitle(s, "Sqr(x)"), "Results\rwith no units\ron a\rSqr(x) scale");
  EXPECT_EQ(PlotWBas::ScoresTitle(s), "Normal\rorder\rscale");
}

TEST(ProbabilityPaperTexts, OfUntransformedOutcomesSpeakOfALinearScaleAndOfNoTransformation) {
  const ExposureSession s = plot_data::Series(4);
  EXPECT_EQ(PlotWBas::HeadlineText(s, "Unt", "series.vkr"),
            "A cumulative frequency distribution\rof series.vkr\ron  Normal probability paper");
  EXPECT_EQ(PlotWBas::OutcomesTitle(s, "Unt"), "Results\rin mg/m3\ron a\rLinear scale");
}

TEST(ProbabilityPaperTexts, CarryTheDateAndTimeOfTheDrawing) {
  const ExposureSession s = plot_data::Series(4);
  EXPECT_EQ(PlotWBas::HeaderText(s, {2024, 3, 7, 9, 5, 30}),
            "VALKORIN\rdate: 7 Mar 2024\rtime : 09:05:30\rwindow_17a");
}

TEST(InverseCumulative, HasTheSameTextsOnExchangedAxes) {
  const Plot up = Drawn(plot_data::Series(21), "Log(x)", Axes::OutcomesUp);
  const Plot across = Drawn(plot_data::Series(21), "Log(x)", Axes::OutcomesAcross);
  for (const char* name : {"LblC1", "LblCm", "LblMedian", "LblR1", "LblRMedian", "LblRM_2",
                           "LblKoptekst", "LblRightTxt"})
    EXPECT_EQ(up.Text(name), across.Text(name));
  EXPECT_EQ(up.Text("LblYasTop"), across.Text("LblXasEinde"));
  EXPECT_EQ(up.Text("LblXasEinde"), across.Text("LblYasTop"));
  EXPECT_EQ(PlotWBas::FindLabel(across.labels, "LblC1")->at.x, 0.2 * plot_data::kWidth);
  EXPECT_EQ(PlotWBas::FindLabel(across.labels, "LblR1")->at.y, 0.9 * plot_data::kHeight);
  EXPECT_EQ(PlotWBas::FindLabel(across.labels, "LblRM_2")->at.y, 0.2 * plot_data::kHeight);
}

// scores.csv: the scores by which the points are laid out.
TEST(ProbabilityPaperScores, AreThoseOfTheReferenceTable) {
  int rows = 0;
  for (const Row& row : support::ReadTable("scores.csv")) {
    const int M = static_cast<int>(row.Number("M"));
    const int i = static_cast<int>(row.Number("i"));
    const Plot plot(plot_data::Series(M), "Log(x)");
    const double place =
        plot.Paper(Axes::OutcomesUp)
            .At(plot.s.LnC[static_cast<std::size_t>(i)], Z(plot.state.RankitTable, M, i))
            .x;
    const double z =
        (place - 0.5 * plot_data::kWidth) / (0.3 * plot_data::kWidth) * plot.state.RankitTable[1];
    EXPECT_NEAR(z, row.Number("z"), 1e-11) << row.Where();
    ++rows;
  }
  EXPECT_GE(rows, 200);
}

}  // namespace
