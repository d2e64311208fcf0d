#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/analysis/descriptive_screen.h"

// Tabs and menus of the descriptive statistics screen.
namespace {

using descriptive::kFive;
using Keys = std::vector<std::string>;

class DescriptiveScreenTabs : public descriptive::Screen {};

}  // namespace

TEST_F(DescriptiveScreenTabs, OfStatisticsHasNoTabForOutcomesOrTheirPlot) {
  Enter("10");
  EXPECT_EQ(p.Record().CurrentTab, ScreenId::Descript);
  EXPECT_EQ(p.Shown().strip->selected, "descript");
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.Text("WindnrLbl"), "20a");
}

TEST_F(DescriptiveScreenTabs, OfTwoOutcomesHasNoPlotAndComparesAtTheFifthOrSeventhTab) {
  OpenSeriesWithLimit({0.4, 0.9});
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.TabKeys(),
            (Keys{"basis", "raw", "grenzen", "descript", "extrapolation", "mean", "Compare"}));
  p.Record().LimitsOk = false;
  Reopen();
  EXPECT_FALSE(p.At("MenuPlot").visible);
  EXPECT_EQ(p.TabKeys(), (Keys{"basis", "raw", "grenzen", "descript", "Compare"}));
}

TEST_F(DescriptiveScreenTabs, WithoutValidLimitsTheTestsAreNotOffered) {
  OpenSeriesWithLimit(kFive);
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
  p.Record().Mode = DataMode::None;
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
  EXPECT_EQ(p.Record().TestTag, Extrapolation::None);
  p.Record().DescOk = true;
  p.Click("MenuLeid");
  EXPECT_EQ(p.Shown().name, "PercExForm");
  EXPECT_EQ(p.Record().TestTag, Extrapolation::Leidel);
}

TEST_F(DescriptiveScreenTabs, ClosingFromItsMenuEndsTheSessionOnTheStartScreen) {
  Enter("10");
  p.box.answers = {screen::Answer::Yes};
  p.Click("Menuclose");
  EXPECT_EQ(p.Shown().name, "BasisForm");
  EXPECT_EQ(p.Record().Name, "");
  EXPECT_EQ(p.Record().M, 0);
}
