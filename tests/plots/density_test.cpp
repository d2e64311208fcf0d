#include "plots/density.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "base/fault.h"

namespace {

using drawing::DrawingRecord;
using drawing::DrawnDot;
using drawing::DrawnLine;
using PlotWBas::DensityData;
using PlotWBas::DrawDensity;

constexpr double kWidth = 11400;
constexpr double kHeight = 8100;
constexpr double kFoot = 0.9 * kHeight + 60;

DensityData Population(double GSD) {
  DensityData data;
  data.GSD = GSD;
  data.xStart = std::pow(GSD, -6);
  data.xEnd = 1.5 * GSD;
  data.marks = {{"GMLbl", "GM=1", 1, {}}, {"GSDPercLbl", "GSD", GSD, {}}};
  return data;
}

template <typename Item>
std::vector<Item> All(const DrawingRecord& drawing) {
  std::vector<Item> all;
  for (const auto& item : drawing.Items())
    if (const auto* one = std::get_if<Item>(&item)) all.push_back(*one);
  return all;
}

std::vector<DrawnDot> Curve(const DensityData& data, double width = kWidth,
                            double height = kHeight) {
  DrawingRecord drawing(width, height);
  DrawDensity(drawing, data);
  return All<DrawnDot>(drawing);
}

bool HasLine(const DrawingRecord& drawing, drawing::Point from, drawing::Point to) {
  for (const DrawnLine& line : All<DrawnLine>(drawing)) {
    const double off = std::abs(line.from.x - from.x) + std::abs(line.from.y - from.y) +
                       std::abs(line.to.x - to.x) + std::abs(line.to.y - to.y);
    if (off < 1e-6) return true;
  }
  return false;
}

TEST(Density, EveryPointOfTheCurveStandsWhereTheFormulasPutIt) {
  for (const double GSD : {1.3, 2.5, 8.0}) {
    const DensityData data = Population(GSD);
    const std::vector<DrawnDot> dots = Curve(data);
    const double s = std::log(GSD);
    const double peak = std::exp(s * s / 2) / s / std::sqrt(6.28);
    std::size_t i = 0;
    for (double x = data.xStart; x <= data.xEnd; x *= std::pow(GSD, 0.01), ++i) {
      const double z = std::log(x) / s;
      const double f = std::exp(-z * z / 2) / (s * x) / std::sqrt(6.28);
      ASSERT_LT(i, dots.size());
      EXPECT_NEAR(dots[i].at.x, 60 + 0.9 * kWidth * x / data.xEnd, 1e-6) << GSD << " " << i;
      EXPECT_NEAR(dots[i].at.y, 60 + 0.9 * kHeight * (1 - f / peak), 1e-6) << GSD << " " << i;
    }
    EXPECT_EQ(dots.size(), i);
  }
}

TEST(Density, ThePeakReachesTheTopOfTheAxisAndTheCurveIsBlue) {
  const std::vector<DrawnDot> dots = Curve(Population(2));
  double top = kHeight;
  for (const DrawnDot& dot : dots) {
    top = std::min(top, dot.at.y);
    EXPECT_EQ(dot.colour, (drawing::Colour{0, 0, 255}));
  }
  EXPECT_GE(top, 60);
  EXPECT_LT(top, 62);
}

TEST(Density, TheNumberOfPointsDoesNotDependOnTheSizeOfTheSurface) {
  const std::size_t count = Curve(Population(2)).size();
  EXPECT_EQ(Curve(Population(2), 2 * kWidth, kHeight / 2).size(), count);
  EXPECT_GT(count, 500U);
}

TEST(Density, TheAxesStandSixtyTwipsFromTheEdgeAndTheMarksHangBelow) {
  DrawingRecord drawing(kWidth, kHeight);
  DrawDensity(drawing, Population(2));
  const double end = 0.9 * kWidth + 60;
  EXPECT_TRUE(HasLine(drawing, {60, kFoot}, {end, kFoot}));
  EXPECT_TRUE(HasLine(drawing, {60, 60}, {60, kFoot}));
  for (const double x : {1.0, 2.0, 3.0}) {
    const double X = 60 + 0.9 * kWidth * x / 3;
    EXPECT_TRUE(HasLine(drawing, {X, 0.9 * kHeight + 90}, {X, 0.9 * kHeight + 150})) << x;
  }
}

// On a large window the points of the method stand far apart; a curve is a line.
TEST(Density, TheCurveHasNoGapsOnAnyWindow) {
  for (const double scale : {1.0, 2.5, 5.0}) {
    DrawingRecord drawing(scale * kWidth, scale * kHeight);
    DrawDensity(drawing, Population(2.5));
    const drawing::Point* last = nullptr;
    bool joined = false;
    for (const auto& item : drawing.Items()) {
      const auto* line = std::get_if<DrawnLine>(&item);
      if (line && last && line->from == *last) joined = true;
      const auto* dot = std::get_if<DrawnDot>(&item);
      if (!dot) continue;
      if (last && std::hypot(dot->at.x - last->x, dot->at.y - last->y) > drawing::kDotWidth) {
        EXPECT_TRUE(joined) << dot->at.x;
      }
      last = &dot->at;
      joined = false;
    }
  }
}

// A limit that lies beyond the picture is still named, at the tip of an arrow.
TEST(Density, AMarkBeyondTheEndOfTheAxisStandsAtAnArrow) {
  DensityData data = Population(2);
  data.marks.push_back({"VkrValLbl", "H=5", 5, {}});
  DrawingRecord drawing(kWidth, kHeight);
  DrawDensity(drawing, data);
  const double end = 0.9 * kWidth + 60;
  EXPECT_TRUE(HasLine(drawing, {end, kFoot}, {end + 240, kFoot}));
  const double tip = end + 240;
  EXPECT_TRUE(HasLine(drawing, {tip, 0.9 * kHeight + 90}, {tip, 0.9 * kHeight + 150}));
}

// Nearly equal outcomes against a high limit: the plain steps would be millions.
TEST(Density, ANarrowDensityOnALongAxisIsDrawnWithFewPoints) {
  DensityData data = Population(1.001);
  data.xStart = 1e-24;
  data.xEnd = 2e4;
  const std::vector<DrawnDot> dots = Curve(data);
  EXPECT_LT(dots.size(), 25000U);
  EXPECT_LT(dots.front().at.x, 60.01);
  EXPECT_GT(dots.back().at.x, 0.9 * kWidth + 58);
  double highest = kHeight;
  for (std::size_t i = 1; i < dots.size(); ++i) {
    EXPECT_LE(dots[i].at.x - dots[i - 1].at.x, 15) << i;
    highest = std::min(highest, dots[i].at.y);
  }
  EXPECT_LT(highest, 70) << "the peak lies between two points";
}

TEST(Density, AnAxisThatEndsNearTheLargestNumberIsDrawnOnAWindowOfAnySize) {
  DensityData data = Population(3);
  data.xEnd = 1E304;
  for (const double width : {kWidth, 120000.0}) {
    const std::vector<DrawnDot> dots = Curve(data, width, 0.75 * width);
    ASSERT_FALSE(dots.empty());
    EXPECT_NEAR(dots.back().at.x, 60 + 0.9 * width, 0.01 * width);
  }
}

TEST(Density, ASpreadOfOneIsARunTimeFault) {
  DrawingRecord drawing(kWidth, kHeight);
  EXPECT_THROW(DrawDensity(drawing, Population(1)), RunTimeError);
}

}  // namespace
