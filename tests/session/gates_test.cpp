#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "session/workflow.h"

using namespace workflow;
using enum ScreenId;

namespace {

constexpr std::array<ScreenId, 8> kScreens = {Basis, DataCtrl, Grenzen, Descript,
                                              Plot,  PercEx,   UCL,     TwoSamp};

// What a way between two screens asks: R mode "R", 3 more than two outcomes, D described, L limits
// set, m not modified, c the series complete. "-" is nothing at all, "own" the screen's own tab.
using Row = std::map<ScreenId, std::string>;
const std::map<ScreenId, Row> kNeeds = {
    {Basis,
     {{Basis, "own"},
      {DataCtrl, "-"},
      {Descript, "-"},
      {Grenzen, "-"},
      {PercEx, "-"},
      {UCL, "-"},
      {Plot, "-"},
      {TwoSamp, "-"}}},
    {DataCtrl,
     {{Basis, "Rm"},
      {DataCtrl, "own"},
      {Descript, "Rm"},
      {Grenzen, "Rm"},
      {PercEx, "Rm"},
      {UCL, "Rm"},
      {Plot, "Rm"},
      {TwoSamp, "Rm"}}},
    {Descript,
     {{Basis, "D"},
      {DataCtrl, "D"},
      {Descript, "own"},
      {Grenzen, "-"},
      {PercEx, "-"},
      {UCL, "-"},
      {Plot, "-"},
      {TwoSamp, "-"}}},
    {Plot,
     {{Basis, "R3mc"},
      {DataCtrl, "R3mc"},
      {Descript, "R3mc"},
      {Grenzen, "R3mc"},
      {PercEx, "R3mc"},
      {UCL, "R3mc"},
      {Plot, "own"},
      {TwoSamp, "R3mc"}}},
    {Grenzen,
     {{Basis, "D"},
      {DataCtrl, "D"},
      {Descript, "D"},
      {Grenzen, "own"},
      {PercEx, "-"},
      {UCL, "-"},
      {Plot, "-"},
      {TwoSamp, "-"}}},
    {PercEx,
     {{Basis, "DL"},
      {DataCtrl, "DL"},
      {Descript, "DL"},
      {Grenzen, "L"},
      {PercEx, "own"},
      {UCL, "-"},
      {Plot, "L"},
      {TwoSamp, "L"}}},
    {UCL,
     {{Basis, "DL"},
      {DataCtrl, "DL"},
      {Descript, "DL"},
      {Grenzen, "L"},
      {PercEx, "-"},
      {UCL, "own"},
      {Plot, "L"},
      {TwoSamp, "L"}}},
    {TwoSamp,
     {{Basis, "D"},
      {DataCtrl, "D"},
      {Descript, "-"},
      {Grenzen, "-"},
      {PercEx, "D"},
      {UCL, "D"},
      {Plot, "-"},
      {TwoSamp, "own"}}},
};

// A record in which exactly the facts of `facts` hold.
ExposureSession With(const std::string& facts) {
  const auto holds = [&](char fact) { return facts.find(fact) != std::string::npos; };
  ExposureSession s;
  s.Mode = holds('R') ? DataMode::Raw : DataMode::Statistics;
  s.M = holds('3') ? 3 : 2;
  s.DescOk = holds('D');
  s.LimitsOk = holds('L');
  s.ModifyMode = !holds('m');
  s.RawIncomplete = !holds('c');
  return s;
}

std::string Way(ScreenId from, ScreenId target) {
  return std::string(TabOf(from).key) + " to " + TabOf(target).key;
}

const std::string kFacts = "R3DLmc";

}  // namespace

TEST(Gates, EachIsOpenWithExactlyWhatItAsksFor) {
  for (const ScreenId target : kScreens)
    for (const ScreenId from : kScreens) {
      const std::string& needs = kNeeds.at(target).at(from);
      if (needs == "own") continue;
      EXPECT_TRUE(GateOpen(With(needs), from, target)) << Way(from, target) << " with " << needs;
    }
}

TEST(Gates, EachIsClosedWhenAnythingThatItAsksForIsMissing) {
  for (const ScreenId target : kScreens)
    for (const ScreenId from : kScreens) {
      const std::string& needs = kNeeds.at(target).at(from);
      if (needs == "own" || needs == "-") continue;
      for (const char missing : needs) {
        std::string others = kFacts;
        others.erase(others.find(missing), 1);
        EXPECT_FALSE(GateOpen(With(others), from, target))
            << Way(from, target) << " without " << missing;
      }
    }
}

TEST(Gates, AScreensOwnTabLeadsNowhere) {
  for (const ScreenId screen : kScreens)
    EXPECT_FALSE(GateOpen(With(kFacts), screen, screen)) << TabOf(screen).key;
}

TEST(Gates, WhileOtherValuesAreTriedTheSampleAndItsPlotAreClosed) {
  ExposureSession s = With(kFacts);
  s.ModifyMode = true;
  for (const ScreenId from : kScreens) {
    EXPECT_FALSE(GateOpen(s, from, DataCtrl)) << TabOf(from).key;
    EXPECT_FALSE(GateOpen(s, from, Plot)) << TabOf(from).key;
  }
}

TEST(Gates, AnIncompleteSeriesHasNoPlot) {
  ExposureSession s = With(kFacts);
  s.RawIncomplete = true;
  for (const ScreenId from : kScreens) EXPECT_FALSE(GateOpen(s, from, Plot)) << TabOf(from).key;
}

// TestTag carries the wish for a test to the next screen: what empties it decides what is shown.
TEST(Gates, TheWishForATestEndsOnTheseWaysAndOnNoOthers) {
  const std::map<ScreenId, std::vector<ScreenId>> ends = {
      {PercEx, {DataCtrl, Grenzen, Plot, TwoSamp, UCL}},
      {UCL, {Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, TwoSamp}},
      {TwoSamp, {Basis, DataCtrl, Grenzen, Descript, Plot, PercEx, UCL}},
      {Basis, {UCL}},
      {DataCtrl, {UCL}},
      {Grenzen, {UCL}},
      {Descript, {UCL}},
      {Plot, {UCL}}};
  for (const ScreenId target : kScreens)
    for (const ScreenId from : kScreens) {
      if (from == target) continue;
      ExposureSession s = With(kFacts);
      s.TestTag = Extrapolation::Leidel;
      PassGate(s, from, target);
      const std::vector<ScreenId>& list = ends.at(target);
      const bool emptied = std::find(list.begin(), list.end(), from) != list.end();
      EXPECT_EQ(s.TestTag, emptied ? Extrapolation::None : Extrapolation::Leidel)
          << Way(from, target);
    }
}

TEST(Gates, GoingToThePlotChoosesTheCumulativePlot) {
  for (const ScreenId target : kScreens) {
    ExposureSession s = With(kFacts);
    s.PlotKind = PlotStyle::Inverse;
    PassGate(s, Grenzen, target);
    EXPECT_EQ(s.PlotKind, target == Plot ? PlotStyle::Paper : PlotStyle::Inverse)
        << TabOf(target).key;
  }
}
