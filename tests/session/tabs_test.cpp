#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "catalog/catalog.h"
#include "session/workflow.h"
#include "tests/support/csv.h"
#include "tests/support/letters.h"

using namespace workflow;
using enum ScreenId;

namespace {

ScreenId ScreenOf(const std::string& name) {
  static const std::map<std::string, ScreenId> screens = {
      {"BasisForm", Basis},       {"DataCtrlForm", DataCtrl},  {"GrenzenForm", Grenzen},
      {"DescriptForm", Descript}, {"PlotForm", Plot},          {"PercExForm", PercEx},
      {"UCLForm", UCL},           {"TwoSampCompForm", TwoSamp}};
  return screens.at(name);
}

ExposureSession FromRow(const support::Row& row) {
  ExposureSession s;
  s.Mode = support::ModeOf(row.Text("Mode"));
  s.IdentOk = row.Number("IdentOk") == 1;
  s.DescOk = row.Number("DescOk") == 1;
  s.LimitsOk = row.Number("LimitsOk") == 1;
  s.RawIncomplete = row.Number("RawIncomplete") == 1;
  s.M = row.Number("M");
  return s;
}

std::string Keys(const ExposureSession& s, ScreenId shown) {
  std::string keys;
  for (const ScreenId tab : TabSet(s, shown)) {
    if (!keys.empty()) keys += ' ';
    keys += TabOf(tab).key;
  }
  return keys;
}

ExposureSession State(const std::string& mode, double M, bool descOk, bool limitsOk) {
  ExposureSession s;
  s.Mode = support::ModeOf(mode);
  s.M = M;
  s.IdentOk = true;
  s.DescOk = descOk;
  s.LimitsOk = limitsOk;
  return s;
}

}  // namespace

TEST(Tabs, EveryStateOfTheTableShowsItsStripAndItsPlotMenu) {
  for (const support::Row& row : support::ReadTable("tabs.csv")) {
    const ExposureSession s = FromRow(row);
    const ScreenId shown = ScreenOf(row.Text("screen"));
    const std::string where = row.Where() + " " + row.Text("screen") + " mode '" +
                              row.Text("Mode") + "' M " + row.Text("M");
    if (row.Text("tabs") == "as before") {
      // The status routine stops before it comes to the strip.
      EXPECT_EQ(shown, Basis) << where;
      EXPECT_EQ(s.Mode, DataMode::None) << where;
      EXPECT_EQ(Keys(s, shown), "") << where;
      continue;
    }
    EXPECT_EQ(Keys(s, shown), row.Text("tabs")) << where;
    // A hidden strip is not rebuilt, and holds no plot tab then.
    const bool plotMenu = row.Text("MenuPlot") == "1";
    EXPECT_EQ(PlotMenuVisible(s, shown), plotMenu) << where;
    if (shown == Basis) {
      EXPECT_EQ(StripVisible(s), row.Number("strip_visible") == 1) << where;
    }
  }
}

TEST(Tabs, ANewSeriesWithNameAndSizeShowsTheStripAlthoughNothingIsDescribedYet) {
  ExposureSession s = State("R", 10, false, false);
  s.RawIncomplete = true;
  EXPECT_TRUE(StripVisible(s));
  EXPECT_EQ(Keys(s, Basis), "basis raw");
  s.RawIncomplete = false;
  EXPECT_FALSE(StripVisible(s));
}

TEST(Tabs, TypedStatisticsOutOfRangeHideTheStrip) {
  EXPECT_FALSE(StripVisible(State("D", 10, false, false)));
  EXPECT_EQ(Keys(State("D", 10, false, false), Basis), "");
  EXPECT_TRUE(StripVisible(State("D", 10, true, false)));
}

TEST(Tabs, TypedStatisticsHaveNoRawDataAndNoPlot) {
  for (const ScreenId shown : {Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, UCL, TwoSamp}) {
    const ExposureSession s = State("D", 10, true, true);
    EXPECT_EQ(Keys(s, shown), "basis grenzen descript extrapolation mean Compare")
        << TabOf(shown).key;
    EXPECT_FALSE(PlotMenuVisible(s, shown)) << TabOf(shown).key;
  }
}

// A regression needs three points.
TEST(Tabs, ASampleOfTwoHasNoPlotAndOneOfThreeHas) {
  for (const ScreenId shown : {Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, UCL, TwoSamp}) {
    EXPECT_FALSE(PlotMenuVisible(State("R", 2, true, true), shown)) << TabOf(shown).key;
    EXPECT_TRUE(PlotMenuVisible(State("R", 3, true, true), shown)) << TabOf(shown).key;
  }
  const ExposureSession two = State("R", 2, true, false);
  EXPECT_EQ(TabSet(two, Descript).at(4), TwoSamp);                        // position 5
  EXPECT_EQ(TabSet(State("R", 2, true, true), Descript).at(6), TwoSamp);  // position 7
}

TEST(Tabs, WithoutLimitsTheTestsAndTheMeanAreMissing) {
  for (const ScreenId shown : {Basis, DataCtrl, Grenzen, Descript, Plot, TwoSamp})
    EXPECT_EQ(Keys(State("R", 10, true, false), shown), "basis raw grenzen descript plot Compare")
        << TabOf(shown).key;
}

TEST(Tabs, KeysCaptionsAndTipsAreTheWorkflowsOwn) {
  const std::map<std::string, std::pair<std::string, std::string>> words = {
      {"basis", {"Start", "Identification of the exposure data"}},
      {"raw", {"Raw data", "Table with the individual outcome"}},
      {"grenzen", {"Limits", "OELV, unit of measurement and percentile values"}},
      {"descript", {"Descriptive statistics", "Descriptive statistics of the sample"}},
      {"plot", {"Check distribution", "Cumulative distribution on probability paper"}},
      {"extrapolation",
       {"Statistical tests (Comparison with OELV)",
        "The upper tolerance limit of the distribution"}},
      {"mean", {"Mean UCL", "The upper confidence limit of the arithmetic mean"}},
      {"Compare",
       {"Compare",
        "Comparison with the descriptive statistics of a second log-Normal distribution"}}};
  for (const auto& [key, text] : words) {
    const TabText* tab = TabByKey(key);
    ASSERT_NE(tab, nullptr) << key;
    EXPECT_EQ(LoadResString(tab->caption), text.first) << key;
    EXPECT_EQ(LoadResString(tab->tip), text.second) << key;
    EXPECT_EQ(TabOf(tab->screen).key, key);
  }
  EXPECT_EQ(TabByKey("compare"), nullptr);
  EXPECT_EQ(TabByKey(""), nullptr);
}
