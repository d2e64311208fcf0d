#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/program_session.h"

// The limits screen as the user meets it: lists, labels, messages, tabs.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using Keys = std::vector<std::string>;

constexpr screen::Colour kBlue{0, 0, 255};

class LimitsScreen : public testing::Test {
 protected:
  LimitsScreen() { p.EnterStatistics("Welders", "10", "0.3", "2"); }
  void Open() { p.program.Open(ScreenId::Grenzen); }
  ProgramSession p;
};

class LimitsScreenOfASeries : public testing::Test {
 protected:
  void Open(const std::vector<double>& outcomes) {
    p.OpenSeries(outcomes);
    ASSERT_TRUE(p.Tab("grenzen"));
  }
  ProgramSession p;
};

}  // namespace

TEST_F(LimitsScreen, TheListsHoldTheirRowsInOrder) {
  EXPECT_EQ(p.At("GrenzenForm.DimCbo").items,
            (Keys{"%", "fibres/ml", "mg/m3", "ppm", "ppb", "dB(A)", "EU/ml"}));
  const Keys durations = {"8 hours",   "15 minutes", "1 year",     "3 months",
                          "40 hours",  "60 minutes", "30 minutes", "10 minutes",
                          "5 minutes", "1 minutes",  "momentary"};
  EXPECT_EQ(p.At("GrenzenForm.DurationCmB").items, durations);
  Keys periods = durations;
  periods.insert(periods.end(), {"1 month", "3 months", "1 year", "40 years", "life time"});
  EXPECT_EQ(p.At("GrenzenForm.RefPerCmb").items, periods);
}

TEST_F(LimitsScreen, TheListsStartWithWordsThatTheyDoNotHold) {
  EXPECT_EQ(p.At("GrenzenForm.DimCbo").text, "Units");
  EXPECT_EQ(p.At("GrenzenForm.RefPerCmb").text, "Reference period");
  EXPECT_EQ(p.At("GrenzenForm.DurationCmB").text, "Duration");
}

TEST_F(LimitsScreen, ItsTitleNamesTheProgramAndTheScreen) {
  EXPECT_EQ(p.program.FormByName("GrenzenForm")->caption,
            p.Record().VersionText + "OELV & Percentiles");
}

TEST_F(LimitsScreen, ShowsTheRecordAtEachLook) {
  ExposureSession& s = p.Record();
  s.OELV = 25;
  s.Unit = "ppm";
  s.RefPeriod = "40 hours";
  s.Duration = "5 minutes";
  s.U = 90;
  s.D = 75;
  Open();
  EXPECT_EQ(p.Text("NameTxB"), "Welders");
  EXPECT_EQ(p.Text("SampSizTxB"), "10");
  EXPECT_TRUE(p.At("NameTxB").locked && p.At("SampSizTxB").locked);
  EXPECT_TRUE(p.At("IdentFrame").visible);
  EXPECT_EQ(p.Text("VkrValTxB"), "25");
  EXPECT_EQ(p.Text("DimCbo"), "ppm");
  EXPECT_EQ(p.Text("DimLbl(2)"), "ppm");
  EXPECT_EQ(p.Text("RefPerCmb"), "40 hours");
  EXPECT_EQ(p.Text("DurationCmB"), "5 minutes");
  EXPECT_EQ(p.Text("AlphaTxb"), "90");
  EXPECT_EQ(p.Text("DeltaTxb"), "75");
  EXPECT_EQ(s.CurrentTab, ScreenId::Grenzen);
  EXPECT_EQ(p.Shown().strip->selected, "grenzen");
}

TEST_F(LimitsScreen, TheWindowNumberFollowsTheFocus) {
  Open();
  EXPECT_EQ(p.Text("WindnrLbl"), "21b");
  const std::vector<std::pair<std::string, std::string>> numbers = {
      {"DimCbo", "14"},   {"AlphaTxb", "21"}, {"DurationCmB", "20"},
      {"DeltaTxb", "21"}, {"DimCbo", "14"},   {"VkrValTxB", "21"}};
  for (const auto& [field, number] : numbers) {
    p.At(field).selectAll = false;
    p.Visit(field);
    EXPECT_EQ(p.Text("WindnrLbl"), number) << field;
    EXPECT_TRUE(p.At(field).selectAll) << field;
  }
  p.At("RefPerCmb").selectAll = false;
  p.Visit("RefPerCmb");
  EXPECT_TRUE(p.At("RefPerCmb").selectAll);
}

TEST_F(LimitsScreen, TheLabelOfTheLimitIsBlueUntilALimitWasLeftInItsBox) {
  EXPECT_EQ(p.At("GrenzenForm.VkrValLbl(0)").colour, kBlue);
  Open();
  EXPECT_EQ(p.At("VkrValLbl(0)").colour, kBlue) << "the 1 stands in for a limit";
  p.Visit("VkrValTxB");
  EXPECT_EQ(p.At("VkrValLbl(0)").colour, std::nullopt);
}

TEST_F(LimitsScreen, LabelsOfMissingTextsAreBlue) {
  Open();
  p.Type("DimCbo", "");
  p.Type("RefPerCmb", "");
  p.Type("DurationCmB", "");
  for (const char* label : {"DimLbl(0)", "DimLbl(2)", "VkrValLbl(1)", "DurationLbl"})
    EXPECT_EQ(p.At(label).colour, kBlue) << label;
  p.Type("DimCbo", "ppb");
  p.Type("RefPerCmb", "8 hours");
  p.Type("DurationCmB", "8 hours");
  for (const char* label :
       {"DimLbl(0)", "DimLbl(2)", "VkrValLbl(1)", "DurationLbl", "AlphaLbl(0)", "AlphaLbl(1)"})
    EXPECT_EQ(p.At(label).colour, std::nullopt) << label;
}

