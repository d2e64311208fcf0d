// The ways between the screens: the strip, the gates behind its tabs, and the menus.
#include <algorithm>

#include "drive/stage.h"
#include "session/workflow.h"
#include "tests/walks/checks.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

using workflow::ScreenId;

struct Place {
  const char* form;
  const char* key;
  ScreenId id;
  bool needsEstimates;  // the screen calculates with GM and GSD
};

constexpr Place kPlaces[] = {
    {"BasisForm", "basis", ScreenId::Basis, false},
    {"DataCtrlForm", "raw", ScreenId::DataCtrl, false},
    {"GrenzenForm", "grenzen", ScreenId::Grenzen, false},
    {"DescriptForm", "descript", ScreenId::Descript, true},
    {"PlotForm", "plot", ScreenId::Plot, true},
    {"PercExForm", "extrapolation", ScreenId::PercEx, true},
    {"UCLForm", "mean", ScreenId::UCL, true},
    {"TwoSampCompForm", "Compare", ScreenId::TwoSamp, true},
};

const Place* PlaceOf(const std::string& form) {
  const auto* found = std::ranges::find(kPlaces, form, [](const Place& p) { return p.form; });
  return found == std::end(kPlaces) ? nullptr : found;
}

const Place* PlaceByKey(const std::string& key) {
  const auto* found = std::ranges::find(kPlaces, key, [](const Place& p) { return p.key; });
  return found == std::end(kPlaces) ? nullptr : found;
}

bool HasTab(const screen::TabStrip& strip, const std::string& key) {
  return std::ranges::any_of(strip.tabs, [&](const screen::Tab& tab) { return tab.key == key; });
}

// Where a menu item leads.
const char* FormOfMenu(const std::string& menu) {
  for (const char* name : {"MenuLeid", "MenuWilks", "MenuTugg"})
    if (menu == name) return "PercExForm";
  for (const char* name : {"MenuJahr", "MenuLand"})
    if (menu == name) return "UCLForm";
  if (menu == "MenuPlot") return "PlotForm";
  if (menu == "MenuComp") return "TwoSampCompForm";
  return nullptr;
}

// What the click itself has found wrong keeps the user where the entry is.
bool Refused(const Scene& scene) {
  const bool noLimit = !scene.before.OELV || *scene.before.OELV < 1E-10;
  return !scene.step.boxes.empty() || (scene.On("GrenzenForm") && noLimit);
}

bool Plausible(const Seen& now) {
  return now.GM >= 0.0001 && now.GM <= 10000 && now.GSD >= 1.001 && now.GSD <= 1000;
}

// A tab that is shown may be closed while there is nothing to calculate with, and, while other
// values are tried, the ones to the series itself.
bool MayBeClosed(const View& view, const Place& wanted) {
  const Seen& now = view.Now();
  const bool ofSeries = wanted.id == ScreenId::DataCtrl || wanted.id == ScreenId::Plot;
  return !view.model.Known() || !Plausible(now) || (now.ModifyMode && ofSeries);
}

void CheckArrival(const View& view, const Place* wanted, const std::string& way) {
  const Scene& scene = view.scene;
  const Place* from = PlaceOf(scene.before.form);
  if (!wanted || !from || scene.after.form == wanted->form || Refused(scene)) return;
  const bool stayed = scene.after.form == scene.before.form;
  const bool open = workflow::GateOpen(view.page.Stage().Session(), from->id, wanted->id);
  if (stayed && !open && MayBeClosed(view, *wanted)) return;
  view.Wrong("ways", way + " leads from " + scene.before.form + " to " + scene.after.form);
}

// A named series of a size that can be, with its outcomes and estimates to calculate with.
bool HasSeries(const Seen& now) {
  return now.Mode == "R" && !now.ModifyMode && !now.Name.empty() && now.Count() > 0 &&
         now.C.size() > static_cast<std::size_t>(now.Count()) && Plausible(now);
}

