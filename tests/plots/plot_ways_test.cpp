// The ways to and from the plot screen, its kinds, its picture.
#include <gtest/gtest.h>

#include <cmath>

#include "session/global_bas.h"
#include "tests/plots/plot_screen.h"

namespace {

using plot_screen::kTen;
using Keys = std::vector<std::string>;

class PlotWays : public testing::Test {
 protected:
  plot_screen::User p;
  ExposureSession& s = p.Record();
};

}  // namespace

TEST_F(PlotWays, OfStatisticsHaveNoPlotAndNoRawData) {
  p.EnterStatistics("Welders", "10", "0.3", "2");
  p.Tab("descript");
  for (const std::string& key : p.TabKeys()) {
    EXPECT_NE(key, "plot");
    EXPECT_NE(key, "raw");
  }
}

TEST_F(PlotWays, OfTwoOutcomesHaveNoPlot) {
  p.OpenSeries({0.4, 0.9});
  EXPECT_FALSE(p.Tab("plot"));
  p.Click("MenuPlot");
  EXPECT_EQ(p.Shown().name, "DataCtrlForm");
  EXPECT_FALSE(p.At("MenuPlot").visible);
}

TEST_F(PlotWays, WithoutValidLimitsLeadToNoTest) {
  p.See(kTen);
  s.OELV.reset();
  p.program.Open(navigation::ScreenId::Plot);
  EXPECT_FALSE(s.LimitsOk);
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "Compare"}));
  EXPECT_FALSE(p.At("menuExtrPol").visible);
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PlotForm");
}

TEST_F(PlotWays, AreTheTabsOfTheTable) {
  p.See(kTen);
  EXPECT_TRUE(s.LimitsOk);
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "extrapolation",
                               "mean", "Compare"}));
  EXPECT_EQ(p.Shown().strip->selected, "plot");
  EXPECT_TRUE(p.At("menuExtrPol").visible);
  EXPECT_FALSE(p.At("MenuPlot").visible);
}

TEST_F(PlotWays, EmptyTheNameOfTheTest) {
  p.See(kTen);
  s.TestTag = Extrapolation::Leidel;
  p.Tab("extrapolation");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(s.TestTag, Extrapolation::None);
  s.TestTag = Extrapolation::Leidel;
  p.Tab("plot");
  EXPECT_EQ(s.TestTag, Extrapolation::None);
}

// The click has moved the strip; the activation moves it back.
TEST_F(PlotWays, ThatAreClosedActivateTheScreenAgain) {
  p.See(kTen);
  s.LimitsOk = false;
  const int drawn = p.Plot().PicPlot.drawing.Revision();
  p.Shown().strip->selected = "extrapolation";
  p.Tab("extrapolation");
  EXPECT_EQ(p.Shown().name, "PlotForm");
  EXPECT_EQ(p.Shown().strip->selected, "plot");
  EXPECT_NE(p.Plot().PicPlot.drawing.Revision(), drawn);
}

TEST_F(PlotWays, OfTheMenusLeadToTheirTests) {
  p.See(kTen);
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(s.TestTag, Extrapolation::Leidel);
}

TEST_F(PlotWays, LeaveTheEstimatesAsTheLastDrawingHadThem) {
  p.See(kTen);
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 70);
  const double GM = s.GM;
  p.Tab("descript");
  EXPECT_EQ(s.GM, GM);
  EXPECT_TRUE(p.box.shown.empty());
  EXPECT_NE(p.Text("GMLbl").find("Single censored Rankit"), std::string::npos);
}

TEST_F(PlotWays, EndWithTheSessionFromItsMenu) {
  p.See(kTen);
  p.Click("Menuclose");
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(s.M, 0);
}

TEST_F(PlotWays, RedrawThePictureWhenItsSizeChanges) {
  p.See(kTen);
  screen::Picture& picture = p.Plot().PicPlot;
  picture.drawing.SetScale(20000, 12000);
  screen::Guarded(p.ports, picture.Resized);
  const auto& frame = std::get<drawing::DrawnLine>(picture.drawing.Items().front());
  EXPECT_EQ(frame.from.x, 0.2 * 20000 - 60);
}

