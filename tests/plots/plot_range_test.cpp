// The regression range on the plot screen: menus, scroll bars and mouse.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/plots/plot_screen.h"

namespace {

using plot_screen::kTen;

class PlotRange : public testing::Test {
 protected:
  void SetUp() override { p.See(kTen); }

  plot_screen::User p;
  ExposureSession& s = p.Record();
};

// The statistics that a range changes.
struct Statistics {
  double GM;
  double GSD;
  double df;
  bool operator==(const Statistics&) const = default;
};
Statistics Of(const ExposureSession& s) { return {s.GM, s.GSD, s.df}; }

}  // namespace

TEST_F(PlotRange, BeginsAtTheLowestOutcomeWithItsBarAtTheFoot) {
  p.Click("MenuLowLim");
  EXPECT_TRUE(s.DetecOn);
  EXPECT_EQ(s.LOQ, 0.95 * 0.21);
  EXPECT_TRUE(p.At("VScLowLimit").visible);
  EXPECT_TRUE(p.At("VScLowLimit").enabled);
  EXPECT_EQ(p.At("VScLowLimit").value, 100);
  for (const char* other : {"VScUplimit", "HScLowLimit", "HScUplimit"})
    EXPECT_FALSE(p.At(other).visible) << other;
  EXPECT_FALSE(p.At("LblLnLOQ").visible);
  EXPECT_EQ(p.Shown().focusWanted, &p.At("VScLowLimit"));
}

TEST_F(PlotRange, ByTheLowerBarGivesItsEstimatorsToTheRecord) {
  const Statistics whole = Of(s);
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_GT(s.LOQ, 0.45);
  EXPECT_EQ(s.FirstInRange, 4);
  EXPECT_EQ(s.NInRange, 7);
  EXPECT_TRUE(s.RegressionOn);
  EXPECT_EQ(s.RegressionLabel, "Single censored");
  EXPECT_NE(s.GM, whole.GM);
  EXPECT_NE(s.GSD, whole.GSD);
  EXPECT_EQ(s.df, 7);
  EXPECT_TRUE(p.At("LblLnLOQ").visible);
  EXPECT_EQ(p.At("VScLowLimit").value, 70);
  EXPECT_EQ(p.Text("LblLnLOQ").substr(0, 8), "LOQ     ");
}

TEST_F(PlotRange, KeepsALimitThatStillFitsWhenItsPickerOpensAgain) {
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  const double LOQ = s.LOQ;
  p.Click("MenuUpLim");
  EXPECT_EQ(s.URR, 1.05 * 3.1);
  p.Bar("VScUplimit", 20);
  EXPECT_LT(s.URR, 3.1);
  p.Click("MenuLowLim");
  EXPECT_EQ(s.LOQ, LOQ);
  EXPECT_EQ(p.At("VScLowLimit").value, 70);
  EXPECT_EQ(s.RegressionLabel, "Double censored");
}

TEST_F(PlotRange, ShowsTheUpperBarWithItsLimit) {
  p.Click("MenuUpLim");
  EXPECT_TRUE(p.At("VScUplimit").visible);
  EXPECT_TRUE(p.At("VScUplimit").enabled);
  EXPECT_EQ(p.At("VScUplimit").value, 0);
  EXPECT_FALSE(p.At("VScLowLimit").enabled);
  p.Bar("VScUplimit", 25);
  EXPECT_EQ(p.At("VScUplimit").value, 25);
  EXPECT_TRUE(p.At("LblLnURR").visible);
  p.Click("MenuRemDetec");
  p.Click("MenuUpLim");
  EXPECT_EQ(p.At("VScUplimit").value, 0);
}

TEST_F(PlotRange, HidesTheLineOfTheDefaultUpperLimitAlthoughTheRangeIsInForce) {
  p.Click("MenuUpLim");
  EXPECT_TRUE(s.DetecOn);
  EXPECT_EQ(s.URR, 1.05 * 3.1);
  EXPECT_FALSE(p.At("LblLnURR").visible);
}

