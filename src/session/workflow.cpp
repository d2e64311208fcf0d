#include "session/workflow.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace workflow {
namespace {

using enum ScreenId;
using Condition = bool (*)(const ExposureSession& s);

constexpr std::array<TabText, 8> kTabs = {{
    {Basis, "basis", 80, 81},
    {DataCtrl, "raw", 82, 83},
    {Grenzen, "grenzen", 100, 101},
    {Descript, "descript", 84, 85},
    {Plot, "plot", 86, 87},
    {PercEx, "extrapolation", 90, 91},
    {UCL, "mean", 92, 93},
    {TwoSamp, "Compare", 2850, 2800},
}};

std::size_t Index(ScreenId screen) { return static_cast<std::size_t>(screen); }

// Conditions on the record.
bool Always(const ExposureSession&) { return true; }
bool Never(const ExposureSession&) { return false; }
bool Raw(const ExposureSession& s) { return s.Mode == "R"; }
bool ModeChosen(const ExposureSession& s) { return !s.Mode.empty(); }
// A regression needs three points.
bool Plottable(const ExposureSession& s) { return Raw(s) && s.M > 2; }
bool DescOk(const ExposureSession& s) { return s.DescOk; }
bool LimitsOk(const ExposureSession& s) { return s.LimitsOk; }
bool DescAndLimits(const ExposureSession& s) { return s.DescOk && s.LimitsOk; }
// The start and data control screens hold the later tabs back while a new series is being typed.
bool Complete(const ExposureSession& s) { return s.LimitsOk || !Raw(s) || !s.RawIncomplete; }
bool CompleteOrDesc(const ExposureSession& s) { return Complete(s) || s.DescOk; }
bool CompletePlot(const ExposureSession& s) { return Complete(s) && Plottable(s); }
// While other values are tried on top of the sample, the sample itself is out of reach.
bool RawOpen(const ExposureSession& s) { return Raw(s) && !s.ModifyMode; }
bool NotModified(const ExposureSession& s) { return !s.ModifyMode; }
bool PlotOpen(const ExposureSession& s) {
  return Plottable(s) && !s.ModifyMode && !s.RawIncomplete;
}

// Which tabs a screen's strip holds: a condition a tab, in the order of kTabs, and one for the
// whole strip.
struct Strip {
  Condition any;
  std::array<Condition, 8> tabs;
};

constexpr std::array<Condition, 8> kWithLimits = {Always,    Raw,      Always,   Always,
                                                  Plottable, LimitsOk, LimitsOk, Always};
constexpr std::array<Condition, 8> kWithTests = {Always,    Raw,    Always, Always,
                                                 Plottable, Always, Always, Always};

bool BasisStrip(const ExposureSession& s) { return ModeChosen(s) && StripVisible(s); }

// In the order of ScreenId. The tests and the mean are reached with valid limits only, so their
// own strips always hold both.
constexpr std::array<Strip, 8> kStrips = {{
    /* Basis */
    {BasisStrip,
     {Always, Raw, CompleteOrDesc, Complete, CompletePlot, LimitsOk, LimitsOk, CompleteOrDesc}},
    /* DataCtrl */
    {Always, {Always, Raw, Always, Complete, CompletePlot, LimitsOk, LimitsOk, CompleteOrDesc}},
    /* Grenzen */ {Always, kWithLimits},
    /* Descript */ {ModeChosen, kWithLimits},
    /* Plot */ {ModeChosen, kWithLimits},
    /* PercEx */ {ModeChosen, kWithTests},
    /* UCL */ {Always, kWithTests},
    /* TwoSamp */ {Always, kWithLimits},
}};

// The gates: a row a target, a column a screen that one comes from, both in the order of ScreenId.
// A screen's own tab leads nowhere.
constexpr std::array<std::array<Condition, 8>, 8> kGates = {{
    /* to Basis */ {Never, Always, Always, Always, Always, Always, Always, Always},
    /* to DataCtrl */
    {RawOpen, Never, RawOpen, RawOpen, NotModified, NotModified, NotModified, NotModified},
    /* to Grenzen */ {DescOk, DescOk, Never, DescOk, Always, Always, Always, Always},
    /* to Descript */ {DescOk, DescOk, Always, Never, Always, Always, Always, Always},
    /* to Plot */
    {PlotOpen, PlotOpen, PlotOpen, PlotOpen, Never, PlotOpen, PlotOpen, PlotOpen},
    /* to PercEx */
    {DescAndLimits, DescAndLimits, LimitsOk, DescAndLimits, LimitsOk, Never, Always, LimitsOk},
    /* to UCL */
    {DescAndLimits, DescAndLimits, LimitsOk, DescAndLimits, LimitsOk, Always, Never, LimitsOk},
    /* to TwoSamp */ {DescOk, DescOk, Always, Always, Always, DescOk, DescOk, Never},
}};

// The ways that empty TestTag, besides the mean screen's, which all do.
constexpr std::array<std::array<bool, 8>, 8> kEmptiesTestTag = {{
    /* to Basis */ {},
    /* to DataCtrl */ {},
    /* to Grenzen */ {},
    /* to Descript */ {},
    /* to Plot */ {},
    /* to PercEx */ {false, true, true, false, true, false, true, true},
    /* to UCL */ {true, true, true, true, true, true, true, true},
    /* to TwoSamp */ {true, true, true, true, true, true, true, true},
}};

}  // namespace

const TabText& TabOf(ScreenId screen) { return kTabs[Index(screen)]; }

const TabText* TabByKey(const std::string& key) {
  const auto found =
      std::find_if(kTabs.begin(), kTabs.end(), [&](const TabText& tab) { return key == tab.key; });
  return found == kTabs.end() ? nullptr : &*found;
}

std::vector<ScreenId> TabSet(const ExposureSession& s, ScreenId shown) {
  const Strip& strip = kStrips[Index(shown)];
  std::vector<ScreenId> tabs;
  if (!strip.any(s)) return tabs;
  for (const TabText& tab : kTabs)
    if (strip.tabs[Index(tab.screen)](s)) tabs.push_back(tab.screen);
  return tabs;
}

bool StripVisible(const ExposureSession& s) { return s.DescOk || (s.IdentOk && s.RawIncomplete); }

bool PlotMenuVisible(const ExposureSession& s, ScreenId shown) {
  const std::vector<ScreenId> tabs = TabSet(s, shown);
  return std::find(tabs.begin(), tabs.end(), Plot) != tabs.end();
}

bool GateOpen(const ExposureSession& s, ScreenId from, ScreenId target) {
  return kGates[Index(target)][Index(from)](s);
}

void PassGate(ExposureSession& s, ScreenId from, ScreenId target) {
  if (from == UCL || kEmptiesTestTag[Index(target)][Index(from)]) s.TestTag.clear();
  if (target == Plot) s.PlotKind = "VALKORIN";
}

}  // namespace workflow