// A hidden picture may be resized while there is no series at all.
TEST_F(PlotWays, DrawNothingWhileAnotherScreenIsShown) {
  p.See(kTen);
  p.Click("Menuclose");
  screen::Picture& picture = p.Plot().PicPlot;
  const int drawn = picture.drawing.Revision();
  screen::Guarded(p.ports, picture.Resized);
  EXPECT_EQ(picture.drawing.Revision(), drawn);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotWays, ToOtherKindsOpenInTheDeveloperModeOnly) {
  p.See(kTen);
  EXPECT_FALSE(s.DeveloperMode);
  p.Click("MenuDevMode");
  EXPECT_TRUE(s.DeveloperMode);
  EXPECT_TRUE(p.At("MemuOtherPlots").visible);
  p.Click("MenuInvPlot");
  EXPECT_EQ(s.PlotKind, PlotStyle::Inverse);
  EXPECT_TRUE(p.At("MenuInvPlot").ticked);
  EXPECT_EQ(p.Text("LblYasTop"), "Normal\rorder\rscale");
  p.Click("MenuDevMode");
  EXPECT_FALSE(p.At("MemuOtherPlots").visible);
  EXPECT_EQ(s.PlotKind, PlotStyle::Paper);
  EXPECT_EQ(p.Text("LblXasEinde"), "Normal\rorder\rscale");
}

TEST_F(PlotWays, ToThePaperOfAnnexEShowItsLabelsAndNoBars) {
  p.See(kTen);
  EXPECT_FALSE(p.At("LblYas_50_procent").visible);
  p.Click("MenuDevMode");
  p.Click("MenuLowLim");
  p.Click("MenuAnnexEPlot");
  EXPECT_EQ(s.PlotKind, PlotStyle::AnnexE);
  EXPECT_TRUE(p.At("MenuAnnexEPlot").ticked);
  EXPECT_TRUE(p.At("LblYas_50_procent").visible);
  EXPECT_EQ(p.Text("LblYas_50_procent"), "50%");
  EXPECT_EQ(p.Text("LblYas_85_procent"), "85%");
  EXPECT_FALSE(p.At("LblR1").visible);
  EXPECT_TRUE(p.At("LblShapiro").visible);
  EXPECT_TRUE(p.At("LblRegres").visible);
  for (const char* bar : {"VScLowLimit", "VScUplimit", "HScLowLimit", "HScUplimit"})
    EXPECT_FALSE(p.At(bar).visible) << bar;
  p.Click("MenuUpLim");  // it has none to show
  for (const char* bar : {"VScLowLimit", "VScUplimit", "HScLowLimit", "HScUplimit"})
    EXPECT_FALSE(p.At(bar).visible) << bar;
  p.Click("memuVALKOplot");
  EXPECT_FALSE(p.At("LblYas_50_procent").visible);
  EXPECT_TRUE(p.At("LblR1").visible);
}

// The range can't be moved with the mouse there.
TEST_F(PlotWays, ToThePaperOfAnnexEGiveTheMouseNothingToPick) {
  p.See(kTen);
  p.Click("MenuDevMode");
  p.Click("MenuAnnexEPlot");
  p.Click("MenuLowLim");
  const double LOQ = s.LOQ;
  p.PlotClick(0.5, 0.6);
  EXPECT_EQ(s.LOQ, LOQ);
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotWays, ListTheInnerValuesOnDemand) {
  p.See(kTen);
  p.Click("MenuDevMode");
  EXPECT_FALSE(p.At("LblOntwikkel").visible);
  p.Click("MenuDevelop");
  ASSERT_TRUE(p.At("LblOntwikkel").visible);
  const std::string& listing = p.Text("LblOntwikkel");
  for (const char* name : {"Transformation Log(x)",
                           "CTransf(1) -1.56",
                           "CTransf(M)  1.13",
                           "XasStart ",
                           "XasLinks C(1)",
                           "ScaleX ",
                           "Regressie XasLinks ",
                           "Regressie XasRechts",
                           "XasEinde C(M)",
                           "YasBot ",
                           "YasLaag C(1)",
                           "ScaleY ",
                           "Regressie YasHoog",
                           "Regressie YasLaag",
                           "YasHoog C(M)",
                           "YasTop ",
                           "DetecOnderGrens ",
                           "DetecBovenGrens ",
                           "x-as positie LOQ lijn ",
                           "x-as positie URR lijn ",
                           "C_begin_regressie_lijn  ",
                           "C_einde_regressie_lijn  ",
                           "Sample GM ",
                           "Sample GSD ",
                           "Sample x ",
                           "Sample s "})
    EXPECT_NE(listing.find(name), std::string::npos) << name << " in\n" << listing;
  p.Click("MenuDevelop");
  EXPECT_FALSE(p.At("LblOntwikkel").visible);
}