TEST_F(LimitsScreen, AnEmptyUnitBecomesMgPerM3AtTheNextLookWithoutAWord) {
  Open();
  p.Type("DimCbo", "");
  EXPECT_EQ(p.Record().Unit, "");
  Open();
  EXPECT_EQ(p.Record().Unit, "mg/m3");
  EXPECT_EQ(p.Text("DimCbo"), "mg/m3");
  EXPECT_TRUE(p.box.shown.empty());
}

TEST_F(LimitsScreen, ReferencePeriodAndDurationMayStayEmpty) {
  Open();
  p.Type("RefPerCmb", "");
  p.Type("DurationCmB", "");
  Open();
  EXPECT_TRUE(p.Record().LimitsOk);
  EXPECT_EQ(p.Record().RefPeriod, "");
  EXPECT_EQ(p.Record().Duration, "");
  EXPECT_TRUE(p.Tab("extrapolation"));
}

TEST_F(LimitsScreen, WithoutALimitItSaysWhatIsMissingAndLeadsToTheFirstBadEntry) {
  ExposureSession& s = p.Record();
  s.OELV.reset();
  s.U = 0;
  s.D = 0;
  Open();
  EXPECT_FALSE(s.LimitsOk);
  EXPECT_TRUE(p.At("BoodschFrame").visible);
  EXPECT_EQ(p.Text("BoodschLbl"),
            "\rTo extrapolate and test compliance:\r"
            " -  values for the environmental factors OELV, U and D are obliged");
  EXPECT_FALSE(p.At("menuExtrPol").enabled);
  EXPECT_FALSE(p.At("menuExtrPol").visible);
  EXPECT_EQ(p.Shown().focusWanted, &p.At("AlphaTxb"));
  EXPECT_EQ(s.OELV, 1) << "the flags have put the default in its place";
}

TEST_F(LimitsScreen, WithAGoodCoverageTheFocusGoesToABadConfidence) {
  p.Record().OELV.reset();
  p.Record().U = 95;
  p.Record().D = 100;
  Open();
  EXPECT_EQ(p.Shown().focusWanted, &p.At("DeltaTxb"));
}

TEST_F(LimitsScreen, WithOnlyTheLimitReplacedTheFocusStays) {
  p.Record().OELV = 2E+10;
  p.Record().U = 95;
  p.Record().D = 70;
  Open();
  EXPECT_TRUE(p.At("BoodschFrame").visible);
  EXPECT_EQ(p.Shown().focusWanted, nullptr);
}

TEST_F(LimitsScreen, WithValidLimitsTheMessageIsGoneAndTheTestsAreOffered) {
  p.Record().OELV = 1;
  Open();
  EXPECT_TRUE(p.Record().LimitsOk);
  EXPECT_EQ(p.Record().U, 95);
  EXPECT_EQ(p.Record().D, 70);
  EXPECT_FALSE(p.At("BoodschFrame").visible);
  EXPECT_TRUE(p.At("menuExtrPol").enabled);
  EXPECT_TRUE(p.At("menuExtrPol").visible);
}

TEST_F(LimitsScreen, OfStatisticsHasNoTabForOutcomesOrTheirPlot) {
  p.Record().OELV = 1;
  Open();
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_FALSE(p.At("MenuPlot").visible);
  p.Record().OELV.reset();
  Open();
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "grenzen", "descript", "Compare"}));
}

TEST_F(LimitsScreenOfASeries, HasATabForItsOutcomesAndTheirPlot) {
  Open({0.4, 0.9, 1.3, 2.2});
  EXPECT_EQ(p.Text("WindnrLbl"), "21a");
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "extrapolation",
                               "mean", "Compare"}));
  EXPECT_TRUE(p.At("MenuPlot").visible);
  const screen::Tab& tests = p.Shown().strip->tabs[5];
  EXPECT_EQ(tests.caption, "Statistical tests (Comparison with OELV)");
  EXPECT_EQ(tests.tip, "The upper tolerance limit of the distribution");
}

TEST_F(LimitsScreenOfASeries, OfTwoHasNoPlot) {
  Open({0.4, 0.9});
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "raw", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_FALSE(p.At("MenuPlot").visible);
}

TEST_F(LimitsScreen, AnyLookForgetsTheChosenTest) {
  p.Record().TestTag = Extrapolation::Leidel;
  Open();
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
}

TEST_F(LimitsScreen, TheWayToTheTestsForgetsTheChosenTest) {
  p.Record().OELV = 1;
  Open();
  p.Record().TestTag = Extrapolation::Leidel;
  EXPECT_TRUE(p.Tab("extrapolation"));
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  EXPECT_TRUE(p.At("IntroFrm").visible);
}

TEST_F(LimitsScreen, TheMenuOfATestOpensTheTestsAndStartsIt) {
  p.Record().OELV = 1;
  Open();
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Leidel);
  EXPECT_EQ(p.Text("WindnrLbl"), "25");
}

TEST_F(LimitsScreen, AClickOnItsOwnTabDoesNothing) {
  p.Record().OELV = 1;
  Open();
  p.Record().TestTag = Extrapolation::Leidel;
  p.Tab("grenzen");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Leidel) << "a look would have emptied it";
}

TEST_F(LimitsScreen, ItsTabsLeadToTheirScreens) {
  const std::vector<std::pair<std::string, std::string>> ways = {
      {"basis", "BasisForm"}, {"descript", "DescriptForm"}, {"extrapolation", "PercExForm"}};
  p.Record().OELV = 1;
  for (const auto& [key, name] : ways) {
    Open();
    EXPECT_TRUE(p.Tab(key));
    EXPECT_EQ(p.Shown().name, name);
  }
}
