// Nobody can read two texts on top of each other: the labels of the density picture keep clear of
// each other, of the curve and of the edge, whatever the numbers.
#include "plots/density_labels.h"

#include <gmock/gmock.h>

#include <cmath>

#include "catalog/catalog.h"
#include "plots/density_view.h"
#include "plots/labels.h"
#include "tests/plots/picture_of.h"
#include "tests/support/letters.h"

namespace {

using drawing::DrawingRecord;
using drawing::DrawnDot;
using drawing::DrawnLine;
using drawing::DrawnText;
using PlotWBas::Box;
using testing::HasSubstr;

struct Size {
  double width;
  double height;
};
// The window as it opens, at 1280 by 720, 1366 by 768, 1920 by 1080 and 3840 by 2160, tall, and as
// small as it gets.
constexpr Size kSizes[] = {{11580, 8330},  {18780, 9930}, {20070, 10650}, {28380, 15330},
                           {57180, 31530}, {9000, 14000}, {6900, 4440}};
// Where letters of 6 points have room for everything.
constexpr double kRoomy = 11000;

ExposureSession Sample(double GSD, int tab, const char* TestTag) {
  ExposureSession s;
  s.CR = "\r";
  s.CurrentTab = picture::ScreenWith(tab);
  s.TestTag = support::TagOf(TestTag);
  s.Name = "Welding fume, hall 3";
  s.Unit = "mg/m3";
  s.M = 12;
  s.df = 11;
  s.SigDigits = 4;
  s.GM = 0.7811;
  s.GSD = GSD;
  s.U = 95;
  s.D = 70;
  s.UTL = s.GM * std::pow(GSD, 1.645);
  s.AMu = s.GM * std::exp(0.5 * std::log(GSD) * std::log(GSD));
  s.UCL = std::log(1.2 * s.AMu);
  s.PercEx = 2.26;
  s.OELV = 5;
  return s;
}

bool Touch(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Holds(const Box& box, drawing::Point at) {
  return at.x > box.left && at.x < box.right && at.y > box.top && at.y < box.bottom;
}

// The upright lines of the marks and of the axis.
bool Crosses(const Box& box, const DrawnLine& line) {
  return line.from.x == line.to.x && line.from.x > box.left && line.from.x < box.right &&
         std::min(line.from.y, line.to.y) < box.bottom &&
         std::max(line.from.y, line.to.y) > box.top;
}

bool Stands(const Box& box, const DrawingRecord::Item& item) {
  const auto* dot = std::get_if<DrawnDot>(&item);
  const auto* line = std::get_if<DrawnLine>(&item);
  return (dot && Holds(box, dot->at)) || (line && Crosses(box, *line));
}

// What stands in each other's way; empty when nothing does.
std::string Trouble(const DrawingRecord& drawing) {
  std::vector<std::pair<std::string, Box>> boxes;
  std::string trouble;
  for (const auto& item : drawing.Items())
    if (const auto* text = std::get_if<DrawnText>(&item)) {
      boxes.push_back({text->label, PlotWBas::BoxOf(text->at, text->text, text->style)});
      if (text->style.size < 6 && drawing.ScaleWidth() > kRoomy)
        trouble += text->label + " is too small; ";
    }
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const auto& [name, box] = boxes[i];
    if (box.left < 0 || box.top < 0 || box.right > drawing.ScaleWidth() ||
        box.bottom > drawing.ScaleHeight())
      trouble += name + " leaves the surface; ";
    for (std::size_t k = i + 1; k < boxes.size(); ++k)
      if (Touch(box, boxes[k].second)) trouble += name + " touches " + boxes[k].first + "; ";
    for (const auto& item : drawing.Items())
      if (Stands(box, item)) {
        trouble += name + " stands on the curve; ";
        break;
      }
  }
  return trouble;
}

struct Caller {
  int tab;
  const char* TestTag;
};
class DensityLabels : public testing::TestWithParam<Caller> {};

TEST_P(DensityLabels, KeepClearOfEachOtherTheCurveAndTheEdge) {
  for (const double GSD : {1.001, 1.05, 1.1, 1.2, 1.3, 1.5, 1.8, 2.5, 4.0, 8.0, 20.0, 200.0})
    for (const double OELV : {0.3, 0.7, 0.8, 1.0, 2.0, 5.0, 40.0, 900.0})
      for (const Size& size : kSizes) {
        ExposureSession s = Sample(GSD, GetParam().tab, GetParam().TestTag);
        s.OELV = OELV;
        DrawingRecord drawing(size.width, size.height);
        PlotWBas::DrawDensity(drawing, PlotWBas::DensityOf(picture::NumbersOf(s), {}));
        EXPECT_EQ(Trouble(drawing), "")
            << "GSD " << GSD << " OELV " << OELV << " on " << size.width << " by " << size.height;
      }
}

INSTANTIATE_TEST_SUITE_P(Callers, DensityLabels,
                         testing::Values(Caller{84, ""}, Caller{90, "Le"}, Caller{90, "Wi"},
                                         Caller{90, "Tu"}, Caller{92, "Ap"}, Caller{92, "Ex"}));

// The texts of the labels below the axis.
std::string Below(const DrawingRecord& drawing) {
  std::string texts;
  for (const auto& item : drawing.Items())
    if (const auto* text = std::get_if<DrawnText>(&item);
        text && text->at.y > 0.9 * drawing.ScaleHeight())
      texts += text->text + "|";
  return texts;
}

TEST_P(DensityLabels, TakeALongNameAndALongUnit) {
  for (const char* name :
       {"/home/hygiene/measurements/2024/Foundry west, moulders and core makers, March.vkr",
        "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"})
    for (const Size& size : kSizes) {
      if (size.width < kRoomy) continue;
      ExposureSession s = Sample(1.8, GetParam().tab, GetParam().TestTag);
      s.Name = name;
      s.Unit = "fibres/ml, eight-hour mean";
      DrawingRecord drawing(size.width, size.height);
      PlotWBas::DrawDensity(drawing, PlotWBas::DensityOf(picture::NumbersOf(s), {}));
      EXPECT_EQ(Trouble(drawing), "") << size.width;
    }
}

// The first digits and the power of ten tell what a number is: neither may be missing.
TEST_P(DensityLabels, NumbersOfManyDigitsKeepTheirBeginningAndTheirEnd) {
  for (const double GM : {0.0106833284049, 1.13712345678E-9, 1.23456789123E9})
    for (const Size& size : kSizes) {
      if (size.width < kRoomy) continue;
      ExposureSession s = Sample(2.5, GetParam().tab, GetParam().TestTag);
      s.SigDigits = 12;
      s.UTL *= GM / s.GM;
      s.AMu *= GM / s.GM;
      s.UCL += std::log(GM / s.GM);
      s.OELV = 4 * GM;
      s.GM = GM;
      DrawingRecord drawing(size.width, size.height);
      PlotWBas::DrawDensity(drawing, PlotWBas::DensityOf(picture::NumbersOf(s), {}));
      EXPECT_EQ(Trouble(drawing), "") << size.width;
      const std::string below = Below(drawing);
      const bool large = GM > 1;
      const bool small = GM < 1E-6;
      EXPECT_THAT(below, HasSubstr(large ? "GM= 1.2345" : small ? "GM= 1.1371" : "GM= 1.0683"));
      EXPECT_THAT(below, HasSubstr(large ? "E+9 mg/m3" : small ? "E-9 mg/m3" : "E-2 mg/m3"));
      EXPECT_EQ(below.find("\u2026"), std::string::npos) << below;
    }
}

// The check above would be worth nothing if it saw no trouble at all.
TEST(DensityLabels, TroubleIsSeen) {
  DrawingRecord drawing(10000, 10000);
  drawing.Text({100, 100}, "one", {}, "One");
  EXPECT_EQ(Trouble(drawing), "");
  drawing.Text({150, 100}, "two", {}, "Two");
  drawing.Dot({200, 200}, {});
  drawing.Text({9990, 9990}, "out", {}, "Three");
  EXPECT_EQ(Trouble(drawing),
            "One touches Two; One stands on the curve; Two stands on the curve; "
            "Three leaves the surface; ");
}

}  // namespace
