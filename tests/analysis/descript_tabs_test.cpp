#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/program_session.h"

// Tabs and menus of the descriptive statistics screen.
namespace {

using navigation::ScreenId;
using support::ProgramSession;
using Keys = std::vector<std::string>;

const std::vector<double> kFive = {0.4, 0.9, 1.3, 2.2, 5.1};

class DescriptiveScreenTabs : public testing::Test {
 protected:
  void Enter(const std::string& m) {
    p.EnterStatistics("Welders", m, "0.3", "2");
    ASSERT_TRUE(p.Tab("descript"));
  }
  void OpenSeries(const std::vector<double>& outcomes) {
    p.OpenSeries(outcomes);
    p.Tab("basis");  // the start screen's flags take the default limit as set
    ASSERT_TRUE(p.Tab("descript"));
  }
  void Reopen() { p.program.Open(ScreenId::Descript); }

  ProgramSession p;
};

}  // namespace

TEST_F(DescriptiveScreenTabs, OfStatisticsHasNoTabForOutcomesOrTheirPlot) {
  Enter("10");
  EXPECT_EQ(p.Record().CurrentTab, "Descriptive statistics");
  EXPECT_EQ(p.Shown().strip->selected, "descript");
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.Text("WindnrLbl"), "20a");
}

TEST_F(DescriptiveScreenTabs, OfTwoOutcomesHasNoPlotAndComparesAtTheFifthOrSeventhTab) {
  OpenSeries({0.4, 0.9});
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "raw", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  p.Record().LimitsOk = false;
  Reopen();
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "Compare"}));
}

TEST_F(DescriptiveScreenTabs, WithoutValidLimitsTheTestsAreNotOffered) {
  OpenSeries(kFive);
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "extrapolation",
                               "mean", "Compare"}));
  EXPECT_TRUE(p.At("menuExtrPol").visible);
  EXPECT_TRUE(p.At("MenuPlot").visible);
  p.Record().LimitsOk = false;
  Reopen();
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "plot", "Compare"}));
  EXPECT_FALSE(p.At("menuExtrPol").visible);
}

TEST_F(DescriptiveScreenTabs, WithoutADataTypeHasNoTabs) {
  Enter("10");
  p.Record().Mode.clear();
  Reopen();
  EXPECT_TRUE(p.TabKeys().empty());
}

TEST_F(DescriptiveScreenTabs, TheTestsOpenWithValidStatisticsAndLimitsOnly) {
  Enter("10");
  p.Record().DescOk = false;
  p.Tab("extrapolation");
  EXPECT_EQ(p.Shown().name, "DescriptForm");
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "DescriptForm");
  EXPECT_EQ(p.Record().TestTag, "");
  p.Record().DescOk = true;
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().TestTag, "Le");
}

TEST_F(DescriptiveScreenTabs, ClosingFromItsMenuEndsTheSessionOnTheStartScreen) {
  Enter("10");
  p.Click("Menuclose");
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().Name, "");
  EXPECT_EQ(p.Record().M, 0);
}