// The box tells of the limit that was refused; behind it the picture shows the one in its place.
TEST_F(PlotRange, ComplainsOfALimitThatLeavesTooLittleAndRedrawsWithTheOneInItsPlace) {
  p.Click("MenuLowLim");
  const int drawn = p.Plot().PicPlot.drawing.Revision();
  p.Bar("VScLowLimit", 5);
  ASSERT_EQ(p.box.shown.size(), 1U);
  EXPECT_EQ(p.LastBox().title, "Invalid LOQ");
  EXPECT_EQ(p.LastBox().icon, screen::Icon::Exclamation);
  EXPECT_NE(p.LastBox().text.find("less than 3"), std::string::npos);
  EXPECT_EQ(s.LOQ, 1.1);  // C(LastInRange - 3)
  EXPECT_NE(p.Plot().PicPlot.drawing.Revision(), drawn);
  EXPECT_TRUE(p.At("LblLnLOQ").visible);
  const double place = std::log(3.1 / 1.1) / std::log(3.1 / 0.21);
  EXPECT_EQ(p.At("VScLowLimit").value, std::lround(100 * place));
  EXPECT_EQ(p.Text("LblLnLOQ"), "LOQ     1.1");
  const auto picture = p.Plot().PicPlot.drawing.Items();
  p.Click("MenuRedraw");
  EXPECT_EQ(p.Plot().PicPlot.drawing.Items(), picture) << "nothing is left to follow";
}

TEST_F(PlotRange, WithARootScaleShowsNoEstimatesAndLeavesTheSampleEstimators) {
  const Statistics whole = Of(s);
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  p.Click("MenuSqrt");
  EXPECT_EQ(p.Text("LblDescrip").find("estimates"), std::string::npos);
  EXPECT_FALSE(s.RegressionOn);
  EXPECT_EQ(s.GM, whole.GM);
  p.Click("MenuRedraw");
  EXPECT_NEAR(std::log(s.GSD) * std::sqrt(s.df), std::log(whole.GSD) * std::sqrt(whole.df), 1e-12);
}

TEST_F(PlotRange, OnTheLinearScaleShowsMeanAndDeviationAndLeavesTheSampleEstimators) {
  const Statistics whole = Of(s);
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  p.Click("MenuUntransf");
  EXPECT_NE(p.Text("LblDescrip").find("\rx="), std::string::npos);
  EXPECT_NE(p.Text("LblDescrip").find("\rs="), std::string::npos);
  EXPECT_EQ(s.GM, whole.GM);
  EXPECT_FALSE(s.RegressionOn);
  EXPECT_EQ(p.Text("LblYasTop"), "Results\rin mg/m3\ron a\rLinear scale");
}

TEST_F(PlotRange, IsRemovedWithAllThatItChanged) {
  const ExposureSession before = s;
  p.Click("MenuUpLim");
  p.Bar("VScUplimit", 20);
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  EXPECT_EQ(s.RegressionLabel, "Double censored");
  p.Click("MenuRemDetec");
  EXPECT_FALSE(s.DetecOn);
  EXPECT_FALSE(s.RegressionOn);
  EXPECT_EQ(s.LOQ, before.LOQ);
  EXPECT_EQ(s.URR, before.URR);
  EXPECT_EQ(s.FirstInRange, 1);
  EXPECT_EQ(s.LastInRange, 10);
  EXPECT_EQ(s.NInRange, 10);
  EXPECT_EQ(Of(s), Of(before));
  EXPECT_EQ(s.GMu, before.GMu);
  EXPECT_EQ(p.Text("LblDescrip"), "Sample size\rM= 10");
  for (const char* name : {"VScLowLimit", "VScUplimit", "LblLnLOQ", "LblLnURR"})
    EXPECT_FALSE(p.At(name).visible) << name;
}

TEST_F(PlotRange, IsPickedByTheMouseOnASlideOfSixTenths) {
  p.Click("MenuLowLim");
  p.PlotClick(0.5, 0.2 + 0.6 * 0.7);  // seven tenths down
  EXPECT_TRUE(p.box.shown.empty());
  const double t = s.LnC[10] - 0.7 * (s.LnC[10] - s.LnC[1]);
  EXPECT_NEAR(s.LOQ, std::exp(t), 1e-12);
  EXPECT_EQ(s.FirstInRange, 4);
  EXPECT_TRUE(s.RegressionOn);
  EXPECT_EQ(p.At("VScLowLimit").value, 70);
}

TEST_F(PlotRange, AfterTheUpperMenuAClickStillMovesTheLowerLimit) {
  p.Click("MenuUpLim");
  const double URR = s.URR;
  p.PlotClick(0.5, 0.62);
  EXPECT_EQ(s.URR, URR);
  EXPECT_GT(s.LOQ, 0.45);
  EXPECT_EQ(s.FirstInRange, 4);
}