// The next tab whose gate is open, round the strip; the shown one where none is.
ScreenId NextOpen(const ExposureSession& session, ScreenId from, bool back) {
  std::vector<ScreenId> tabs = workflow::TabSet(session, from);
  if (back) std::ranges::reverse(tabs);
  const auto here = std::ranges::find(tabs, from);
  if (here == tabs.end()) return from;
  std::rotate(tabs.begin(), here, tabs.end());
  const auto open = std::find_if(tabs.begin() + 1, tabs.end(), [&](ScreenId id) {
    return workflow::GateOpen(session, from, id);
  });
  return open == tabs.end() ? from : *open;
}

// Ctrl+PgDown and Ctrl+Tab go to the next tab whose gate is open; with PgUp, or Shift, to the one
// before. The gates are those of the screen that is left: the arrival may find the estimates out of
// range and close some behind the user.
void CheckTabKey(const View& view, const std::string& key) {
  const Scene& scene = view.scene;
  const Place* from = PlaceOf(scene.before.form);
  const bool forward = key == "Ctrl+PgDown" || key == "Ctrl+Tab";
  const bool back = key == "Ctrl+PgUp" || key == "Ctrl+Shift+Tab";
  if (!from || Refused(scene) || (!forward && !back)) return;
  const ExposureSession& arrived = view.page.Stage().Session();
  ExposureSession left = arrived;
  left.DescOk = scene.before.DescOk;
  left.LimitsOk = scene.before.LimitsOk;
  const Place* there = PlaceOf(scene.after.form);
  const ScreenId wanted = NextOpen(left, from->id, back);
  if (there && (there->id == wanted || there->id == NextOpen(arrived, from->id, back))) return;
  // The arrival has put other estimates in force, under which the left screen would show no tabs.
  if (there && wanted == from->id) return;
  const auto* place = std::ranges::find(kPlaces, wanted, [](const Place& p) { return p.id; });
  view.Wrong("ways", key + " leads from " + from->form + " to " + scene.after.form + ", not to " +
                         place->form);
}

}  // namespace

// A working screen has a strip, each open gate its tab, and no gate is open to a screen that has
// nothing to calculate with.
void CheckStrip(const View& view) {
  const Place* here = PlaceOf(view.Now().form);
  if (!here) return;
  const screen::TabStrip& strip = *view.page.Stage().Shown().strip;
  const bool start = here->id == ScreenId::Basis;
  if (!strip.visible || strip.tabs.empty()) {
    if (!start || HasSeries(view.Now())) view.Wrong("strip", view.Now().form + " has no strip");
    return;
  }
  for (const Place& there : kPlaces) {
    if (!workflow::GateOpen(view.page.Stage().Session(), here->id, there.id)) continue;
    if (!HasTab(strip, there.key))
      view.Wrong("gate-without-tab",
                 view.Now().form + " has a gate to " + there.form + ", but no tab");
    if (there.needsEstimates && view.model.Closed())
      view.Wrong("gates", std::string(there.form) + " is open, but " + view.model.Why());
  }
}

// A tab leads to its screen where its gate stands open, and so does an item of a menu.
void CheckWays(const View& view) {
  const Scene& scene = view.scene;
  const std::string name = scene.step.Rest();
  // Keys have no way to follow where a screen shows none, or beside it.
  const bool byKeys = scene.step.Command() == "key" || !scene.step.meant.empty();
  if (byKeys && (!scene.before.strip || scene.before.logOpen)) return;
  if (scene.step.Command() == "key") CheckTabKey(view, name);
  if (scene.step.Command() == "tab") CheckArrival(view, PlaceByKey(name), "tab " + name);
  if (scene.step.Command() != "menu") return;
  if (const char* form = FormOfMenu(name)) CheckArrival(view, PlaceOf(form), name);
  if (name == "MenuVerd" && scene.after.form != "VerdelingForm")
    view.Wrong("ways", "the picture does not come");
}

}  // namespace walks
