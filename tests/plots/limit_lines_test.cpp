#include "plots/limit_lines.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/transformations.h"
#include "tests/plots/plot_data.h"

namespace {

using plot_data::Plot;
using PlotWBas::Axes;
using PlotWBas::LimitMark;
using PlotWBas::LOQMark;
using PlotWBas::URRMark;

constexpr double W = plot_data::kWidth;
constexpr double H = plot_data::kHeight;

struct Limits {
  Plot plot;
  explicit Limits(double LOQ, double URR, const std::string& scale = "Log(x)")
      : plot(plot_data::Series(20), scale) {
    plot.s.LOQ = LOQ;
    plot.s.URR = URR;
  }
  LimitMark LOQ(Axes axes, bool active = false) const {
    return LOQMark(plot.Paper(axes), plot.Data(), active);
  }
  LimitMark URR(Axes axes, bool active = false) const {
    return URRMark(plot.Paper(axes), plot.Data(), active);
  }
};

// The outcomes of the series run from 1.5 to 36.
const double kLowest = 1.5;
const double kHighest = plot_data::Series(20).C[20];

TEST(LimitLines, LieWhereTheTransformedLimitsLie) {
  for (const analysis::Transformation& scale : analysis::kTransformations) {
    SCOPED_TRACE(scale.name);
    const Limits limits(3, 20, std::string(scale.name));
    const auto& y = limits.plot.s.LnC;
    const auto part = [&](double limit) {
      return (y[20] - analysis::TransformValue(scale.name, limit)) / (y[20] - y[1]);
    };
    const LimitMark LOQ = limits.LOQ(Axes::OutcomesUp);
    EXPECT_TRUE(LOQ.shown);
    EXPECT_NEAR(LOQ.fraction, part(3), 1e-12);
    EXPECT_NEAR(LOQ.place, (0.2 + 0.7 * part(3)) * H, 1e-6);
    const LimitMark URR = limits.URR(Axes::OutcomesUp);
    EXPECT_TRUE(URR.shown);
    EXPECT_NEAR(URR.fraction, part(20), 1e-12);
    EXPECT_NEAR(URR.place, (0.2 + 0.7 * part(20)) * H, 1e-6);
    const LimitMark across = limits.LOQ(Axes::OutcomesAcross);
    EXPECT_NEAR(across.fraction, 1 - part(3), 1e-9);
    EXPECT_NEAR(across.place, 0.2 * W + (1 - part(3)) * 0.6 * W, 1e-6);
  }
}

TEST(LimitLines, OfALimitAtOrBelowTheLowestOutcomeAreHidden) {
  for (const bool active : {false, true}) {
    const LimitMark mark = Limits(kLowest, 20).LOQ(Axes::OutcomesUp, active);
    EXPECT_FALSE(mark.shown);
    EXPECT_EQ(mark.fraction, 1);
    EXPECT_EQ(Limits(kLowest, 20).LOQ(Axes::OutcomesAcross, active).fraction, 0);
  }
  EXPECT_TRUE(Limits(std::nextafter(kLowest, 2), 20).LOQ(Axes::OutcomesUp).shown);
}

TEST(LimitLines, OfTheDefaultUpperLimitAreHiddenAlsoWithTheRangeInForce) {
  Limits limits(3, 1.05 * kHighest);
  limits.plot.s.DetecOn = true;
  EXPECT_FALSE(limits.URR(Axes::OutcomesUp).shown);
  EXPECT_FALSE(limits.URR(Axes::OutcomesUp, true).shown);
  EXPECT_EQ(limits.URR(Axes::OutcomesUp).fraction, 0);
  EXPECT_EQ(limits.URR(Axes::OutcomesAcross).fraction, 1);
  EXPECT_FALSE(Limits(3, kHighest).URR(Axes::OutcomesUp).shown);
  EXPECT_TRUE(Limits(3, std::nextafter(kHighest, 0)).URR(Axes::OutcomesUp).shown);
}

TEST(LimitLines, OfAnUpperLimitThatLeavesNoThreeOutcomesShowOnlyWhileItIsPicked) {
  const double C3 = plot_data::Series(20).C[3];
  EXPECT_FALSE(Limits(1, C3).URR(Axes::OutcomesUp).shown);
  EXPECT_TRUE(Limits(1, C3).URR(Axes::OutcomesUp, true).shown);
  EXPECT_TRUE(Limits(1, std::nextafter(C3, 40)).URR(Axes::OutcomesUp).shown);
}

TEST(LimitLines, AreDrawnAcrossTheFrameWithTheirLimitsBesideThem) {
  Limits limits(3, 20);
  Plot& plot = limits.plot;
  plot.Draw(Axes::OutcomesUp);
  EXPECT_EQ(plot.Text("LblLnLOQ"), "LOQ      3");
  EXPECT_EQ(plot.Text("LblLnURR"), "URR     20");
  std::vector<drawing::DrawnLine> level;
  for (const auto& item : plot.drawing.Items())
    if (const auto* line = std::get_if<drawing::DrawnLine>(&item))
      if (line->from.x == 0.2 * W && line->to.x == 0.8 * W && line->from.y == line->to.y)
        level.push_back(*line);
  ASSERT_EQ(level.size(), 2U);
  EXPECT_NEAR(level[0].from.y, limits.LOQ(Axes::OutcomesUp).place, 1e-9);
  EXPECT_NEAR(level[1].from.y, limits.URR(Axes::OutcomesUp).place, 1e-9);
}

TEST(LimitLines, StandUprightWhereTheOutcomesRunAcross) {
  Limits limits(3, 20);
  limits.plot.Draw(Axes::OutcomesAcross);
  int upright = 0;
  for (const auto& item : limits.plot.drawing.Items())
    if (const auto* line = std::get_if<drawing::DrawnLine>(&item))
      upright += line->from.y == 0.2 * H && line->to.y == 0.9 * H && line->from.x == line->to.x;
  EXPECT_EQ(upright, 2);
}

TEST(LimitLines, ThatAreHiddenHaveNoLabel) {
  Limits limits(1, 1.05 * kHighest);
  limits.plot.Draw(Axes::OutcomesUp);
  EXPECT_EQ(PlotWBas::FindLabel(limits.plot.labels, "LblLnLOQ"), nullptr);
  EXPECT_EQ(PlotWBas::FindLabel(limits.plot.labels, "LblLnURR"), nullptr);
}

}  // namespace
