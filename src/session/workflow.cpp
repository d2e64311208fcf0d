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
bool Raw(const ExposureSession& s) { return s.Mode == DataMode::Raw; }
bool ModeChosen(const ExposureSession& s) { return s.Mode != DataMode::None; }
// A regression needs three points.
bool Plottable(const ExposureSession& s) { return Raw(s) && s.M > 2; }
bool DescOk(const ExposureSession& s) { return s.DescOk; }
bool LimitsOk(const ExposureSession& s) { return s.LimitsOk; }
bool DescAndLimits(const ExposureSession& s) { return s.DescOk && s.LimitsOk; }
// A line can be laid through outcomes that differ, also where the range leaves so few degrees of
// freedom that all outcomes together spread too widely.
bool LineMayMend(const ExposureSession& s) {
  return s.spread == Spread::TooLarge && s.inForce == Estimates::RangeDegrees;
}
// The start and data control screens hold the later tabs back while a new series is being typed, or
// where one gives no estimates.
bool Complete(const ExposureSession& s) {
  return s.LimitsOk || !Raw(s) || !(s.RawIncomplete || s.noEstimates);
}
bool CompleteOrDesc(const ExposureSession& s) { return Complete(s) || s.DescOk; }
bool CompletePlot(const ExposureSession& s) {
  return (Complete(s) || LineMayMend(s)) && Plottable(s);
}
// While other values are tried on top of the sample, the sample itself is out of reach.
bool RawOpen(const ExposureSession& s) { return Raw(s) && !s.ModifyMode; }
bool PlotOpen(const ExposureSession& s) {
  return Plottable(s) && !s.ModifyMode && !s.RawIncomplete && (!s.noEstimates || LineMayMend(s));
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
    {RawOpen, Never, RawOpen, RawOpen, RawOpen, RawOpen, RawOpen, RawOpen},
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

// A series that is still being typed, or that gives no estimates, can be reached and mended.
bool StripVisible(const ExposureSession& s) {
  return s.DescOk || (s.IdentOk && (s.RawIncomplete || s.noEstimates));
}

bool SeriesBegun(const Given& given) {
  if (given.Mode != DataMode::Raw || given.refusedFile) return false;
  return given.newSeries || given.C.size() > 1 || given.M != 0 || !given.Name.empty();
}

bool PlotMenuVisible(const ExposureSession& s, ScreenId shown) {
  const std::vector<ScreenId> tabs = TabSet(s, shown);
  return std::find(tabs.begin(), tabs.end(), Plot) != tabs.end();
}

bool GateOpen(const ExposureSession& s, ScreenId from, ScreenId target) {
  const bool evaluates = target != Basis && target != DataCtrl && target != Plot;
  if (s.noEstimates && evaluates) return false;
  return kGates[Index(target)][Index(from)](s);
}

Obstacle ObstacleTo(const ExposureSession& s, ScreenId from, ScreenId target) {
  if (from == target || GateOpen(s, from, target)) return Obstacle::None;
  const bool ofTheSeries = target == DataCtrl || target == Plot;
  const bool judges = target == PercEx || target == UCL;
  if (ofTheSeries && s.ModifyMode) return Obstacle::OtherValues;
  if (s.RawIncomplete) return Obstacle::RowsUnfilled;
  if (s.noEstimates) return Obstacle::NoEstimates;
  if (target == Plot && !Plottable(s)) return Obstacle::FewOutcomes;
  return judges && s.DescOk ? Obstacle::NoLimit : Obstacle::NotDescribed;
}

void PassGate(Workflow& flow, ScreenId from, ScreenId target) {
  if (from == UCL || kEmptiesTestTag[Index(target)][Index(from)])
    flow.TestTag = Extrapolation::None;
  if (target == Plot) flow.PlotKind = PlotStyle::Paper;
}

}  // namespace workflow
