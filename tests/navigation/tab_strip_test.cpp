#include <gmock/gmock.h>

#include "catalog/catalog.h"
#include "tests/support/program_session.h"

// The tabs of the start and data control screens, and what a click on them does.
namespace {

using support::ProgramSession;
using testing::ElementsAre;

TEST(TabStrip, ASeriesWithoutLimitsHasNoTestsYet) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  EXPECT_FALSE(user.Record().LimitsOk);
  EXPECT_THAT(user.TabKeys(),
              ElementsAre("basis", "raw", "grenzen", "descript", "plot", "Compare"));
  EXPECT_FALSE(user.At("menuExtrPol").visible);
}

TEST(TabStrip, LimitsAddTheTestsAndTheMean) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  EXPECT_TRUE(user.Record().LimitsOk);
  const auto all = ElementsAre("basis", "raw", "grenzen", "descript", "plot", "extrapolation",
                               "mean", "Compare");
  EXPECT_THAT(user.TabKeys(), all);
  EXPECT_TRUE(user.At("menuExtrPol").enabled);
  user.Tab("raw");
  EXPECT_THAT(user.TabKeys(), all);
  EXPECT_TRUE(user.At("menuExtrPol").visible);
  EXPECT_TRUE(user.At("menuExtrPol").enabled);
}

TEST(TabStrip, ASampleOfTwoHasNoPlot) {
  ProgramSession user;
  user.OpenSeries({1, 2});
  EXPECT_THAT(user.TabKeys(), ElementsAre("basis", "raw", "grenzen", "descript", "Compare"));
  EXPECT_FALSE(user.At("MenuPlot").visible);
  user.Tab("basis");
  EXPECT_THAT(user.TabKeys(), ElementsAre("basis", "raw", "grenzen", "descript", "extrapolation",
                                          "mean", "Compare"));
  EXPECT_FALSE(user.At("MenuPlot").visible);
}

TEST(TabStrip, KnownStatisticsHaveNoRawDataAndNoPlot) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  EXPECT_THAT(user.TabKeys(),
              ElementsAre("basis", "grenzen", "descript", "extrapolation", "mean", "Compare"));
  user.Record().OELV.reset();
  user.Visit("NameTxB");
  EXPECT_THAT(user.TabKeys(), ElementsAre("basis", "grenzen", "descript", "Compare"));
}

TEST(TabStrip, AnUnfilledTableOffersTheLimitsButNoStatistics) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  user.Type("SampSizTxB", "3");
  user.Record().OELV.reset();
  user.Click("CmdContinu");
  user.Record().OELV.reset();
  static_cast<screen::Grid&>(user.At("DBGridVkr")).Write(0, 2, "5");
  EXPECT_THAT(user.TabKeys(), ElementsAre("basis", "raw", "grenzen"));
  EXPECT_FALSE(user.At("MenuPlot").visible);
}

TEST(TabStrip, EachTabCarriesItsCaptionAndItsTip) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  const screen::Tab& tab = user.Shown().strip->tabs[3];
  EXPECT_EQ(tab.key, "descript");
  EXPECT_EQ(tab.caption, "Descriptive statistics");
  EXPECT_EQ(tab.tip, "Descriptive statistics of the sample");
  EXPECT_EQ(user.Shown().strip->selected, "raw");
}

TEST(TabClick, LeadsToItsScreenWhichTakesTheCurrentTab) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  const std::tuple<const char*, const char*, const char*> tabs[] = {
      {"basis", "BasisForm", "Start"},
      {"grenzen", "GrenzenForm", "Limits"},
      {"plot", "PlotForm", "Check distribution"},
      {"descript", "DescriptForm", "Descriptive statistics"},
      {"raw", "DataCtrlForm", "Raw data"},
      {"extrapolation", "PercExForm", "Statistical tests (Comparison with OELV)"},
      {"Compare", "TwoSampCompForm", "Compare"},
      {"mean", "UCLForm", "Mean UCL"},
      {"basis", "BasisForm", "Start"}};
  for (const auto& [key, form, caption] : tabs) {
    EXPECT_TRUE(user.Tab(key)) << key;
    EXPECT_EQ(user.Shown().name, form);
    EXPECT_EQ(LoadResString(workflow::TabOf(*user.Record().CurrentTab).caption), caption);
    EXPECT_EQ(user.Shown().strip->selected, key);
  }
}

TEST(TabClick, OnTheCurrentTabDoesNothing) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.At("WindnrLbl").text = "3b";
  user.Record().TestTag = Extrapolation::Leidel;
  EXPECT_TRUE(user.Tab("raw"));
  EXPECT_EQ(user.Text("WindnrLbl"), "3b") << "the screen was not activated again";
  EXPECT_EQ(user.Record().TestTag, Extrapolation::Leidel);
}

TEST(TabClick, OnAClosedGateStaysOnTheScreen) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  user.Type("SampSizTxB", "3");
  ASSERT_FALSE(user.Record().DescOk);
  for (const char* key : {"grenzen", "descript", "extrapolation"}) {
    EXPECT_TRUE(user.Tab(key)) << key;
    EXPECT_EQ(user.Shown().name, "BasisForm") << key;
    EXPECT_EQ(user.Shown().strip->selected, "basis") << key;
    EXPECT_EQ(user.Record().CurrentTab, ScreenId::Basis) << key;
  }
  EXPECT_TRUE(user.Tab("raw"));
  EXPECT_EQ(user.Shown().name, "DataCtrlForm");
}

TEST(TabClick, ToTheTableOfAnUnfilledSeriesFirstBringsTheStateUpToDate) {
  ProgramSession user;
  user.Click("MenuNewVkrFil");
  user.Type("NameTxB", "Solvent");
  user.Type("SampSizTxB", "3");
  user.Record().OELV.reset();
  user.Record().LimitsOk = false;
  user.Tab("raw");
  EXPECT_TRUE(user.Record().LimitsOk) << "the start screen's look set 1, the table's accepted it";
}

TEST(TabClick, ToTheTestsFromTheTableForgetsAWishForAnotherTest) {
  ProgramSession user;
  user.OpenSeries({1, 2, 4, 8});
  user.Tab("basis");
  user.Tab("raw");
  user.Record().TestTag = Extrapolation::Jahr;
  user.Tab("extrapolation");
  EXPECT_EQ(user.Shown().name, "PercExForm");
  EXPECT_EQ(user.Record().TestTag, Extrapolation::None);
}

TEST(Activation, ShowsTheStartScreenFromTheRecord) {
  ProgramSession user;
  user.EnterStatistics("Welders", "12", "1.5", "2.5");
  user.Tab("grenzen");
  user.Record().GM = 4.5;
  user.Record().M = 7;
  user.Record().df = 6;
  user.Tab("basis");
  EXPECT_EQ(user.Text("GMTxB"), "4.5");
  EXPECT_EQ(user.Text("SampSizTxB"), "7");
  EXPECT_EQ(user.Text("DegreesLbl"), "6");
}

}  // namespace