TEST_F(PlotRange, StaysWhereItIsWhenTheClickLeavesTooFewOutcomes) {
  p.Click("MenuLowLim");
  const double LOQ = s.LOQ;
  for (const double y : {0.21, 0.05, 0.97}) {
    p.PlotClick(0.5, y);
    EXPECT_EQ(s.LOQ, LOQ) << y;
  }
  EXPECT_TRUE(p.box.shown.empty());
}

// Below the frame the square root of a negative number would be asked for.
TEST_F(PlotRange, ForgivesAClickWhereTheScaleHasNoOutcome) {
  p.Click("MenuLowLim");
  for (const char* menu : {"MenuSqrd", "MenuExp", "MenuRecip"}) {
    p.Click(menu);
    p.PlotClick(0.5, 1);
    p.PlotClick(0.5, 0.8 + 1e-9);
    EXPECT_TRUE(p.box.shown.empty()) << menu;
  }
}

TEST_F(PlotRange, IsNotPickedWithoutAPicker) {
  const double LOQ = s.LOQ;
  s.MsgText = "an old complaint";
  p.PlotClick(0.5, 0.5);
  EXPECT_EQ(s.LOQ, LOQ);
  EXPECT_FALSE(s.DetecOn);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotRange, FollowsTheBarsAcrossOnTheInversePlot) {
  p.Click("MenuDevMode");
  p.Click("MenuInvPlot");
  p.Click("MenuUpLim");
  EXPECT_FALSE(p.At("VScUplimit").visible);
  p.Bar("HScUplimit", 80);
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_NEAR(std::log(s.URR), s.LnC[1] + 0.8 * (s.LnC[10] - s.LnC[1]), 1e-12);
  EXPECT_EQ(p.At("HScUplimit").value, 80);
  EXPECT_TRUE(p.At("LblLnURR").visible);
}

// The bar across adds to the highest outcome, so that it always asks for too much.
TEST_F(PlotRange, OfTheLowerBarAcrossLiesAboveAllOutcomes) {
  p.Click("MenuDevMode");
  p.Click("MenuInvPlot");
  p.Click("MenuLowLim");
  p.Bar("HScLowLimit", 30);
  ASSERT_EQ(p.box.shown.size(), 1U);
  EXPECT_NE(p.LastBox().text.find("LOQ set at 95% of the lowest outcome"), std::string::npos);
  EXPECT_EQ(s.LOQ, 0.95 * 0.21);
}

TEST_F(PlotRange, HasNoMouseOnTheInversePlot) {
  p.Click("MenuDevMode");
  p.Click("MenuInvPlot");
  p.Click("MenuLowLim");
  const double LOQ = s.LOQ;
  p.PlotClick(0.5, 0.6);
  EXPECT_EQ(s.LOQ, LOQ);
}

TEST_F(PlotRange, HasItsBarsBesideTheAxisWithRoomForTheirArrows) {
  const screen::Picture& picture = p.Plot().PicPlot;
  const double W = picture.drawing.ScaleWidth();
  const double H = picture.drawing.ScaleHeight();
  for (const char* name : {"VScLowLimit", "VScUplimit"}) {
    ASSERT_TRUE(p.At(name).place.has_value());
    EXPECT_EQ(p.At(name).place->left, 0.02 * W);
    EXPECT_EQ(p.At(name).place->top, 0.2 * H - 280);
    EXPECT_NEAR(p.At(name).place->height, 0.7 * H + 560, 1e-9);
  }
}

TEST_F(PlotRange, SurvivesAVisitToAnotherScreen) {
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  const Statistics censored = Of(s);
  p.Tab("descript");
  p.Tab("plot");
  EXPECT_EQ(Of(s), censored);
  EXPECT_TRUE(p.At("VScLowLimit").visible);
  EXPECT_TRUE(p.At("LblLnLOQ").visible);
}

TEST_F(PlotRange, ThatIsGivenUpElsewhereLeavesNothingToPickHere) {
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  p.Tab("raw");
  p.Click("DetecChB");
  EXPECT_FALSE(s.DetecOn);
  p.Tab("plot");
  EXPECT_FALSE(p.At("VScLowLimit").visible);
  EXPECT_FALSE(p.Plot().LOQActive);
  EXPECT_FALSE(s.RegressionOn);
}