TEST_F(PlotWays, ListTheInnerValuesOfThePaperOfAnnexEToo) {
  p.See(kTen);
  p.Click("MenuDevMode");
  p.Click("MenuDevelop");
  p.Click("MenuAnnexEPlot");
  ASSERT_TRUE(p.At("LblOntwikkel").visible);
  // 0.21 on an axis from 0.1 to 10, at (1 - 3/8) / 10.25 of a scale from 1 to 99 %.
  const screen::Picture& picture = p.Plot().PicPlot;
  const double x = (0.2 + 0.6 * std::log10(2.1) / 2) * picture.drawing.ScaleWidth();
  const double y = (0.2 + 0.35 + 0.35 * 1.546635 / 2.326348) * picture.drawing.ScaleHeight();
  const std::string& listing = p.Text("LblOntwikkel");
  const auto value = [&](const std::string& name) {
    const std::size_t at = listing.find(name) + name.size();
    return GlobalBAS::Val(listing.substr(at, listing.find('\r', at) - at));
  };
  EXPECT_NEAR(value("XasLinks C(1)"), x, 1e-6 * x) << listing;
  EXPECT_NEAR(value("YasLaag C(1)"), y, 1e-2) << listing;
  EXPECT_NE(value("Regressie XasLinks "), 0);
  p.Click("MenuDevelop");
  EXPECT_FALSE(p.At("LblOntwikkel").visible);
}

TEST_F(PlotWays, SaveThePictureAsABitmap) {
  p.See(kTen);
  p.dialog.asked.clear();
  p.dialog.answers.push_back("plot.bmp");
  p.Click("menuSavePicture");
  ASSERT_EQ(p.dialog.asked.size(), 1U);
  EXPECT_TRUE(p.dialog.asked[0].save);
  EXPECT_EQ(p.dialog.asked[0].title, "Save Picture");
  EXPECT_EQ(p.dialog.asked[0].filter, "Valkorin Files (*.bmp)|*.bmp");
  ASSERT_EQ(p.pictures.written.size(), 1U);
  EXPECT_EQ(p.pictures.written[0].path, "plot.bmp");
  EXPECT_EQ(p.pictures.written[0].drawing.Items(), p.Plot().PicPlot.drawing.Items());
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotWays, WriteNothingWhenTheDialogIsCancelled) {
  p.See(kTen);
  p.Click("menuSavePicture");
  EXPECT_TRUE(p.pictures.written.empty());
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(PlotWays, TellOfAPictureThatCouldNotBeSaved) {
  p.See(kTen);
  p.pictures.fails = true;
  p.dialog.answers.push_back("/nowhere/plot.bmp");
  p.Click("menuSavePicture");
  ASSERT_EQ(p.box.shown.size(), 1U);
  EXPECT_NE(p.LastBox().text.find("/nowhere/plot.bmp"), std::string::npos);
}

TEST_F(PlotWays, PrintThePicture) {
  p.See(kTen);
  p.Click("MenuPrinterPrint");
  ASSERT_EQ(p.printer.jobs.size(), 1U);
  EXPECT_TRUE(p.box.shown.empty());
  p.printer.fails = true;
  p.Click("MenuPrinterPrint");
  EXPECT_EQ(p.LastBox().title, "Print error");
  EXPECT_EQ(p.LastBox().text, "The form can't be printed.");
}
